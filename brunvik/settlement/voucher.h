// What vouchers and advances share. Money is booked against source bills: an audit adds each settled row's amount to
// the bill's PaidAmount and closes the bill where that equals its CloseAmount; after a part payment and after an
// overpayment it stays open.
//
// Each worker tells the user of its own error: the notice has the worker's tag, a blank, its name, "():" and a blank.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "brunvik/billframe/bill.h"
#include "brunvik/billframe/row_reader.h"
#include "brunvik/foundation/column_statement.h"
#include "brunvik/settlement/settlement_row.h"
#include "brunvik/settlement/source_bill.h"

namespace brunvik {

// How a document takes its settlement back: every statement tests the kind, as the audit did; or it goes by the number
// alone, and then the row of that number changes whatever its kind.
enum class UndoForm { by_kind, by_number_alone };

// What a document of this family says of itself.
struct VoucherForm {
  std::string_view read_tag, save_tag, save_draft_tag;
  // The codes of repair documents that the audit finds a table for.
  std::span<const Long> repair_codes;
  UndoForm undo;
  Insert insert;
  Update update;
};

class Voucher : public Bill {
 public:
  std::string Ccompany;
  // Really paid or received; and settled against bills.
  Money Paidamount, Amount;
  // Made on the spot from a source bill.
  bool Nowpay = false;
  Long Referflag = 0;
  std::string Referbillid;

  Money DiscountAmount() const { return Amount - Paidamount; }

  // Marks the voucher audited by these, then settles row by row; what was settled before a failure stays.
  Long Audite(const std::string& auditor = {}, const std::string& audit_time = {}) noexcept;

  // Takes the settlement back and opens the bills again, also a bill that another voucher had closed.
  Long UndoAudite() noexcept;

  using Bill::GetNextId;
  using Bill::GetPreviousId;

 protected:
  using Form = VoucherForm;

  virtual const VoucherForm& form() const = 0;
  virtual Collection<SettledRow>& settled_rows() = 0;

  // The statement that reads a source bill's amount and what vouchers and advances have taken of it; drafts don't
  // count.
  virtual std::string select_open_amount(std::string_view table, const std::string& bill) const = 0;

  // What goes in front of the update of a stored header.
  virtual void before_update() {}

  virtual ado::Recordset select_header() const;

  void save_header(Saving saving) override;
  void read_header() override;
  void remove_header() override;
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;

  void insert_rows(RowCollection& rows, const Insert& insert, std::string_view insert_tag) const;
  void read_settled_rows(ado::Recordset set, const Insert& written_by);

  // The sources of an insert's columns: a new voucher refers to nothing yet, whatever the object holds.
  static std::vector<ColumnSource> insert_sources(const Kind& kind);
  static std::vector<ColumnSource> update_sources(const Kind& kind);

 private:
  void settle(const SettledRow& row, const SourceTable& table) const;
  void take_back(const SettledRow& row, const SourceTable& table) const;
  void read_open_amount(SettledRow& row, std::string_view table) const;
};

// The two sums of select_open_amount, each without the name that it gets in the set.
std::string sum_of_vouchers(const std::string& bill);
std::string sum_of_advances(const std::string& bill);

}  // namespace brunvik
