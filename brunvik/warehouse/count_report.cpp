#include "brunvik/warehouse/count_report.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/warehouse/warehouse_members.h"

namespace brunvik {

const Members& clsReportOfOverflowBill::members() const {
  using C = clsReportOfOverflowBill;
  static const Members table = warehouse_members<C>(
      {.person = property<&C::Manager>("Manager", "RManager"),
       .money = {property<&C::Paidamount>("Paidamount")},
       .behind_number = {near_id<C>()},
       .audit = {verb<&C::UpdateAudited>("UpdateAudited"), verb<&C::CancelAudited>("CancelAudited")}});
  return table;
}

const DocumentForm& clsReportOfOverflowBill::form() const {
  static const DocumentForm form = warehouse_form(
      kind(), members(), "RManager", WarehouseColumn::Receiver,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Receiver,Equipcode,remarks,GoodStutas) values(");
  return form;
}

const Members& clsReportOfLossesBill::members() const {
  using C = clsReportOfLossesBill;
  static const Members table = warehouse_members<C>(
      {.person = property<&C::Manager>("Manager", "SManager"),
       .behind_creation = {computed<&C::Inoutflag>("Inoutflag", "InOutFlag")},
       .behind_saving = {verb<&C::GetBill>("GetBill")},
       .behind_number = {near_id<C>()},
       .audit = {verb<&C::UpdateAudited>("UpdateAudited"), verb<&C::CancelAudited>("CancelAudited")}});
  return table;
}

const DocumentForm& clsReportOfLossesBill::form() const {
  static const DocumentForm form = warehouse_form(
      kind(), members(), "SManager", WarehouseColumn::Supplier,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Supplier,Equipcode,remarks,GoodStutas) values(");
  return form;
}

void CountReport::change_status(Long to) {
  mark_if_stored_otherwise(to);
  if (ID.empty()) return;
  read_rows();
  cost_rows(cost_at_price);
  write_bill_cost(static_cast<Integer>(*kind().code));
}

Long CountReport::UpdateAudited() noexcept {
  return trap([&] {
    change_status(status::audited);
    if (ID.empty()) return;
    for_each_stock_row([&](const StockRow& row) { poster().Post(*stock_operation(), row); });
  });
}

Long CountReport::CancelAudited() noexcept {
  return trap([&] {
    change_status(status::saved);
    if (ID.empty()) return;
    undo_stock();
  });
}

}  // namespace brunvik
