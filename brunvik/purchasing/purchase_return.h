// Purchase return (进货退货出库) and its opening balance (进货退货期初): goods go back to the vendor. The mirror of the
// receipt: its audit takes the rows out of the average at their own price, its undo takes them in again.
#pragma once

#include "brunvik/billframe/class_of.h"
#include "brunvik/stock/trade_document.h"

namespace brunvik {

class PurchaseReturn : public TradeDocument {
 public:
  // The vendor who takes the goods back.
  std::string Vendor;
  // The stock keeper, and the person who handles the return.
  std::string CkrId, ThrId;
  Long Deliverymethod = 0;

  using Bill::GetNearId;

  // The stock moves always. An opening balance only marks itself and audits its voucher.
  Long Audit() noexcept;
  Long UndoAudit() noexcept;

  const Members& members() const override { return table(); }

 protected:
  static const Members& table();
  DocumentForm made_form() const;

  const Operation<StockRow>* stock_operation() const override { return &operation::StockOut; }
};

class clsPurchaseOutBill final : public ClassOf<PurchaseReturn, kind::clsPurchaseOutBill> {};

class clsPurchaseOutBjkcBill final : public ClassOf<PurchaseReturn, kind::clsPurchaseOutBjkcBill> {};

}  // namespace brunvik
