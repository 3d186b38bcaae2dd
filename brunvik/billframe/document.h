// The documents with one header and rows below it, each in a table. A document says in a form which statements those
// are; the frame runs them.
#pragma once

#include <vector>

#include "brunvik/billframe/bill.h"
#include "brunvik/billframe/row_reader.h"
#include "brunvik/foundation/column_statement.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

// The statements that go by the number of the document alone.
struct DocumentStatements {
  StatementText<1> select_header, delete_header;
  StatementText<1> select_rows, delete_rows;
};

struct DocumentForm {
  DocumentStatements statements;
  Insert insert;
  Update update;
  Insert insert_row;
  // What is read of each row.
  RowMembers row_members_read;
};

// The form of a document that reads back of a row what its insert writes, but for the cost. Call it in a function that
// returns the form, and not where a static is initialised: there clang 14 ends the call's temporaries too early.
DocumentForm form_reading_back(DocumentStatements statements, Insert insert, Update update, Insert insert_row);

class Document : public Bill {
 protected:
  using Form = DocumentForm;

  virtual const DocumentForm& form() const = 0;
  virtual RowCollection& rows() = 0;

  // The status that the header is saved with; asked for behind the look-up by number.
  virtual Long status_to_save(Saving saving) const;

  virtual void insert_header(Long status);

  // What becomes of a header that is there: its rows go, then it is updated.
  virtual void update_header(Long status);

  virtual void save_row(const PublicObject& row);

  void save_header(Saving saving) override;
  void save_rows() override;
  void read_header() override;
  void read_rows() override;
  void remove_rows() override;
  void remove_header() override;

  // By the kind's code in the column Type. A kind without a code has its table to itself, and the number goes into the
  // search for a neighbour as it stands, between apostrophes.
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;

  // The rows become those of the set. `finish` gets each row, and the set at its record, for what a document reads
  // beside the members of its form.
  using FinishRow = void (*)(PublicObject& row, const ado::Recordset& set);
  void take_rows(ado::Recordset set, FinishRow finish);

  // What take_rows is given for all rows of the document.
  virtual FinishRow finish_row() const {
    return [](PublicObject&, const ado::Recordset&) {};
  }
};

// The text of a header's statement in which <...> stands around what an opening balance leaves out.
std::string header_text(std::string_view text, bool opening);

// The sources of the columns that a header takes from its kind: Type, InOutFlag, and the status that it is saved with.
std::vector<ColumnSource> header_sources(const Kind& kind);

// The row members that an insert writes, but for the cost, which an audit writes: what most documents read back.
RowMembers members_read_back(const Insert& insert_row);

}  // namespace brunvik
