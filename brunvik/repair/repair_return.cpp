#include "brunvik/repair/repair_return.h"

#include "brunvik/foundation/error_trap.h"

namespace brunvik {

void RepairReturn::row_posted(const RepairRow& row) {
  raise_dealt_with(row);
  mark_document_drawn_on(row);
}

void RepairReturn::row_undone(const RepairRow& row) {
  lower_dealt_with(row);
  mark_document_drawn_on(row);
}

void RepairReturn::raise_dealt_with(const RepairRow& row) const {
  trap(" updataYfQty(): ", [&] {
    if (BillId.empty()) return;
    execute(sql("Update RGStockBillItems set YfQty= YfQty +{} where BillId={} and GId={} and RowNum={}", row.Qty,
                row.GuanLianBill, goods_drawn_on(row), row.DYRowNum));
  });
}

void RepairReturn::lower_dealt_with(const RepairRow& row) const {
  trap(" updataUndoYfQty(): ", [&] {
    if (BillId.empty()) return;
    execute(sql("Update RGStockBillItems set YfQty= YfQty -{} where BillId={} and GId={} and RowNum={}", row.Qty,
                row.GuanLianBill, goods_drawn_on(row), row.DYRowNum));
  });
}

// Both sums count as whole numbers, so that half a unit that is open can pass for none. A document that isn't there, or
// has no rows, has no sums: 94, and no mark.
void RepairReturn::mark_document_drawn_on(const RepairRow& row) const {
  trap(" updataQtyStutas(): ", [&] {
    const auto sums = execute(
        sql("SELECT sum(RGStockBillItems.qty) as qty,sum(RGStockBillItems.YfQty) as yfqty FROM RGStockBill  INNER JOIN "
            "RGStockBillItems ON RGStockBill.Id = RGStockBillItems.BillId where RGStockBill.Id={}",
            row.GuanLianBill));
    const bool dealt_with = sums.value("qty").as_integer() == sums.value("yfqty").as_integer();
    execute(sql("Update RGStockBill set  QtyStutas= {} where Id={}", dealt_with, row.GuanLianBill));
  });
}

}  // namespace brunvik
