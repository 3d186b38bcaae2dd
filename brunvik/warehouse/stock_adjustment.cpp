#include "brunvik/warehouse/stock_adjustment.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/warehouse/warehouse_members.h"

namespace brunvik {

const Members& clsTZBill::members() const {
  using C = clsTZBill;
  static const Members table = warehouse_members<C>(receiving_members<C>());
  return table;
}

const DocumentForm& clsTZBill::form() const {
  static const DocumentForm form = warehouse_form(
      kind(), members(), "Rmanager", WarehouseColumn::Receiver,
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Receiver,Equipcode,remarks) values(",
      {actual_as_asked});
  return form;
}

Long clsTZBill::Audit() noexcept {
  return trap([&] {
    if (!ID.empty()) mark(status::audited);
  });
}

Long clsTZBill::UndoAudit() noexcept {
  return trap([&] {
    if (!ID.empty()) mark(status::saved);
  });
}

// It takes the first record in descending order where the other kinds ask for the highest number.
void clsTZBill::find_last(std::string& last, std::string_view) {
  last = aggregated_id(execute(sql("select TOP 1 * from StockBill where type={} order by Id desc", *kind().code)));
}

}  // namespace brunvik
