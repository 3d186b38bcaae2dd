#include "brunvik/warehouse/transfer.h"

#include "brunvik/foundation/error_trap.h"

namespace brunvik {

const Members& clsDbBill::members() const {
  using C = clsDbBill;
  static const Members table = transfer_members<C>({verb<&C::GetDbBillItems>("GetDbBillItems")});
  return table;
}

const DocumentForm& clsDbBill::form() const {
  static const DocumentForm form = movement_form(kind(), members(), "RManager,SManager");
  return form;
}

Long clsDbBill::UpdateAudited() noexcept {
  return trap([&] {
    mark_if_stored_otherwise(status::audited);
    if (ID.empty()) return;
    Long posted = 0;
    for_each_row_backwards(colBillItems, [&](PublicObject& each) {
      auto& row = static_cast<StockRow&>(each);
      write_row_cost(row, cost_at_price(row));
      const StockPoster& stock = poster();
      posted = trap([&] { stock.Post(*stock_operation(), row); });
    });
    write_bill_cost();
    stop_unless_done(posted);
  });
}

Long clsDbBill::CancelAudited() noexcept {
  return trap([&] {
    mark_if_stored_otherwise(status::saved);
    if (ID.empty()) return;
    cost_rows(cost_at_price);
    write_bill_cost();
    undo_stock();
  });
}

Long clsDbBill::GetDbBillItems() noexcept {
  return trap([&] { read_rows(); });
}

}  // namespace brunvik
