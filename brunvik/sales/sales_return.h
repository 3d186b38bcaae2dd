// Sales return (销售退货入库) and its opening balance (销售退货期初): goods come back from a customer, at the present
// average cost and not at that of the issue which they reverse. Money goes through a receipt voucher only.
#pragma once

#include "brunvik/billframe/class_of.h"
#include "brunvik/sales/sales_document.h"

namespace brunvik {

class SalesReturn : public SalesDocument {
 public:
  // The stock keeper, the customer, and the salesman.
  std::string RkrId, ClientId, Manager;
  std::string Invoicename;
  Long Invoicetype = 0;
  Single Taxrate = 0;
  std::string Referbillid;

  using Bill::GetNearId;

  // What Delete runs.
  Long DeleteSalesInBillAndItems() noexcept { return Delete(); }

 protected:
  // `audit` has the verbs of the audit, which differ in their arguments.
  static Members return_members(const Kind& kind, MemberGroup audit);
  DocumentForm made_form() const;

  const Operation<StockRow>* stock_operation() const override { return &operation::SalesReturn; }
};

class clsSalesInBill final : public ClassOf<SalesReturn, kind::clsSalesInBill> {
 public:
  // The stock moves only where IsBJKC is false.
  Long Audit(bool IsBJKC = false) noexcept { return audit(IsBJKC ? Stock::stays : Stock::moves); }
  Long UndoAudit(bool IsBJKC = false) noexcept { return undo_audit(IsBJKC ? Stock::stays : Stock::moves); }

  const Members& members() const override;
};

class clsSalesInBjkcBill final : public ClassOf<SalesReturn, kind::clsSalesInBjkcBill> {
 public:
  Long Audit() noexcept { return audit(Stock::stays); }
  Long UndoAudit() noexcept { return undo_audit(Stock::stays); }

  const Members& members() const override;
};

}  // namespace brunvik
