// The documents of RGStockBill with their rows in RGStockBillItems: the road of a broken item from the customer to the
// factory and back. What tells them apart in the table is ProcessFlag.
//
// Every verb, and the workers that save and read, tell the user of their own error: the notice has a blank, the name,
// "():" and a blank. An operation of the stock that fails ends its verb in silence.
//
// Where the setting 启用坏件审核 is 1, a saved document waits at status 2 for its audit; where it is 0, saving posts
// each row at once; under any other text it is saved as audited and nothing is posted.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/billframe/class_of.h"
#include "brunvik/billframe/document.h"
#include "brunvik/repair/repair_row.h"
#include "brunvik/stock/stock_movement.h"

namespace brunvik {

// The result of a save or a delete that finds no rows in the object.
inline constexpr Long result_without_rows = -2;

class RepairDocument : public Document {
 public:
  Collection<RepairRow> RGBillItems;

  std::string BillId;
  // Kept by the host; nothing is stored of them.
  Long Referflag = 0;
  std::string Referbillid;

  // The kind of the document: the class's own until a document is read.
  Integer Processflag() const { return process_flag_; }
  Long Inoutflag() const { return kind().side; }

  using Bill::GetNextId;
  using Bill::GetPreviousId;

  // Reads the header of BillId, and with bGetItems its rows.
  Long GetBillAndItem(bool bGetItems = false) noexcept;

  // Save the header, then the rows. -1 with an empty BillId, -2 without rows in the object; then nothing is written.
  Long Save() noexcept;
  Long SaveAsDraft() noexcept;

  // Removes the header, then the rows. -1 and -2 as above: the document has to be loaded. What it takes back in front
  // of that doesn't hold it up; the result is that of the last operation taken back.
  Long Delete() noexcept;

  // Marks the document, takes its voucher along, reads its rows anew and posts each. An operation that fails ends the
  // audit with the document marked and the rows before posted. Nothing happens with an empty BillId. An opening balance
  // is marked alone.
  Long Audit() noexcept;
  Long UndoAudit() noexcept;

 protected:
  using Operations = std::span<const Operation<RepairRow>>;

  explicit RepairDocument(const Kind& kind) : process_flag_(static_cast<Integer>(kind.code.value())) {}

  // What an audit, or a save without audits, posts of each row. The last of them alone can end it.
  virtual Operations stock_operations() const { return {}; }

  // What is kept of a row beside the stock, behind its operations.
  virtual void row_posted(const RepairRow&) {}
  virtual void row_undone(const RepairRow&) {}

  // The voucher at the document's side, where it has one.
  virtual void audit_money() const {}
  virtual void undo_money() const {}

  // What is taken back in front of a delete: of an audited document the rows' operations. The last one's result.
  virtual Long take_back();

  // 1 where the rows of the document, rounded to a whole number, have been dealt with by later documents, else 0; or
  // the number of an error, 94 for a document without rows.
  Long GetRgStockBillitems(const std::string& cBillid) noexcept;

  // The members of all these documents around those of a group, by their place.
  struct OwnMembers {
    MemberGroup behind_connection = {};
    MemberGroup behind_kind = {};
    MemberGroup behind_creation = {};
    MemberGroup verbs = {};
  };
  static Members repair_members(OwnMembers own);

  // What a document says in its form beside its kind and its members.
  struct RepairTexts {
    // What stands in <...>, an opening balance leaves out.
    std::string_view insert, update;
    std::string insert_row;
    // The columns of a row that are written and not read back.
    std::vector<std::string_view> unread = {};
    std::vector<ColumnSource> header_sources = {};
    bool reads_rows_in_order = true;
  };
  static DocumentForm repair_form(const Kind& kind, const Members& members, const RepairTexts& texts);

  std::string& number() override { return BillId; }
  RowCollection& rows() override { return RGBillItems; }
  void save_row(const PublicObject& row) override;
  void read_header() override;
  void read_rows() override;
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;

 private:
  void save_bill_and_items(Long status);
  bool is_stored() const;
  void expect_number_and_rows() const;
  void mark(Long status) const;
  void post(const RepairRow& row);

  Integer process_flag_;
};

// A class of one of these families, whose kind says the ProcessFlag that its objects begin with.
template <class Family, const Kind& its_kind>
class RepairClassOf : public ClassOf<Family, its_kind> {
 protected:
  RepairClassOf() : ClassOf<Family, its_kind>(its_kind) {}
};

}  // namespace brunvik
