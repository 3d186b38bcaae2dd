#include "brunvik/stock/StockPoster.h"

#include "brunvik/ado/errors.h"
#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/FenwerkOPT_Function.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/stock/stock_balance.h"

namespace brunvik {

namespace {

// A quantity of one stock balance, in the unit that the balance is kept in.
struct BaseQuantity {
  Single quantity;
  std::string unit;
};

BaseQuantity base_quantity(std::string_view goods_id, std::string_view row_unit, Single quantity) {
  GoodsRecord goods;
  stop_unless_done(GetGoodsById(goods_id, goods));
  // Goods without a unit of their own, or without a record, are kept in the unit that they first moved in.
  const std::string unit = goods.Unit.empty() ? std::string(row_unit) : goods.Unit;
  const double factor = GoodsUnitConverter(goods_id, row_unit).to_double();
  const double own_factor = GoodsUnitConverter(goods_id, unit).to_double();
  if (own_factor == 0) ado::raise(ado::error::division_by_zero);
  return {ado::to_single(static_cast<double>(quantity) * factor / own_factor), unit};
}

}  // namespace

void StockPoster::post(const MovedGoods& goods) const {
  const auto& [direction, warehouse, id, goods_class, model1, model2, row_unit, row_quantity, state] = goods;
  const auto [quantity, unit] = base_quantity(id, row_unit, row_quantity);
  const bool in = direction == Direction::in;
  const auto set = ado::execute(
      ADOConn, sql("select * from Inventory where WID={} and GId={} and Model1={} and Model2={} and Status={}",
                   warehouse, id, model1, model2, state));
  if (set.at_end()) {
    ado::execute(ADOConn, insert_balance({warehouse, id, model1, model2, state, goods_class, unit, in ? quantity : 0.0F,
                                          in ? 0.0F : quantity}));
  } else if (in) {
    ado::execute(ADOConn, sql("update Inventory set InQty = InQty + {},CurrentQty = CurrentQty+{} where WID={} and "
                              "GId={} and Model1={} and Model2={} and Status={}",
                              quantity, quantity, warehouse, id, model1, model2, state));
  } else {
    ado::execute(ADOConn, sql("update Inventory set OutQty = OutQty + {},CurrentQty = CurrentQty-{} where WID={} and "
                              "GId={} and Model1={} and Model2={} and Status={}",
                              quantity, quantity, warehouse, id, model1, model2, state));
  }
}

void StockPoster::undo(const MovedGoods& goods) const {
  const auto& [direction, warehouse, id, goods_class, model1, model2, row_unit, row_quantity, state] = goods;
  const Single quantity = base_quantity(id, row_unit, row_quantity).quantity;
  if (direction == Direction::in) {
    ado::execute(ADOConn, sql("update Inventory set InQty = InQty - {},CurrentQty = CurrentQty-{} where WID={} and "
                              "GId={} and Model1={} and Model2={} and Status={}",
                              quantity, quantity, warehouse, id, model1, model2, state));
  } else {
    ado::execute(ADOConn, sql("update Inventory set OutQty = OutQty - {},CurrentQty = CurrentQty+{} where WID={} and "
                              "GId={} and Model1={} and Model2={} and Status={}",
                              quantity, quantity, warehouse, id, model1, model2, state));
  }
}

const StockPoster& session_poster() {
  if (!session().StockPoster) ado::raise(ado::error::object_not_set);
  return *session().StockPoster;
}

}  // namespace brunvik
