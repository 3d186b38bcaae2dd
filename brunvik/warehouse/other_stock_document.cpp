#include "brunvik/warehouse/other_stock_document.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/warehouse/warehouse_members.h"

namespace brunvik {

const Members& clsOthersInBill::members() const {
  using C = clsOthersInBill;
  static const Members table = warehouse_members<C>(receiving_members<C>({near_id<C>()}));
  return table;
}

const DocumentForm& clsOthersInBill::form() const {
  static const DocumentForm form = warehouse_form(
      kind(), members(), "Rmanager", WarehouseColumn::Receiver,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Receiver,Equipcode,remarks,GoodStutas) values(");
  return form;
}

const Members& clsOthersOutBill::members() const {
  using C = clsOthersOutBill;
  static const Members table =
      warehouse_members<C>({.person = property<&C::SManager>("SManager", "SManager"),
                            .money = {property<&C::BillCost>("BillCost", "BillCost")},
                            .behind_saving = {verb<&C::GetBill>("GetBill")},
                            .behind_number = {near_id<C>()},
                            .audit = {verb<&C::Audit>("Audit"), verb<&C::UndoAudit>("UndoAudit")}});
  return table;
}

const DocumentForm& clsOthersOutBill::form() const {
  static const DocumentForm form = warehouse_form(
      kind(), members(), "SManager", WarehouseColumn::Supplier,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Supplier,remarks,GoodStutas) values(");
  return form;
}

Long OtherStockDocument::Audit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::audited);
    prepare_rows();
    cost_and_post(Stock::moves, cost_at_price);
    BillCost = write_bill_cost();
    read_rows();
  });
}

Long OtherStockDocument::UndoAudit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::saved);
    prepare_rows();
    cost_rows(cost_at_price);
    BillCost = write_bill_cost();
    undo_stock();
  });
}

}  // namespace brunvik
