#include "brunvik/sales/sales_document.h"

#include "brunvik/settlement/receipt_bill.h"

namespace brunvik {

Long SalesDocument::audit(Stock stock) noexcept {
  return audit_with<clsReceiptBill>([&] {
    audit_advance();
    read_rows();
    cost_and_post(stock, [](const StockRow& row) {
      return cost_at_average(GetAverageCost(row.Gid, row.Class, row.Model1, row.Model2), row);
    });
    BillCost = write_bill_cost();
  });
}

Long SalesDocument::undo_audit(Stock stock) noexcept {
  return undo_with<clsReceiptBill>([&] {
    undo_advance();
    cost_rows([](const StockRow&) { return Money(); });
    BillCost = write_bill_cost();
    if (stock == Stock::moves) undo_stock();
  });
}

}  // namespace brunvik
