#include "brunvik/stock/zero_cost_issues.h"

#include "brunvik/ado/or_zero.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

void update_zero_cost_issues(const ado::ConnectionReference& connection, std::string_view goods,
                             const std::function<void(std::string statement)>& run_update) {
  if (goods.empty()) return;
  auto set = ado::execute(
      connection,
      sql("select StockBillItems.*,Goods.AverageCost from (StockBillItems left join Goods ON StockBillItems.GId = "
          "Goods.ID) left JOIN StockBill ON StockBillItems.BillId = StockBill.Id where StockBill.Status=3 and "
          "StockBillItems.cost=0  and stockBillItems.ActualQty<>0 and (StockBill.type=5 or StockBill.type=4) and "
          "StockBillItems.Gid={}",
          goods),
      ado::Road::bill);
  for (; !set.at_end(); set.MoveNext()) {
    const std::string goods_id = set.value("GId").joined_text();
    const Money factor = GoodsUnitConverter(goods_id, set.value("Unit").joined_text());
    const Money quantity = Money::from_double(factor.to_double() * set.value("ActualQty").as_double());
    const Money cost = quantity * ado::money_or_zero(set.value("AverageCost"));
    const Value& bill = set.value("BillId");
    run_update(sql("update StockBillItems set Cost={} where Gid={} and RowNum={} and BillId={}", cost, goods_id,
                   set.value("RowNum"), bill));
    run_update(sql("update StockBill set BillCost=BillCost+{} where id={}", cost, bill));
  }
}

}  // namespace brunvik
