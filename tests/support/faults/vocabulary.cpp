#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

const std::vector<PostedRow>& both_rows() {
  static const std::vector<PostedRow> rows{{"G1", "个", "箱", true}, {"G2", "只", "盒", false}};
  return rows;
}

Step factor(const std::string& unit) {
  return holding("Unit='" + unit + "'", goes_on("GoodsUnitConverter():", "session|select id,Unit,UnitConverter from "));
}

Steps average(const std::string& procedure, const PostedRow& row) {
  const std::string rest = "average of " + row.goods;
  return {goes_on(procedure + "():", "session|select goods.AverageCost,sum(", {rest}),
          named(rest, goes_on("GetGoodsById():", "session|select * from goods where id=", {rest})),
          named(rest, factor(row.own_unit)), named(rest, factor(row.unit)),
          named(rest, goes_on("ExecuteNonQuerySql():", "session|UPDATE GOODS SET AVERAGECOST="))};
}

Step average_read() { return goes_on("GetAverageCost():", "session|select AverageCost from goods  where "); }

Step row_cost() { return goes_on("UpdateBillItemCost():", "session|Update StockBillItems set cost="); }

Step bill_cost() { return goes_on("UpdateBillCost():", "session|Update StockBill set BillCost="); }

Step setting(const std::string& key, std::vector<std::string> skips) {
  Step step = goes_on("", "session|select * from BasicConfig where keyname='" + key + "'", std::move(skips));
  step.notice = "错误信息|GetKeyValue():";
  return step;
}

Step truth_setting(const std::string& key, const std::string& tag) {
  Step step = ending_with(13, setting(key));
  if (!tag.empty()) step.further_notice = "提示信息|" + tag + "类型不匹配";
  return step;
}

Step next_number() { return goes_on("Get_BillMaxId():", "session|select max(ID)  from "); }

Steps base_quantity(const PostedRow& row) {
  return {ends_telling("GetGoodsById():", "session|select * from goods where id="), factor(row.unit),
          ending_with(11, factor(row.own_unit))};
}

Steps post(const PostedRow& row) {
  return base_quantity(row) +
         Steps{ends("session|select * from Inventory where "),
               ends(row.has_balance ? "session|update Inventory set " : "session|insert into Inventory(")};
}

Steps undo_post(const std::vector<PostedRow>& rows) {
  Steps steps{ends("session|select * from StockBillItems where BillId=")};
  for (const PostedRow& row : rows) {
    steps = steps + base_quantity(row) + Steps{ends("session|update Inventory set ")};
  }
  return steps;
}

Steps undo_post_ignored() {
  Steps steps = undo_post();
  for (Step& step : steps) {
    if (step.ends) step.result = 0;
  }
  return steps;
}

Steps apart(const std::string& name, Steps steps, bool result) {
  for (Step& step : steps) {
    step.name = name;
    if (!step.ends) continue;
    step.ends = false;
    if (!result) step.result = 0;
    step.skips = {name};
  }
  return steps;
}

Step header_read() { return ends("bill|select * from StockBill where Id="); }
Step rows_read() { return ends("bill|select StockBillItems.*,warehouse.WName from StockBillItems "); }
Step rows_removed() { return ends("bill|delete from StockBillItems where BillId="); }
Step header_removed() { return ends("bill|delete from stockbill where Id="); }
Step marked() { return ends("bill|update stockbill set Status="); }

}  // namespace brunvik::test
