// Purchase receipt (进货入库) and its opening balance (进货期初): goods come in from a vendor, the average cost moves,
// the debt to the vendor opens, and what was paid at the counter is audited with it.
#pragma once

#include "brunvik/billframe/class_of.h"
#include "brunvik/stock/trade_document.h"

namespace brunvik {

class PurchaseReceipt : public TradeDocument {
 public:
  bool CreateFlag = false;
  std::string Vendor;
  // The stock keeper who received the goods.
  std::string RkrId;
  std::string Salesman;
  std::string Referbillid;

  Long Inoutflag() const { return kind().side; }

  using Bill::GetNearId;

  // Reads the bill with all rows, or with the one row of this number. With bDHBJ each row carries what goods arrivals
  // set against it. The rows are left alone where BID is empty.
  Long LoadById(const std::string& BID, Long lRowNum = -1, bool bDHBJ = false) noexcept;

  // Takes each row into the average and costs it at the new average; mends the cost of sales that had none. The stock
  // moves only where bJKC is true; the average moves anyhow. An opening balance only marks itself and audits its
  // voucher, whatever bJKC says.
  Long Audit(bool bJKC = false) noexcept;

  // Takes the rows in the object out of the average again, so the bill must be loaded. Auditor and time are cleared in
  // the table. Sales that the audit costed keep their cost.
  Long UndoAudit(bool bJKC = false) noexcept;

  // The collection becomes the rows of the receipt of this number, read as LoadById reads them. Throws on an error.
  static void read_receipt_rows(Collection<StockRow>& rows, const ado::ConnectionReference& connection,
                                const std::string& number);

 protected:
  // An opening balance has no advance.
  std::string NowAdvanceBillID;
  Money AdvanceAmount;

  static Members receipt_members(const Kind& kind);
  DocumentForm made_form() const;

  FinishRow finish_row() const override;
  const Operation<StockRow>* stock_operation() const override { return &operation::StockIn; }
  void row_posted(const StockRow& row) override;
  void mark_undone() override;

 private:
  void read_rows_of(Long row_number, bool with_arrivals);
};

class clsPurchaseInBill final : public ClassOf<PurchaseReceipt, kind::clsPurchaseInBill> {
 public:
  using PurchaseReceipt::AdvanceAmount;
  using PurchaseReceipt::NowAdvanceBillID;

  const Members& members() const override;
};

class clsPurchaseInBjkcBill final : public ClassOf<PurchaseReceipt, kind::clsPurchaseInBjkcBill> {
 public:
  const Members& members() const override;
};

}  // namespace brunvik
