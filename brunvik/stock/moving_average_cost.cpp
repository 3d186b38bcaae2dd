#include "brunvik/stock/moving_average_cost.h"

#include <optional>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/or_zero.h"
#include "brunvik/billframe/stock_row.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/Declare_EnumType.h"
#include "brunvik/foundation/FenwerkOPT_Function.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

inline namespace SqlOPT_Function {

namespace {

struct GoodsKey {
  std::string_view id, goods_class, model1, model2;
};

struct StockPosition {
  Value average;
  Money quantity;
};

// Where the goods stand: empty for an unknown key, and where the goods record can't be loaded.
std::optional<StockPosition> stock_position(const GoodsKey& key) {
  const auto set =
      ado::execute(session().ADOConn,
                   sql("select goods.AverageCost,sum(Inventory.CurrentQty) as qty from goods left join Inventory on "
                       "(goods.id=Inventory.gid and goods.class=Inventory.class and goods.model1=Inventory.model1 and "
                       "goods.model2=Inventory.model2)  where goods.id={} and goods.class={} and goods.model1={} and "
                       "goods.model2={} "
                       "group by goods.AverageCost",
                       key.id, key.goods_class, key.model1, key.model2));
  if (set.at_end()) return std::nullopt;
  GoodsRecord goods;
  if (GetGoodsById(key.id, goods) != 0) return std::nullopt;
  const Money on_hand = ado::money_or_zero(set.value("qty"));
  return StockPosition{set.value("AverageCost"), on_hand * GoodsUnitConverter(key.id, goods.Unit)};
}

Money in_base_units(const GoodsKey& key, std::string_view unit, Single quantity) {
  return Money::from_double(GoodsUnitConverter(key.id, unit).to_double() * static_cast<double>(quantity));
}

Money quotient(Money dividend, Money divisor) {
  if (divisor.is_zero()) ado::raise(ado::error::division_by_zero);
  return Money::from_double(dividend.to_double() / divisor.to_double());
}

void write_average(const GoodsKey& key, Money average) {
  std::string statement = sql(
      "update goods set AverageCost={} where goods.id={} and goods.class={} and goods.model1={} and goods.model2={}",
      average, key.id, key.goods_class, key.model1, key.model2);
  ExecuteNonQuerySql(statement);
}

// What stands in for a cost that couldn't be worked out: the number of the error, as an amount.
Money cost_of_failure(Long number) { return Money::from_whole(number); }

template <class Body>
Money trapped_cost(std::string_view tag, Body&& body) {
  Money cost;
  const Long failure = trap(tag, [&] { cost = body(); });
  return failure == 0 ? cost : cost_of_failure(failure);
}

// Both procedures: `average_of` works the new average out of the position.
template <class Average>
Money change_average(std::string_view tag, const GoodsKey& key, Average&& average_of) {
  return trapped_cost(tag, [&]() -> Money {
    const auto position = stock_position(key);
    if (!position) return {};
    const Money average = average_of(*position);
    write_average(key, average);
    return average;
  });
}

}  // namespace

Money AuditUpdateAverageCost(std::string_view GoodsId, std::string_view Unit, std::string_view Class,
                             std::string_view Model1, std::string_view Model2, Single Qty, Money Price,
                             Money CostDelta) {
  const GoodsKey key{GoodsId, Class, Model1, Model2};
  return change_average("AuditUpdateAverageCost():", key, [&](const StockPosition& stock) {
    if (CostDelta > Money()) {
      const Money added = Money::from_double(Qty);
      return quotient(stock.average.as_money() * stock.quantity + added * CostDelta, stock.quantity);
    }
    const Money received = in_base_units(key, Unit, Qty);
    if ((stock.quantity + received).is_zero() || stock.quantity <= Money()) return Price;
    return quotient(stock.average.as_money() * stock.quantity + received * Price, stock.quantity + received);
  });
}

Money UndoAuditUpdateAverageCost(std::string_view GoodsId, std::string_view Unit, std::string_view Class,
                                 std::string_view Model1, std::string_view Model2, Single Qty, Money Price,
                                 Money CostDelta) {
  const GoodsKey key{GoodsId, Class, Model1, Model2};
  return change_average("UndoAuditUpdateAverageCost():", key, [&](const StockPosition& stock) {
    const Money average = stock.average.as_money();
    if (CostDelta > Money()) {
      const Money taken = Money::from_double(Qty);
      return quotient(average * stock.quantity - taken * CostDelta, stock.quantity);
    }
    const Money taken = in_base_units(key, Unit, Qty);
    if (stock.quantity - taken <= Money()) return average;
    return quotient(average * stock.quantity - taken * Price, stock.quantity - taken);
  });
}

Money GetAverageCost(std::string_view GoodsId, std::string_view Class, std::string_view Model1,
                     std::string_view Model2) {
  return trapped_cost("GetAverageCost():", [&]() -> Money {
    const auto set = ado::execute(
        session().ADOConn, sql("select AverageCost from goods  where id={} and class={} and model1={} and model2={}",
                               GoodsId, Class, Model1, Model2));
    return set.at_end() ? Money() : set.value("AverageCost").as_money();
  });
}

void UpdateBillItemCost(std::string_view BillId, Integer RowNum, Money Cost, Money ShareCost) {
  trap("UpdateBillItemCost():", [&] {
    ado::execute(session().ADOConn, sql("Update StockBillItems set cost={},ShareCost={} where BillId={} and RowNum={}",
                                        Cost, ShareCost, BillId, RowNum));
  });
}

Money CalcBillCost(const RowCollection& Rows, Integer Type) {
  return trapped_cost("CalcBillCost():", [&] {
    const bool count_report = Type == bill_type::overage_report || Type == bill_type::loss_report;
    Money sum;
    for (std::size_t position = 1; position <= Rows.Count(); ++position) {
      const PublicObject& row = Rows.at(position);
      const auto* stock_row = count_report ? dynamic_cast<const CountRow*>(&row) : dynamic_cast<const StockRow*>(&row);
      if (!stock_row) ado::raise(ado::error::type_mismatch);
      sum += stock_row->Cost;
    }
    return sum;
  });
}

void UpdateBillCost(std::string_view BillId, Long Type, Money BillCost) {
  trap("UpdateBillCost():", [&] {
    ado::execute(session().ADOConn,
                 sql("Update StockBill set BillCost={} where Id={} and Type={}", BillCost, BillId, Type));
  });
}

}  // namespace SqlOPT_Function

}  // namespace brunvik
