// Other receivable (其他应收单) and other payable (其他应付单), with their opening balances: money that is owed for no
// goods, such as rent and fees. Vouchers settle these bills like any other.
//
// Most workers tell the user of their own error. The reading and the removing of the header fail in silence, and so
// does the audit of a payable.
#pragma once

#include <string>

#include "brunvik/billframe/class_of.h"
#include "brunvik/billframe/telling_document.h"

namespace brunvik {

// What the money is owed for, kept in OthersIEBillItems.
class OtherMoneyRow final : public PublicObject {
 public:
  std::string Billid;
  Integer Rownum = 0;
  std::string Itemid, Itemname, Unit;
  Single Qty = 0;
  Money Price, Amount;
  std::string Remarks;

  static const Members& table();
  const Members& members() const override { return table(); }
};

class OtherMoneyDocument : public TellingDocument<Document> {
 public:
  Collection<OtherMoneyRow> colBillItems;

  // The other party, and the person responsible.
  std::string Supplier, Manager;
  // Paid so far, which vouchers move; what closes the bill; and its total.
  Money Paidamount, Closeamount, Amount;
  std::string Invoicename;
  Long Invoicetype = 0;
  Single Taxrate = 0;
  Integer Discounttype = 0;
  std::string Discountcard;
  Single Discountrate = 0;
  Byte Deliverymethod = 0;
  // As the host sets it; vouchers set the column when they close the bill.
  bool Closedtag = false;
  // The voucher made on the spot with this bill; the bill's audit audits it too.
  std::string Nowpaybillid;
  Long Referflag = 0;
  std::string Referbillid, Lastupdatetime;

  using Bill::GetNearId;

  // Audits the bill that is stored, and the voucher that it names there. Nothing happens to a bill that is audited
  // already, or that isn't there. -1 with an empty ID.
  Long UpdateAudited() noexcept;

  // Takes the audit back from an audited bill, and from its voucher.
  Long CancelAudited() noexcept;

  const Members& members() const override { return table(); }

 protected:
  static const Members& table();
  DocumentForm made_form() const;

  // What the audit does to the voucher at the bill's side.
  virtual void audit_money(const std::string& voucher) const = 0;
  virtual void undo_money(const std::string& voucher) const = 0;

  // The tags of the audit and of its undo; an empty one shows no notice.
  virtual std::string_view audit_tag() const = 0;
  virtual std::string_view undo_tag() const = 0;

  RowCollection& rows() override { return colBillItems; }

  // Without the audit of accounts a bill is born audited, though its voucher has settled nothing.
  Long status_to_save(Saving saving) const override;
  const WorkerTags& tags() const override;
  void save_row(const PublicObject& row) override;

 private:
  Long change_status(bool audited) noexcept;
};

class OtherReceivable : public OtherMoneyDocument {
 protected:
  void audit_money(const std::string& voucher) const override;
  void undo_money(const std::string& voucher) const override;
  std::string_view audit_tag() const override { return " UpdateOthersIEInAudited(): "; }
  std::string_view undo_tag() const override { return " CancelOthersIEInAudited(): "; }
};

class OtherPayable : public OtherMoneyDocument {
 protected:
  void audit_money(const std::string& voucher) const override;
  void undo_money(const std::string& voucher) const override;
  std::string_view audit_tag() const override { return {}; }
  std::string_view undo_tag() const override { return " CancelOthersIEOutAudited(): "; }
};

class ClsOthersIncomeBill final : public ClassOf<OtherReceivable, kind::ClsOthersIncomeBill> {};

class clsOthersIncomeBjkcBill final : public ClassOf<OtherReceivable, kind::clsOthersIncomeBjkcBill> {};

class clsOthersExpenseBill final : public ClassOf<OtherPayable, kind::clsOthersExpenseBill> {};

class clsOthersExpenseBjkcBill final : public ClassOf<OtherPayable, kind::clsOthersExpenseBjkcBill> {};

}  // namespace brunvik
