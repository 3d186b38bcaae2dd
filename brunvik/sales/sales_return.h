// Sales return (销售退货入库) and its opening balance (销售退货期初): goods come back from a customer, at the present
// average cost and not at that of the issue which they reverse. Money goes through a receipt voucher only.
#pragma once

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
  template <class Leaf>
  static Members return_members();
  static StockForm return_form(const Kind& kind, const Members& members);

  void post(const StockRow& row, Long& result) override;
  void undo_post(Long& result) override;
};

class clsSalesInBill final : public SalesReturn {
 public:
  // The stock moves only where IsBJKC is false.
  Long Audit(bool IsBJKC = false) noexcept { return audit(IsBJKC); }
  Long UndoAudit(bool IsBJKC = false) noexcept { return undo_audit(IsBJKC); }

  const Kind& kind() const override { return kind::clsSalesInBill; }
  const Members& members() const override;

 protected:
  const StockForm& form() const override;
};

class clsSalesInBjkcBill final : public SalesReturn {
 public:
  Long Audit() noexcept { return audit(true); }
  Long UndoAudit() noexcept { return undo_audit(true); }

  const Kind& kind() const override { return kind::clsSalesInBjkcBill; }
  const Members& members() const override;

 protected:
  const StockForm& form() const override;
};

}  // namespace brunvik
