#include "brunvik/warehouse/state_conversion.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/foundation/text.h"

namespace brunvik {

namespace {

Long state_named(std::string_view name) {
  name = trimmed(name);
  if (name == "1" || name == "坏件") return stock_status::broken;
  if (name == "2" || name == "修复品") return stock_status::repaired;
  return stock_status::sound;
}

// The states are those of the header in the books, not those that the object holds; without a header sound stock moves.
Operation<StockRow> stored_conversion(const StockPoster& stock, const std::string& bill) {
  const auto header = ado::execute(stock.ADOConn, sql("select * from StockBill where Id={}", bill));
  const auto state = [&](const char* column) {
    return header.at_end() ? stock_status::sound : state_named(header.value(column).joined_text());
  };
  return {stored_stock_rows,
          {Direction::out, &StockRow::Supplier, &StockRow::Qty, state("SManager")},
          Movement<StockRow>{Direction::in, &StockRow::Receiver, &StockRow::Qty, state("RManager")}};
}

}  // namespace

const Members& clsGoodsConvertBill::members() const {
  using C = clsGoodsConvertBill;
  static const Members table = movement_members<C>(
      {property<&C::OldWareHouse>("OldWareHouse", "Supplier"), property<&C::NewWareHouse>("NewWareHouse", "Receiver"),
       property<&C::OldStatus>("OldStatus", "SManager"), property<&C::NewStatus>("NewStatus", "RManager")},
      {verb<&C::Save>("Save"), verb<&C::Delete>("Delete"), verb<&C::GetNewId>("GetNewId", out("BID")),
       verb<&C::LoadById>("LoadById", in_out("BID"))});
  return table;
}

const DocumentForm& clsGoodsConvertBill::form() const {
  static const DocumentForm form = [&] {
    DocumentForm made = movement_form(kind(), members(), "SManager,RManager");
    // Actualqty is written and not read.
    std::erase(made.row_members_read, &StockRow::table().named("Actualqty"));
    return made;
  }();
  return form;
}

void clsGoodsConvertBill::save_rows() {
  Long posted = 0;
  for_each_stock_row([&](const StockRow& row) {
    trap([&] { save_row(row); });
    const StockPoster& stock = poster();
    posted = trap([&] { stock.Post(stored_conversion(stock, ID), row); });
  });
  stop_unless_done(posted);
}

void clsGoodsConvertBill::remove_rows() {
  const StockPoster& stock = poster();
  // What the undo meets is not looked at: the rows go all the same.
  trap([&] { stock.Undo(stored_conversion(stock, ID), ID); });
  InternalMovement::remove_rows();
}

}  // namespace brunvik
