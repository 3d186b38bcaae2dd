#include "brunvik/stock/stock_balance.h"

#include "brunvik/foundation/sql_text.h"

namespace brunvik {

std::string insert_balance(const StockBalance& balance) {
  return sql(
      "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) "
      "values({},{},{},{},{},{},{},{},{},{},{})",
      balance.warehouse, balance.goods, balance.model1, balance.model2, balance.state, balance.goods_class,
      balance.unit, balance.in, balance.out, balance.on_hand.value_or(balance.in - balance.out), "");
}

}  // namespace brunvik
