#include "brunvik/warehouse/other_stock_document.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/warehouse/warehouse_members.h"

namespace brunvik {

const Members& clsOthersInBill::members() const {
  static const Members table =
      warehouse_members<clsOthersInBill>(property<&clsOthersInBill::RManager>("RManager", "RManager"));
  return table;
}

const StockForm& clsOthersInBill::form() const {
  static const StockForm form = warehouse_form(
      kind(), members(), "Rmanager", WarehouseColumn::Receiver,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Receiver,Equipcode,remarks,GoodStutas) values(");
  return form;
}

void clsOthersInBill::post(const StockRow& row, Long& result) { poster().PostStockIn(row, false, result); }
void clsOthersInBill::undo_post(Long& result) { poster().UndoStockIn(ID, "", true, false, result); }

const Members& clsOthersOutBill::members() const {
  static const Members table =
      warehouse_members<clsOthersOutBill>(property<&clsOthersOutBill::SManager>("SManager", "SManager"));
  return table;
}

const StockForm& clsOthersOutBill::form() const {
  static const StockForm form = warehouse_form(
      kind(), members(), "SManager", WarehouseColumn::Supplier,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Supplier,remarks,GoodStutas) values(");
  return form;
}

void clsOthersOutBill::post(const StockRow& row, Long& result) { poster().PostStockOut(row, false, false, result); }
void clsOthersOutBill::undo_post(Long& result) { poster().UndoStockOut(ID, false, false, result); }

Long OtherStockDocument::Audit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::audited);
    prepare_rows();
    for_each_stock_row([&](StockRow& row) {
      write_cost_at_price(row);
      Long result = 0;
      post(row, result);
      stop_unless_done(result);
    });
    BillCost = write_bill_cost();
    read_rows();
  });
}

Long OtherStockDocument::UndoAudit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::saved);
    prepare_rows();
    for_each_stock_row([&](StockRow& row) { write_cost_at_price(row); });
    BillCost = write_bill_cost();
    Long result = 0;
    undo_post(result);
    stop_unless_done(result);
  });
}

}  // namespace brunvik
