#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "brunvik/foundation/error_trap.h"
#include "brunvik/stock/StockPoster.h"
#include "tests/support/apartment.h"
#include "tests/support/goods.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using Texts = std::vector<std::string>;
using test::table;

const std::string balance_of_w1 =
    "select * from Inventory where WID='W1' and GId='G1' and Model1='M6' and Model2='镀锌' and Status=0";
const std::string balance_of_w2 =
    "select * from Inventory where WID='W2' and GId='G1' and Model1='M6' and Model2='镀锌' and Status=0";

class StockPosterTest : public ::testing::Test {
 protected:
  StockPosterTest() {
    row.BillId = "B1";
    row.Gid = "G1";
    row.Class = "五金";
    row.Model1 = "M6";
    row.Model2 = "镀锌";
    row.Unit = "箱";
    row.Qty = 2;
    row.Actualqty = 7;
    row.Receiver = "W1";
    row.Supplier = "W2";
  }

  // The goods are kept in one unit, the row is in another; what the database says of their factors.
  void goods_kept_in(const std::string& unit) { connection->answer("from goods", test::goods("G1", unit)); }
  void factor_of(const std::string& unit, const Value& factor) {
    connection->answer("Unit='" + unit + "'", test::factor(factor));
  }
  void a_balance_is_there() { connection->answer("from Inventory", table({"WID"}, {{"W1"}})); }

  void stored_rows(std::initializer_list<std::vector<Value>> records) {
    connection->answer("from StockBillItems",
                       table({"GId", "Class", "Model1", "Model2", "unit", "qty", "Receiver", "Supplier"}, records));
  }

  // What was sent to the stock balances.
  Texts sent() const {
    Texts texts;
    for (const std::string& statement : connection->statements) {
      if (statement.find("Inventory") != std::string::npos) texts.push_back(statement);
    }
    return texts;
  }

  StockPoster& poster() { return *session().StockPoster; }
  Long post(const Operation<StockRow>& operation) {
    return trap([&] { poster().Post(operation, row); });
  }
  Long undo(const Operation<StockRow>& operation, std::string_view bill_id = "B1") {
    return trap([&] { poster().Undo(operation, bill_id); });
  }

  std::shared_ptr<test::ScriptedConnection> connection = std::make_shared<test::ScriptedConnection>();
  test::Session guard{connection};
  test::NoticeRecorder host;
  StockRow row;
  Long result = 77;
};

TEST_F(StockPosterTest, A_first_receipt_makes_the_balance_in_the_goods_own_unit) {
  goods_kept_in("个");
  factor_of("箱", Money::from_whole(12));
  result = post(operation::StockIn);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(sent(), (Texts{balance_of_w1,
                           "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,"
                           "Remarks) values('W1','G1','M6','镀锌',0,'五金','个',24,0,24,'')"}));
}

TEST_F(StockPosterTest, A_later_receipt_adds_to_the_balance) {
  goods_kept_in("个");
  factor_of("箱", Money::from_whole(12));
  a_balance_is_there();
  result = post(operation::StockIn);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(sent(), (Texts{balance_of_w1,
                           "update Inventory set InQty = InQty + 24,CurrentQty = CurrentQty+24 where WID='W1' and "
                           "GId='G1' and Model1='M6' and Model2='镀锌' and Status=0"}));
}

TEST_F(StockPosterTest, A_first_issue_makes_a_negative_balance) {
  goods_kept_in("个");
  factor_of("箱", Money::from_whole(12));
  result = post(operation::StockOut);
  EXPECT_EQ(result, 0);
  EXPECT_EQ(sent(), (Texts{balance_of_w2,
                           "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,"
                           "Remarks) values('W2','G1','M6','镀锌',0,'五金','个',0,24,-24,'')"}));
}

TEST_F(StockPosterTest, A_later_issue_takes_from_the_balance) {
  goods_kept_in("个");
  factor_of("箱", Money::from_whole(12));
  a_balance_is_there();
  result = post(operation::StockOut);
  EXPECT_EQ(sent(), (Texts{balance_of_w2,
                           "update Inventory set OutQty = OutQty + 24,CurrentQty = CurrentQty-24 where WID='W2' and "
                           "GId='G1' and Model1='M6' and Model2='镀锌' and Status=0"}));
}

TEST_F(StockPosterTest, The_quantity_is_converted_to_a_goods_own_larger_unit) {
  goods_kept_in("箱");
  factor_of("个", Money::from_whole(1));
  factor_of("箱", Money::from_whole(12));
  row.Unit = "个";
  row.Qty = 6;
  result = post(operation::StockIn);
  EXPECT_NE(sent().back().find("'箱',0.5,0,0.5,''"), std::string::npos) << sent().back();
}

TEST_F(StockPosterTest, Goods_that_are_unknown_or_have_no_unit_are_kept_in_the_unit_of_the_row) {
  result = post(operation::StockIn);
  EXPECT_EQ(result, 0);
  EXPECT_NE(sent().back().find("'箱',2,0,2,''"), std::string::npos) << sent().back();
  goods_kept_in("");
  factor_of("箱", Money::from_whole(12));
  factor_of("箱", Money::from_whole(12));
  result = post(operation::StockIn);
  EXPECT_NE(sent().back().find("'箱',2,0,2,''"), std::string::npos) << sent().back();
}

TEST_F(StockPosterTest, The_quantity_asked_for_counts_and_not_the_actual_one) {
  row.Qty = 2.5F;
  result = post(operation::StockIn);
  EXPECT_NE(sent().back().find("2.5,0,2.5"), std::string::npos) << sent().back();
}

TEST_F(StockPosterTest, A_quantity_keeps_the_shortest_text_of_a_single) {
  row.Qty = 0.1F;
  goods_kept_in("个");
  factor_of("箱", Money::from_whole(3));
  a_balance_is_there();
  result = post(operation::StockIn);
  EXPECT_NE(sent().back().find("InQty + 0.3,CurrentQty"), std::string::npos) << sent().back();
}

struct Line {
  const char* name;
  const Operation<StockRow>& operation;
  const char* quantity;
  const char* warehouse;
};

const std::vector<Line>& lines() {
  static const std::vector<Line> lines{
      {"StockIn", operation::StockIn, "InQty", "W1"},
      {"Overflow", operation::Overflow, "InQty", "W1"},
      {"SalesReturn", operation::SalesReturn, "InQty", "W1"},
      {"StockOut", operation::StockOut, "OutQty", "W2"},
      {"Loss", operation::Loss, "OutQty", "W2"},
  };
  return lines;
}

TEST_F(StockPosterTest, Every_post_moves_its_own_warehouse_in_its_own_direction) {
  for (const auto& [name, operation, quantity, warehouse] : lines()) {
    a_balance_is_there();
    EXPECT_EQ(post(operation), 0) << name;
    const std::string sign = std::string(quantity) == "InQty" ? "+" : "-";
    EXPECT_EQ(sent().back(), "update Inventory set " + std::string(quantity) + " = " + quantity +
                                 " + 2,CurrentQty = CurrentQty" + sign + "2 where WID='" + warehouse +
                                 "' and GId='G1' and Model1='M6' and Model2='镀锌' and Status=0")
        << name;
  }
}

TEST_F(StockPosterTest, Every_undo_takes_back_from_its_own_warehouse) {
  for (const auto& [name, operation, quantity, warehouse] : lines()) {
    stored_rows({{"G1", "五金", "M6", "镀锌", "箱", 2, "W1", "W2"}});
    EXPECT_EQ(undo(operation), 0) << name;
    const std::string sign = std::string(quantity) == "InQty" ? "-" : "+";
    EXPECT_EQ(sent().back(), "update Inventory set " + std::string(quantity) + " = " + quantity +
                                 " - 2,CurrentQty = CurrentQty" + sign + "2 where WID='" + warehouse +
                                 "' and GId='G1' and Model1='M6' and Model2='镀锌' and Status=0")
        << name;
  }
}

// A document whose goods leave one warehouse and enter another, in states of their own.
TEST_F(StockPosterTest, An_operation_of_two_movements_carries_out_the_second_behind_the_first) {
  const Operation<StockRow> both{stored_stock_rows,
                                 {Direction::out, &StockRow::Supplier, &StockRow::Qty, Long{1}},
                                 Movement<StockRow>{Direction::in, "W9", &StockRow::Actualqty, &StockRow::GoodStutas}};
  row.GoodStutas = 2;
  EXPECT_EQ(post(both), 0);
  EXPECT_EQ(sent(), (Texts{"select * from Inventory where WID='W2' and GId='G1' and Model1='M6' and Model2='镀锌' "
                           "and Status=1",
                           "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,"
                           "Remarks) values('W2','G1','M6','镀锌',1,'五金','箱',0,2,-2,'')",
                           "select * from Inventory where WID='W9' and GId='G1' and Model1='M6' and Model2='镀锌' "
                           "and Status=2",
                           "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,"
                           "Remarks) values('W9','G1','M6','镀锌',2,'五金','箱',7,0,7,'')"}));
}

TEST_F(StockPosterTest, The_second_movement_is_not_tried_where_the_first_fails) {
  const Operation<StockRow> both{stored_stock_rows, issued, received};
  connection->fail("from Inventory", ado::error::timed_out, "busy");
  EXPECT_EQ(post(both), ado::error::timed_out);
  EXPECT_EQ(sent(), Texts{balance_of_w2});
}

TEST_F(StockPosterTest, One_row_can_be_taken_back_by_itself_without_reading_the_bill) {
  const StockPoster& stock = poster();
  EXPECT_EQ(trap([&] { stock.Undo(operation::StockIn, row); }), 0);
  EXPECT_EQ(sent(), Texts{"update Inventory set InQty = InQty - 2,CurrentQty = CurrentQty-2 where WID='W1' and "
                          "GId='G1' and Model1='M6' and Model2='镀锌' and Status=0"});
  for (const std::string& statement : connection->statements) {
    EXPECT_EQ(statement.find("StockBillItems"), std::string::npos) << statement;
  }
}

TEST_F(StockPosterTest, The_stored_rows_of_a_bill_can_be_posted_too) {
  stored_rows({{"G1", "五金", "M6", "镀锌", "箱", 2, "W1", "W2"}});
  a_balance_is_there();
  EXPECT_EQ(trap([&] { poster().Post(operation::StockOut, "B1"); }), 0);
  EXPECT_EQ(connection->statements.front(), "select * from StockBillItems where BillId='B1'");
  EXPECT_EQ(sent().back(),
            "update Inventory set OutQty = OutQty + 2,CurrentQty = CurrentQty-2 where WID='W2' and "
            "GId='G1' and Model1='M6' and Model2='镀锌' and Status=0");
}

TEST_F(StockPosterTest, An_undo_goes_through_the_stored_rows_of_the_bill_and_makes_no_balance) {
  stored_rows(
      {{"G1", "五金", "M6", "镀锌", "箱", 2, "W1", "W2"}, {"G2", "五金", ado::Null(), "", "只", 0.5, "W3", ""}});
  result = undo(operation::StockIn, "B'1");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(connection->statements.front(), "select * from StockBillItems where BillId='B''1'");
  EXPECT_EQ(sent(), (Texts{"update Inventory set InQty = InQty - 2,CurrentQty = CurrentQty-2 where WID='W1' and "
                           "GId='G1' and Model1='M6' and Model2='镀锌' and Status=0",
                           "update Inventory set InQty = InQty - 0.5,CurrentQty = CurrentQty-0.5 where WID='W3' and "
                           "GId='G2' and Model1='' and Model2='' and Status=0"}));
}

TEST_F(StockPosterTest, An_undo_converts_the_unit_too) {
  stored_rows({{"G1", "五金", "M6", "镀锌", "箱", 2, "W1", "W2"}});
  goods_kept_in("个");
  factor_of("箱", Money::from_whole(12));
  result = undo(operation::Loss, "B1");
  EXPECT_NE(sent().back().find("OutQty - 24,CurrentQty = CurrentQty+24"), std::string::npos) << sent().back();
}

TEST_F(StockPosterTest, An_undo_of_a_bill_without_rows_is_done) {
  result = undo(operation::StockOut, "B1");
  EXPECT_EQ(result, 0);
  EXPECT_EQ(connection->statements, Texts{"select * from StockBillItems where BillId='B1'"});
}

TEST_F(StockPosterTest, A_failed_statement_is_the_result_and_shows_no_notice) {
  connection->fail("from Inventory", ado::error::timed_out, "busy");
  result = post(operation::StockIn);
  EXPECT_EQ(result, ado::error::timed_out);
  connection->fail("insert into Inventory", ado::error::constraint_violated, "refused");
  result = post(operation::Loss);
  EXPECT_EQ(result, ado::error::constraint_violated);
  poster().ADOConn = nullptr;
  result = undo(operation::Overflow, "B1");
  EXPECT_EQ(result, 91);
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(StockPosterTest, An_undo_stops_at_the_first_statement_that_fails) {
  stored_rows({{"G1", "", "", "", "箱", 2, "W1", ""}, {"G2", "", "", "", "箱", 2, "W1", ""}});
  connection->fail("update Inventory", ado::error::timed_out, "busy");
  result = undo(operation::Overflow, "B1");
  EXPECT_EQ(result, ado::error::timed_out);
  EXPECT_EQ(sent().size(), 1U);
}

TEST_F(StockPosterTest, A_goods_record_that_cannot_be_read_stops_it_in_front_of_the_balance) {
  connection->fail("from goods", ado::error::timed_out, "busy");
  result = post(operation::StockIn);
  EXPECT_EQ(result, ado::error::timed_out);
  EXPECT_EQ(sent(), Texts{});
  EXPECT_EQ(host.notices, Texts{"提示信息|GetGoodsById():busy"});
}

TEST_F(StockPosterTest, Without_the_factor_of_the_goods_own_unit_nothing_is_posted) {
  goods_kept_in("个");
  connection->fail("Unit='个'", ado::error::timed_out, "busy");
  result = post(operation::StockIn);
  EXPECT_EQ(result, 11);
  EXPECT_EQ(sent(), Texts{});
}

TEST_F(StockPosterTest, A_quantity_that_no_single_holds_is_an_overflow) {
  goods_kept_in("个");
  factor_of("箱", Money::from_whole(900'000'000'000'000));
  row.Qty = 3e30F;
  result = post(operation::StockIn);
  EXPECT_EQ(result, 6);
  EXPECT_EQ(sent(), Texts{});
}

}  // namespace
}  // namespace brunvik
