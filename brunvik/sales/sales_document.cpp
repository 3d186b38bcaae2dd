#include "brunvik/sales/sales_document.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/settlement/receipt_bill.h"
#include "brunvik/stock/moving_average_cost.h"

namespace brunvik {

Long SalesDocument::audit(bool stock_stays) noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::audited);
    audit_voucher<clsReceiptBill>(Nowpaybillid);
    if (kind().opening) return;
    audit_advance();
    read_rows();
    for_each_stock_row([&](StockRow& row) {
      const Money average = GetAverageCost(row.Gid, row.Class, row.Model1, row.Model2);
      write_row_cost(row, cost_at_average(average, row));
      if (stock_stays) return;
      Long result = 0;
      post(row, result);
      stop_unless_done(result);
    });
    BillCost = write_bill_cost();
  });
}

Long SalesDocument::undo_audit(bool stock_stays) noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::saved);
    undo_voucher<clsReceiptBill>(Nowpaybillid);
    if (kind().opening) return;
    undo_advance();
    for_each_stock_row([&](StockRow& row) { write_row_cost(row, Money()); });
    BillCost = write_bill_cost();
    if (stock_stays) return;
    Long result = 0;
    undo_post(result);
    stop_unless_done(result);
  });
}

}  // namespace brunvik
