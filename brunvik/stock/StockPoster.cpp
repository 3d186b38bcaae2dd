#include "brunvik/stock/StockPoster.h"

#include "brunvik/ado/errors.h"
#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/Declare_EnumType.h"
#include "brunvik/foundation/FenwerkOPT_Function.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

namespace {

// A quantity of one stock balance, in the unit that the balance is kept in.
struct BaseQuantity {
  Single quantity;
  std::string unit;
};

BaseQuantity base_quantity(const StockRow& row) {
  GoodsRecord goods;
  stop_unless_done(GetGoodsById(row.Gid, goods));
  // Goods without a unit of their own, or without a record, are kept in the unit that they first moved in.
  const std::string unit = goods.Unit.empty() ? row.Unit : goods.Unit;
  const double factor = GoodsUnitConverter(row.Gid, row.Unit).to_double();
  const double own_factor = GoodsUnitConverter(row.Gid, unit).to_double();
  if (own_factor == 0) ado::raise(ado::error::division_by_zero);
  return {ado::to_single(static_cast<double>(row.Qty) * factor / own_factor), unit};
}

StockRow stored_row(const ado::Recordset& set) {
  StockRow row;
  row.Gid = set.value("GId").joined_text();
  row.Class = set.value("Class").joined_text();
  row.Model1 = set.value("Model1").joined_text();
  row.Model2 = set.value("Model2").joined_text();
  row.Unit = set.value("unit").joined_text();
  const Value& quantity = set.value("qty");
  if (!quantity.is_null()) row.Qty = quantity.as_single();
  row.Receiver = set.value("Receiver").joined_text();
  row.Supplier = set.value("Supplier").joined_text();
  return row;
}

}  // namespace

Long StockPoster::post(const StockRow& row, Movement movement) noexcept {
  return trap([&] {
    const auto& warehouse = movement == Movement::receipt ? row.Receiver : row.Supplier;
    const auto [quantity, unit] = base_quantity(row);
    const auto set = ado::execute(
        ADOConn, sql("select * from Inventory where WID={} and GId={} and Model1={} and Model2={} and Status={}",
                     warehouse, row.Gid, row.Model1, row.Model2, stock_status::sound));
    if (set.at_end()) {
      const bool receipt = movement == Movement::receipt;
      ado::execute(ADOConn,
                   sql("insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) "
                       "values({},{},{},{},{},{},{},{},{},{},{})",
                       warehouse, row.Gid, row.Model1, row.Model2, stock_status::sound, row.Class, unit,
                       receipt ? quantity : 0.0F, receipt ? 0.0F : quantity, receipt ? quantity : -quantity, ""));
    } else if (movement == Movement::receipt) {
      ado::execute(ADOConn, sql("update Inventory set InQty = InQty + {},CurrentQty = CurrentQty+{} where WID={} and "
                                "GId={} and Model1={} and Model2={} and Status={}",
                                quantity, quantity, warehouse, row.Gid, row.Model1, row.Model2, stock_status::sound));
    } else {
      ado::execute(ADOConn, sql("update Inventory set OutQty = OutQty + {},CurrentQty = CurrentQty-{} where WID={} and "
                                "GId={} and Model1={} and Model2={} and Status={}",
                                quantity, quantity, warehouse, row.Gid, row.Model1, row.Model2, stock_status::sound));
    }
  });
}

Long StockPoster::undo(std::string_view bill_id, Movement movement) noexcept {
  return trap([&] {
    auto set = ado::execute(ADOConn, sql("select * from StockBillItems where BillId={}", bill_id));
    for (; !set.at_end(); set.MoveNext()) {
      const StockRow row = stored_row(set);
      const Single quantity = base_quantity(row).quantity;
      if (movement == Movement::receipt) {
        ado::execute(ADOConn,
                     sql("update Inventory set InQty = InQty - {},CurrentQty = CurrentQty-{} where WID={} and GId={} "
                         "and Model1={} and Model2={} and Status={}",
                         quantity, quantity, row.Receiver, row.Gid, row.Model1, row.Model2, stock_status::sound));
      } else {
        ado::execute(ADOConn,
                     sql("update Inventory set OutQty = OutQty - {},CurrentQty = CurrentQty+{} where WID={} and GId={} "
                         "and Model1={} and Model2={} and Status={}",
                         quantity, quantity, row.Supplier, row.Gid, row.Model1, row.Model2, stock_status::sound));
      }
    }
  });
}

void StockPoster::PostStockIn(const StockRow& row, bool, Long& result) noexcept {
  result = post(row, Movement::receipt);
}

void StockPoster::UndoStockIn(std::string_view bill_id, std::string_view, bool, bool, Long& result) noexcept {
  result = undo(bill_id, Movement::receipt);
}

void StockPoster::UndoStockOut(std::string_view bill_id, bool, bool, Long& result) noexcept {
  result = undo(bill_id, Movement::issue);
}

void StockPoster::PostStockOut(const StockRow& row, bool, bool, Long& result) noexcept {
  result = post(row, Movement::issue);
}

void StockPoster::PostLoss(const StockRow& row, Long, Long& result) noexcept { result = post(row, Movement::issue); }

void StockPoster::UndoLoss(std::string_view bill_id, Long& result) noexcept { result = undo(bill_id, Movement::issue); }

void StockPoster::PostOverflow(const StockRow& row, Long, Long& result) noexcept {
  result = post(row, Movement::receipt);
}

void StockPoster::UndoOverflow(std::string_view bill_id, Long& result) noexcept {
  result = undo(bill_id, Movement::receipt);
}

void StockPoster::PostSalesReturn(const StockRow& row, Long& result) noexcept { result = post(row, Movement::receipt); }

void StockPoster::UndoSalesReturn(std::string_view bill_id, Long& result) noexcept {
  result = undo(bill_id, Movement::receipt);
}

}  // namespace brunvik
