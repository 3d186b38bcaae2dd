// The numbers of bills and of ledger rows.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "brunvik/automation/automation.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "tests/support/apartment.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using Texts = std::vector<std::string>;
using test::table;

class Numbering : public ::testing::Test {
 protected:
  void highest(const Value& value) { connection->answer("max(", table({"ls_bm"}, {{value}})); }

  std::shared_ptr<test::ScriptedConnection> connection = std::make_shared<test::ScriptedConnection>();
  test::Session guard{connection};
  test::FixedClock clock{"2024-03-05 10:00:00"};
  test::NoticeRecorder host;
};

class Get_BillMaxIdTest : public Numbering {
 protected:
  static Long next(const char* date_text = "") {
    return Get_BillMaxId("StockBill", "ID", " where ID like 'QTR%' ", date_text);
  }
};
class Get_UniqVTest : public Numbering {};
class GetNewIdTest : public Numbering {
 protected:
  // The number that a class proposes; its optional prefix may be left out.
  std::string proposed(const char* class_name, std::vector<Value> arguments = {""}) {
    const auto bill = automation::create(class_name);
    EXPECT_EQ(automation::call(*bill, "GetNewId", arguments), Value(Long{0}));
    return arguments.front().as_text();
  }
};

TEST_F(Get_BillMaxIdTest, Asks_for_the_highest_number_of_today) {
  highest(ado::Null());
  EXPECT_EQ(next(), 1);
  EXPECT_EQ(connection->statements, Texts{"select max(ID)  from StockBill where ID like 'QTR240305%' "});
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(Get_BillMaxIdTest, Without_a_record_it_is_1) {
  connection->answer("max(", table({"max"}));
  EXPECT_EQ(next(), 1);
}

TEST_F(Get_BillMaxIdTest, Is_one_more_than_the_number_from_position_10) {
  highest("QTR24030500417");
  EXPECT_EQ(next(), 418);
  highest("QTR24030500009");
  EXPECT_EQ(next(), 10);
  highest("QTR24030599999");
  EXPECT_EQ(next(), 100'000);
  highest("QTR240305100000");
  EXPECT_EQ(next(), 100'001);
}

TEST_F(Get_BillMaxIdTest, Looks_at_the_day_that_it_is_given) {
  highest(ado::Null());
  next("2023-12-31 23:59:59");
  highest(ado::Null());
  next("1999/1/2");
  EXPECT_EQ(connection->statements, (Texts{"select max(ID)  from StockBill where ID like 'QTR231231%' ",
                                           "select max(ID)  from StockBill where ID like 'QTR990102%' "}));
}

TEST_F(Get_BillMaxIdTest, Puts_the_day_in_front_of_every_percent_sign) {
  Get_BillMaxId("T", "F", " where a like 'X%' or a like 'Y%' ", "");
  EXPECT_EQ(connection->statements, Texts{"select max(F)  from T where a like 'X240305%' or a like 'Y240305%' "});
}

TEST_F(Get_BillMaxIdTest, Without_a_condition_the_whole_table_counts) {
  highest("CDD24010400012");
  EXPECT_EQ(Get_BillMaxId("PurchaseOrder", "ID", "", ""), 13);
  EXPECT_EQ(connection->statements, Texts{"select max(ID)  from PurchaseOrder"});
}

TEST_F(Get_BillMaxIdTest, A_number_with_a_tail_that_is_no_number_gives_0_and_a_notice) {
  highest("QTR240305X01");
  EXPECT_EQ(next(), 0);
  highest("QTR");
  EXPECT_EQ(next(), 0);
  EXPECT_EQ(host.notices, (Texts{"提示信息|Get_BillMaxId():类型不匹配", "提示信息|Get_BillMaxId():类型不匹配"}));
}

TEST_F(Get_BillMaxIdTest, A_day_that_is_no_date_gives_0_and_a_notice) {
  EXPECT_EQ(next("yesterday"), 0);
  EXPECT_EQ(host.notices, Texts{"提示信息|Get_BillMaxId():类型不匹配"});
  EXPECT_EQ(connection->statements, Texts{});
}

TEST_F(Get_BillMaxIdTest, A_number_too_large_for_32_bits_gives_0_and_a_notice) {
  highest("QTR2403052147483647");
  EXPECT_EQ(next(), 0);
  EXPECT_EQ(host.notices, Texts{"提示信息|Get_BillMaxId():溢出"});
}

TEST_F(Get_BillMaxIdTest, A_failed_statement_gives_0_and_a_notice) {
  connection->fail("max(", ado::error::no_such_table, "no such table");
  EXPECT_EQ(next(), 0);
  session().ADOConn = nullptr;
  EXPECT_EQ(next(), 0);
  EXPECT_EQ(host.notices,
            (Texts{"提示信息|Get_BillMaxId():no such table", "提示信息|Get_BillMaxId():对象变量或 With 块变量未设置"}));
}

TEST_F(Get_UniqVTest, Asks_in_the_words_of_the_dialect) {
  highest("41");
  EXPECT_EQ(Get_UniqV("ZHJYXX", "ID"), 42);
  session().DATAType = access_dialect;
  highest(Long{7});
  EXPECT_EQ(Get_UniqV("ZHJYXX", "ID"), 8);
  EXPECT_EQ(connection->statements,
            (Texts{"select max(convert(int,ID)) as ls_bm from ZHJYXX", "select max(clng(ID)) as ls_bm from ZHJYXX"}));
}

TEST_F(Get_UniqVTest, Knows_the_dialect_without_regard_to_case) {
  session().DATAType = "[microsoft sql SERVER]";
  highest(1);
  EXPECT_EQ(Get_UniqV("T", "F"), 2);
  session().DATAType = "[MICROSOFT ACCESS]";
  highest(1);
  EXPECT_EQ(Get_UniqV("T", "F"), 2);
}

TEST_F(Get_UniqVTest, Is_1_in_an_empty_table) {
  highest(ado::Null());
  EXPECT_EQ(Get_UniqV("T", "F"), 1);
  connection->answer("max(", table({"ls_bm"}));
  EXPECT_EQ(Get_UniqV("T", "F"), 1);
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(Get_UniqVTest, Without_a_dialect_it_runs_nothing_and_ends_in_its_notice) {
  session().DATAType = "SQLite";
  EXPECT_EQ(Get_UniqV("T", "F"), 0);
  EXPECT_EQ(connection->statements, Texts{});
  EXPECT_EQ(host.notices, Texts{"提示信息|Get_UniqV():对象变量或 With 块变量未设置"});
}

TEST_F(Get_UniqVTest, A_failed_statement_gives_0_and_a_notice) {
  connection->fail("max(", ado::error::statement_refused, "refused");
  EXPECT_EQ(Get_UniqV("T", "F"), 0);
  highest(Long{2147483647});
  EXPECT_EQ(Get_UniqV("T", "F"), 0);
  EXPECT_EQ(host.notices, (Texts{"提示信息|Get_UniqV():refused", "提示信息|Get_UniqV():溢出"}));
}

struct Series {
  const char* class_name;
  const char* table;
  const char* prefix;
};

TEST_F(GetNewIdTest, Every_class_counts_in_its_own_table_under_its_own_prefix) {
  const std::vector<Series> all{
      {"clsPurchaseInBill", "StockBill", "JHR"},
      {"clsPurchaseInBjkcBill", "StockBill", "JQC"},
      {"clsPurchaseOutBill", "StockBill", "JTC"},
      {"clsPurchaseOutBjkcBill", "StockBill", "JTQ"},
      {"clsSalesInBill", "StockBill", "XTR"},
      {"clsSalesInBjkcBill", "StockBill", "XTQ"},
      {"clsOthersInBill", "StockBill", "QTR"},
      {"clsOthersOutBill", "StockBill", "QTC"},
      {"clsReportOfOverflowBill", "StockBill", "BYR"},
      {"clsReportOfLossesBill", "StockBill", "BSC"},
      {"clsTZBill", "StockBill", "TZD"},
      {"clsPayBill", "RPVouchers", "FKD"},
      {"clsReceiptBill", "RPVouchers", "SKD"},
      {"clsAdvanceBill", "AdvanceBill", "YFX"},
      {"clsAdvanceYSBill", "AdvanceBill", "YSX"},
  };
  for (const auto& [class_name, table_name, prefix] : all) {
    connection->statements.clear();
    highest(std::string(prefix) + "24030500041");
    EXPECT_EQ(proposed(class_name), std::string(prefix) + "24030500042");
    EXPECT_EQ(connection->statements,
              Texts{"select max(ID)  from " + std::string(table_name) + " where ID like '" + prefix + "240305%' "});
  }
}

TEST_F(GetNewIdTest, The_first_bill_of_a_day_gets_00001) {
  highest(ado::Null());
  EXPECT_EQ(proposed("clsOthersInBill"), "QTR24030500001");
  clock.set("2024-03-06 00:00:00");
  highest(ado::Null());
  EXPECT_EQ(proposed("clsOthersInBill"), "QTR24030600001");
}

TEST_F(GetNewIdTest, Reserves_nothing) {
  highest("QTR24030500005");
  highest("QTR24030500005");
  EXPECT_EQ(proposed("clsOthersInBill"), "QTR24030500006");
  EXPECT_EQ(proposed("clsOthersInBill"), "QTR24030500006");
}

TEST_F(GetNewIdTest, Behind_99999_the_number_has_six_digits) {
  highest("QTR24030599999");
  EXPECT_EQ(proposed("clsOthersInBill"), "QTR240305100000");
}

TEST_F(GetNewIdTest, Takes_the_prefix_of_a_sale_from_the_host) {
  for (const char* class_name : {"clsSalesOutBill", "clsSalesOutBjkcBill"}) {
    connection->statements.clear();
    highest("XSC24030500002");
    EXPECT_EQ(proposed(class_name, {"", "XSC"}), "XSC24030500003");
    EXPECT_EQ(connection->statements, Texts{"select max(ID)  from StockBill where ID like 'XSC240305%' "});
  }
}

TEST_F(GetNewIdTest, A_sale_without_a_prefix_counts_by_the_date_alone) {
  highest(ado::Null());
  EXPECT_EQ(proposed("clsSalesOutBill"), "24030500001");
  EXPECT_EQ(connection->statements, Texts{"select max(ID)  from StockBill where ID like '240305%' "});
}

TEST_F(GetNewIdTest, Whatever_the_length_of_a_prefix_the_number_is_read_from_position_10) {
  highest("XS24030500012");  // position 10 is the second digit of the running number
  EXPECT_EQ(proposed("clsSalesOutBill", {"", "XS"}), "XS24030500013");
  highest("XSCK24030500012");  // position 10 is the last digit of the day
  EXPECT_EQ(proposed("clsSalesOutBill", {"", "XSCK"}), "XSCK240305500013");
}

TEST_F(GetNewIdTest, A_number_that_cannot_be_worked_out_is_told_and_proposed_as_00000) {
  highest("QTR240305-by hand");
  EXPECT_EQ(proposed("clsOthersInBill"), "QTR24030500000");
  EXPECT_EQ(host.notices, Texts{"提示信息|Get_BillMaxId():类型不匹配"});
}

}  // namespace
}  // namespace brunvik
