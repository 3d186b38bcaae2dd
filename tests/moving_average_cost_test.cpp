#include "brunvik/stock/moving_average_cost.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "brunvik/billframe/stock_row.h"
#include "tests/support/apartment.h"
#include "tests/support/goods.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using Texts = std::vector<std::string>;
using test::table;

Money money(const char* text) { return Money::parse(text); }

const std::string position_of_g1 =
    "select goods.AverageCost,sum(Inventory.CurrentQty) as qty from goods left join Inventory on "
    "(goods.id=Inventory.gid and goods.class=Inventory.class and goods.model1=Inventory.model1 and "
    "goods.model2=Inventory.model2)  where goods.id='g1' and goods.class='五金' and goods.model1='m6' and "
    "goods.model2='镀锌' group by goods.AverageCost";

class MovingAverageCost : public ::testing::Test {
 protected:
  // The goods g1 stand at this average, with this quantity in their own unit 个; the row comes in 箱.
  void stock(const Value& average, const Value& quantity, const char* own_factor = "1", const char* row_factor = "1") {
    connection->answer("select goods.AverageCost", table({"AverageCost", "qty"}, {{average, quantity}}));
    connection->answer("select * from goods", test::goods("g1", "个"));
    connection->answer("Unit='个'", test::factor(money(own_factor)));
    connection->answer("Unit='箱'", test::factor(money(row_factor)));
  }

  std::string audit(Single quantity, const char* price, const char* delta = "-1") {
    return AuditUpdateAverageCost("g1", "箱", "五金", "m6", "镀锌", quantity, money(price), money(delta)).text();
  }
  std::string undo(Single quantity, const char* price, const char* delta = "-1") {
    return UndoAuditUpdateAverageCost("g1", "箱", "五金", "m6", "镀锌", quantity, money(price), money(delta)).text();
  }

  // The average that was written last, "nothing" where none was.
  std::string written() const {
    for (auto statement = connection->statements.rbegin(); statement != connection->statements.rend(); ++statement) {
      if (!statement->starts_with("UPDATE GOODS SET AVERAGECOST=")) continue;
      return statement->substr(29, statement->find(' ', 29) - 29);
    }
    return "nothing";
  }

  std::shared_ptr<test::ScriptedConnection> connection = std::make_shared<test::ScriptedConnection>();
  test::Session guard{connection};
  test::NoticeRecorder host;
};

class AuditUpdateAverageCostTest : public MovingAverageCost {};
class UndoAuditUpdateAverageCostTest : public MovingAverageCost {};
class CostStatements : public MovingAverageCost {};
class CalcBillCostTest : public MovingAverageCost {};

TEST_F(AuditUpdateAverageCostTest, Runs_its_statements_in_order) {
  stock(money("10"), 10);
  EXPECT_EQ(audit(5, "13"), "11");  // (10 x 10 + 5 x 13) / 15
  EXPECT_EQ(connection->statements,
            (Texts{position_of_g1, "select * from goods where id='g1'",
                   "select id,Unit,UnitConverter from GoodsUnit where id='g1' and Unit='个'",
                   "select id,Unit,UnitConverter from GoodsUnit where id='g1' and Unit='箱'",
                   "UPDATE GOODS SET AVERAGECOST=11 WHERE GOODS.ID='G1' AND GOODS.CLASS='五金' AND GOODS.MODEL1='M6' "
                   "AND GOODS.MODEL2='镀锌'"}));
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(AuditUpdateAverageCostTest, The_first_receipt_takes_the_price) {
  stock(money("0"), ado::Null());
  EXPECT_EQ(audit(2, "10.5"), "10.5");
  EXPECT_EQ(written(), "10.5");
  stock(money("7"), 0);
  EXPECT_EQ(audit(0.3333F, "0.0005"), "0.0005");  // no quotient: 0.0002 / 0.3333 would be 0.0006
}

TEST_F(AuditUpdateAverageCostTest, The_quotient_is_rounded_to_four_places) {
  stock(money("10"), 3);
  EXPECT_EQ(audit(4, "10.01"), "10.0057");  // 70.04 / 7 = 10.005714...
  EXPECT_EQ(written(), "10.0057");
}

TEST_F(AuditUpdateAverageCostTest, A_quotient_in_the_middle_goes_to_the_even_digit) {
  stock(money("0.0125"), 2);
  EXPECT_EQ(audit(2, "0.05"), "0.0312");  // 0.125 / 4 = 0.03125
  stock(money("0.0375"), 2);
  EXPECT_EQ(audit(2, "0.15"), "0.0938");  // 0.375 / 4 = 0.09375
}

TEST_F(AuditUpdateAverageCostTest, The_quantity_of_a_larger_unit_is_converted_and_its_price_is_not) {
  stock(money("10"), 24, "1", "12");
  EXPECT_EQ(audit(2, "120"), "65");  // (10 x 24 + 24 x 120) / 48
}

TEST_F(AuditUpdateAverageCostTest, The_stock_is_converted_by_the_factor_of_the_goods_own_unit) {
  stock(money("10"), 2, "12", "1");
  EXPECT_EQ(audit(8, "14"), "11");  // (10 x 24 + 8 x 14) / 32
}

TEST_F(AuditUpdateAverageCostTest, Where_the_stock_was_below_zero_the_price_is_the_new_average) {
  stock(money("10"), -3);
  EXPECT_EQ(audit(5, "7"), "7");
  stock(money("10"), -5);
  EXPECT_EQ(audit(5, "8"), "8");
  stock(money("10"), -9);
  EXPECT_EQ(audit(5, "9"), "9");
  EXPECT_EQ(written(), "9");
}

TEST_F(AuditUpdateAverageCostTest, A_receipt_of_a_negative_quantity_that_empties_the_stock_takes_the_price) {
  stock(money("10"), 5);
  EXPECT_EQ(audit(-5, "7"), "7");
}

TEST_F(AuditUpdateAverageCostTest, Quantities_are_taken_to_four_places) {
  stock(money("3"), 0.30000001192092896);  // a sum of singles
  EXPECT_EQ(audit(0.1F, "7"), "4");        // (3 x 0.3 + 0.1 x 7) / 0.4
  stock(money("4"), 1);
  EXPECT_EQ(audit(0.00003F, "1000000"), "4");  // no ten-thousandth of a unit
  stock(money("0"), 1);
  EXPECT_EQ(audit(0.03125F, "1"), "0.0303");  // 0.0312 / 1.0312
}

TEST_F(AuditUpdateAverageCostTest, A_cost_is_spread_over_the_stock_without_converting_the_unit) {
  stock(money("10"), 10, "1", "12");
  EXPECT_EQ(audit(2, "99", "1.5"), "10.3");  // (10 x 10 + 2 x 1.5) / 10
  EXPECT_EQ(written(), "10.3");
  for (const std::string& statement : connection->statements) EXPECT_EQ(statement.find("Unit='箱'"), std::string::npos);
}

TEST_F(AuditUpdateAverageCostTest, Any_delta_not_above_zero_is_an_ordinary_receipt) {
  for (const char* delta : {"0", "-0.0001", "-1", "-500"}) {
    stock(money("10"), 10);
    EXPECT_EQ(audit(5, "13", delta), "11") << delta;
  }
}

TEST_F(AuditUpdateAverageCostTest, A_cost_spread_over_no_stock_is_a_division_by_zero) {
  stock(money("10"), 0);
  EXPECT_EQ(audit(2, "99", "1.5"), "11");
  EXPECT_EQ(written(), "nothing");
  EXPECT_EQ(host.notices, Texts{"提示信息|AuditUpdateAverageCost():除数为零"});
}

TEST_F(AuditUpdateAverageCostTest, A_null_average_is_error_94_and_the_average_stays) {
  stock(ado::Null(), 10);
  EXPECT_EQ(audit(5, "13"), "94");
  EXPECT_EQ(written(), "nothing");
  EXPECT_EQ(host.notices, Texts{"提示信息|AuditUpdateAverageCost():无效使用 Null"});
}

TEST_F(AuditUpdateAverageCostTest, An_overflow_is_error_6_and_the_average_stays) {
  stock(money("1000000000"), 1'000'000);
  EXPECT_EQ(audit(5, "13"), "6");
  EXPECT_EQ(written(), "nothing");
  EXPECT_EQ(host.notices, Texts{"提示信息|AuditUpdateAverageCost():溢出"});
}

TEST_F(AuditUpdateAverageCostTest, An_unknown_key_gives_zero_and_writes_nothing) {
  EXPECT_EQ(audit(5, "13"), "0");
  EXPECT_EQ(connection->statements, Texts{position_of_g1});
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(AuditUpdateAverageCostTest, A_goods_record_that_cannot_be_loaded_gives_zero_and_writes_nothing) {
  connection->answer("select goods.AverageCost", table({"AverageCost", "qty"}, {{money("10"), 10}}));
  connection->fail("select * from goods", ado::error::timed_out, "busy");
  EXPECT_EQ(audit(5, "13"), "0");
  EXPECT_EQ(connection->statements.size(), 2U);
  EXPECT_EQ(host.notices, Texts{"提示信息|GetGoodsById():busy"});
}

TEST_F(AuditUpdateAverageCostTest, A_failed_statement_gives_its_number_as_if_it_were_a_cost) {
  connection->fail("select goods.AverageCost", ado::error::statement_refused, "refused");
  EXPECT_EQ(audit(5, "13"), "-2147217900");
  EXPECT_EQ(host.notices, Texts{"提示信息|AuditUpdateAverageCost():refused"});
}

TEST_F(AuditUpdateAverageCostTest, An_average_that_cannot_be_written_is_told_and_given_all_the_same) {
  stock(money("10"), 10);
  connection->fail("UPDATE GOODS", ado::error::timed_out, "busy");
  EXPECT_EQ(audit(5, "13"), "11");
  EXPECT_EQ(host.notices, Texts{"提示信息|ExecuteNonQuerySql():busy"});
}

TEST_F(AuditUpdateAverageCostTest, Without_a_session_connection_it_gives_error_91) {
  session().ADOConn = nullptr;
  EXPECT_EQ(audit(5, "13"), "91");
  EXPECT_EQ(host.notices, Texts{"提示信息|AuditUpdateAverageCost():对象变量或 With 块变量未设置"});
}

TEST_F(UndoAuditUpdateAverageCostTest, Takes_the_receipt_out_of_the_average_again) {
  stock(money("11"), 15);
  EXPECT_EQ(undo(5, "13"), "10");  // (11 x 15 - 5 x 13) / 10
  EXPECT_EQ(connection->statements,
            (Texts{position_of_g1, "select * from goods where id='g1'",
                   "select id,Unit,UnitConverter from GoodsUnit where id='g1' and Unit='个'",
                   "select id,Unit,UnitConverter from GoodsUnit where id='g1' and Unit='箱'",
                   "UPDATE GOODS SET AVERAGECOST=10 WHERE GOODS.ID='G1' AND GOODS.CLASS='五金' AND GOODS.MODEL1='M6' "
                   "AND GOODS.MODEL2='镀锌'"}));
}

TEST_F(UndoAuditUpdateAverageCostTest, Where_nothing_is_left_the_average_stays_and_is_written_all_the_same) {
  stock(money("11"), 5);
  EXPECT_EQ(undo(5, "13"), "11");
  EXPECT_EQ(written(), "11");
  connection->statements.clear();
  stock(money("11.5"), 3);
  EXPECT_EQ(undo(5, "13"), "11.5");
  EXPECT_EQ(written(), "11.5");
  stock(money("12.5"), ado::Null());
  EXPECT_EQ(undo(5, "13"), "12.5");
  EXPECT_EQ(written(), "12.5");
}

TEST_F(UndoAuditUpdateAverageCostTest, Converts_the_quantity_and_not_the_price) {
  stock(money("65"), 48, "1", "12");
  EXPECT_EQ(undo(2, "120"), "10");  // (65 x 48 - 24 x 120) / 24
}

TEST_F(UndoAuditUpdateAverageCostTest, Takes_a_spread_cost_back_without_converting_the_unit) {
  stock(money("10.3"), 10, "1", "12");
  EXPECT_EQ(undo(2, "99", "1.5"), "10");
  stock(money("10"), ado::Null());
  EXPECT_EQ(undo(2, "99", "1.5"), "11");
  EXPECT_EQ(host.notices, Texts{"提示信息|UndoAuditUpdateAverageCost():除数为零"});
}

TEST_F(UndoAuditUpdateAverageCostTest, Tells_its_errors_under_its_own_name) {
  stock(ado::Null(), 10);
  EXPECT_EQ(undo(5, "13"), "94");
  stock(money("1000000000"), 1'000'000);
  EXPECT_EQ(undo(5, "13"), "6");
  connection->fail("select goods.AverageCost", ado::error::timed_out, "busy");
  EXPECT_EQ(undo(5, "13"), "-2147217871");
  EXPECT_EQ(written(), "nothing");
  EXPECT_EQ(host.notices,
            (Texts{"提示信息|UndoAuditUpdateAverageCost():无效使用 Null", "提示信息|UndoAuditUpdateAverageCost():溢出",
                   "提示信息|UndoAuditUpdateAverageCost():busy"}));
}

TEST_F(UndoAuditUpdateAverageCostTest, An_unknown_key_gives_zero_and_writes_nothing) {
  EXPECT_EQ(undo(5, "13"), "0");
  EXPECT_EQ(connection->statements, Texts{position_of_g1});
}

TEST_F(CostStatements, GetAverageCost_reads_the_stored_average) {
  connection->answer("select AverageCost", table({"AverageCost"}, {{money("12.3456")}}));
  EXPECT_EQ(GetAverageCost("G'1", "五金", "M6", "镀锌"), money("12.3456"));
  EXPECT_EQ(connection->statements, Texts{"select AverageCost from goods  where id='G''1' and class='五金' and "
                                          "model1='M6' and model2='镀锌'"});
  EXPECT_EQ(GetAverageCost("G9", "", "", ""), Money());
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(CostStatements, GetAverageCost_gives_an_errors_number) {
  connection->answer("select AverageCost", table({"AverageCost"}, {{ado::Null()}}));
  EXPECT_EQ(GetAverageCost("G1", "", "", ""), money("94"));
  connection->fail("select AverageCost", ado::error::timed_out, "busy");
  EXPECT_EQ(GetAverageCost("G1", "", "", ""), money("-2147217871"));
  EXPECT_EQ(host.notices, (Texts{"提示信息|GetAverageCost():无效使用 Null", "提示信息|GetAverageCost():busy"}));
}

TEST_F(CostStatements, UpdateBillItemCost_writes_one_row_of_a_bill) {
  UpdateBillItemCost("B'1", 3, money("12.50"), money("0"));
  EXPECT_EQ(connection->statements,
            Texts{"Update StockBillItems set cost=12.5,ShareCost=0 where BillId='B''1' and RowNum=3"});
  connection->fail("StockBillItems", ado::error::timed_out, "busy");
  UpdateBillItemCost("B1", 3, money("1"), money("2"));
  EXPECT_EQ(host.notices, Texts{"提示信息|UpdateBillItemCost():busy"});
}

TEST_F(CostStatements, UpdateBillCost_writes_the_bill_of_a_type) {
  UpdateBillCost("B'1", 5, money("-0.25"));
  EXPECT_EQ(connection->statements, Texts{"Update StockBill set BillCost=-0.25 where Id='B''1' and Type=5"});
  connection->fail("StockBill", ado::error::timed_out, "busy");
  UpdateBillCost("B1", 5, money("1"));
  EXPECT_EQ(host.notices, Texts{"提示信息|UpdateBillCost():busy"});
}

TEST_F(CalcBillCostTest, Adds_the_costs_of_the_rows) {
  Collection<StockRow> rows;
  EXPECT_EQ(CalcBillCost(rows, -1), Money());
  rows.add().Cost = money("0.1");
  rows.add().Cost = money("0.2");
  rows.add().Cost = money("-10");
  EXPECT_EQ(CalcBillCost(rows, -1), money("-9.7"));
  EXPECT_EQ(CalcBillCost(rows, 2), money("-9.7"));
}

TEST_F(CalcBillCostTest, The_count_reports_have_rows_of_their_own_class) {
  Collection<CountRow> rows;
  rows.add().Cost = money("3");
  rows.add().Cost = money("4");
  EXPECT_EQ(CalcBillCost(rows, 8), money("7"));
  EXPECT_EQ(CalcBillCost(rows, 9), money("7"));
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(CalcBillCostTest, A_row_of_another_class_is_error_13) {
  Collection<StockRow> rows;
  rows.add().Cost = money("3");
  EXPECT_EQ(CalcBillCost(rows, 8), money("13"));
  EXPECT_EQ(host.notices, Texts{"提示信息|CalcBillCost():类型不匹配"});
}

TEST_F(CalcBillCostTest, An_overflow_is_error_6) {
  Collection<StockRow> rows;
  rows.add().Cost = money("900000000000000");
  rows.add().Cost = money("900000000000000");
  EXPECT_EQ(CalcBillCost(rows, -1), money("6"));
  EXPECT_EQ(host.notices, Texts{"提示信息|CalcBillCost():溢出"});
}

}  // namespace
}  // namespace brunvik
