#include "brunvik/warehouse/count_report.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/warehouse/warehouse_members.h"

namespace brunvik {

const Members& clsReportOfOverflowBill::members() const {
  static const Members table =
      warehouse_members<clsReportOfOverflowBill>(property<&clsReportOfOverflowBill::Manager>("Manager", "RManager"));
  return table;
}

const StockForm& clsReportOfOverflowBill::form() const {
  static const StockForm form = warehouse_form(
      kind(), members(), "RManager", WarehouseColumn::Receiver,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Receiver,Equipcode,remarks,GoodStutas) values(");
  return form;
}

void clsReportOfOverflowBill::post(const StockRow& row, Long& result) { poster().PostOverflow(row, Referflag, result); }
void clsReportOfOverflowBill::undo_post(Long& result) { poster().UndoOverflow(ID, result); }

const Members& clsReportOfLossesBill::members() const {
  static const Members table =
      warehouse_members<clsReportOfLossesBill>(property<&clsReportOfLossesBill::Manager>("Manager", "SManager"));
  return table;
}

const StockForm& clsReportOfLossesBill::form() const {
  static const StockForm form = warehouse_form(
      kind(), members(), "SManager", WarehouseColumn::Supplier,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Supplier,Equipcode,remarks,GoodStutas) values(");
  return form;
}

void clsReportOfLossesBill::post(const StockRow& row, Long& result) { poster().PostLoss(row, Referflag, result); }
void clsReportOfLossesBill::undo_post(Long& result) { poster().UndoLoss(ID, result); }

void CountReport::change_status(bool audited) {
  if (ID.empty()) throw Stop{-1};
  const auto stored = execute(sql("select * from StockBill where Id={}", ID));
  if (stored.at_end() || (stored.value("Status").as_long() == status::audited) == audited) {
    ID.clear();
    return;
  }
  const Long to = audited ? status::audited : status::saved;
  execute(sql("update stockbill set Status = {},Auditor = {},AuditTime = {} where Id={}", to, Auditor, Audittime, ID));
  read_rows();
  for_each_stock_row([&](StockRow& row) { write_cost_at_price(row); });
  write_bill_cost(static_cast<Integer>(*kind().code));
}

Long CountReport::UpdateAudited() noexcept {
  return trap([&] {
    change_status(true);
    if (ID.empty()) return;
    for_each_stock_row([&](StockRow& row) {
      Long result = 0;
      post(row, result);
      stop_unless_done(result);
    });
  });
}

Long CountReport::CancelAudited() noexcept {
  return trap([&] {
    change_status(false);
    if (ID.empty()) return;
    Long result = 0;
    undo_post(result);
    stop_unless_done(result);
  });
}

}  // namespace brunvik
