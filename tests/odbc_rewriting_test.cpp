// The documents' statements as MariaDB gets them. ? stands for a value that was cut out.
#include <gtest/gtest.h>

#include <algorithm>

#include "brunvik/ado/names.h"
#include "drivers/dialects/tokens.h"
#include "drivers/odbc/mariadb_rewriting.h"

namespace brunvik::odbc {
namespace {

using dialects::ColumnType;

class KnownColumns final : public dialects::Catalogue {
  dialects::TableDescription read(std::string_view name) override {
    if (ado::same_name(name, "StockBill")) {
      return {{"Id", ColumnType::key}, {"Type", ColumnType::long_number}, {"PaidAmount", ColumnType::money}};
    }
    if (ado::same_name(name, "Inventory")) return {{"GId", ColumnType::key}, {"CurrentQty", ColumnType::single}};
    if (ado::same_name(name, "ZHXX")) return {{"ID", ColumnType::key}, {"NumberOfID", ColumnType::long_number}};
    return {};
  }
};

std::string rewritten(const std::string& statement) {
  KnownColumns columns;
  dialects::Cutter cutter;
  EXPECT_TRUE(cutter.cut(statement)) << statement;
  MariaDbText text = rewrite_for_mariadb(cutter.shape(), cutter.literals(), columns, statement);
  std::ranges::replace_if(
      text.shape, [](char c) { return dialects::is_mark(c); }, '?');
  return text.shape;
}

TEST(OdbcRewriting, Top_is_a_limit_at_the_end) {
  EXPECT_EQ(rewritten("select TOP 1 * from StockBill where id like 'CDD%' order by Id desc"),
            "select * from StockBill where id like 'CDD%' order by Id desc LIMIT 1");
}

TEST(OdbcRewriting, The_highest_number_of_a_day_is_asked_for_in_a_range) {
  EXPECT_EQ(rewritten("select max(ID)  from StockBill where ID like 'QTR240305%' "),
            "select max(ID) from StockBill where ID >='QTR240305' AND ID<'QTR240306'");
}

TEST(OdbcRewriting, The_highest_number_of_a_ledger_is_asked_for_in_its_column_of_numbers) {
  const std::string text = rewritten("select max(convert(int,ID)) as ls_bm from ZHXX");
  EXPECT_NE(text.find("(SELECT MAX(NumberOfID) FROM ZHXX) END as ls_bm"), std::string::npos) << text;
}

TEST(OdbcRewriting, A_payment_needs_no_other_words) {
  EXPECT_EQ(rewritten("update stockbill set paidAmount= paidAmount +0.1 where id='B1' and type= 2"),
            "update stockbill set paidAmount= paidAmount +? where id=? and type= ?");
}

TEST(OdbcRewriting, Two_minus_signs_open_no_comment) {
  EXPECT_EQ(rewritten("update stockbill set paidAmount= paidAmount --5 where id='B1'"),
            "update stockbill set paidAmount= paidAmount - -? where id=?");
}

TEST(OdbcRewriting, A_quantity_that_is_worked_out_is_rounded_and_one_that_is_given_is_not) {
  const std::string text = rewritten("update Inventory set CurrentQty=CurrentQty-1.5 where GId='G1'");
  EXPECT_TRUE(text.starts_with("update Inventory set CurrentQty=(CASE (@brunvik_value:=CAST(CurrentQty-? AS FLOAT"))
      << text;
  EXPECT_EQ(rewritten("update Inventory set CurrentQty=1.5 where GId='G1'"),
            "update Inventory set CurrentQty=? where GId=?");
}

TEST(OdbcRewriting, Names_in_brackets_dates_and_a_delete_of_all_columns_are_written_in_its_words) {
  EXPECT_EQ(rewritten("delete * from [StockBill] where Id='a'"), "delete from `StockBill` where Id=?");
  EXPECT_EQ(rewritten("select Id from StockBill where Id>#2024-03-04#"), "select Id from StockBill where Id>?");
}

TEST(OdbcRewriting, A_quotient_of_whole_numbers_is_whole) {
  EXPECT_EQ(rewritten("select Id from StockBill where 7/2=3"), "select Id from StockBill where ? DIV ?=?");
}

}  // namespace
}  // namespace brunvik::odbc
