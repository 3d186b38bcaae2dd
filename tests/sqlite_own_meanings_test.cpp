// What SQLite alone makes of a statement, or makes of it in its own way: where the engine works with other numbers and
// other texts than a server does.
#include <random>
#include <string>
#include <vector>

#include "brunvik/ado/money.h"
#include "tests/sqlite_books.h"
#include "tests/support/driver_books.h"

namespace brunvik::sqlite {
namespace {

using test::literal_of;

class SqliteOwnMeanings : public SqliteBooks {
 protected:
  // The keys in the order of the engine.
  std::vector<std::string> in_order(const std::vector<std::string>& keys) {
    for (const std::string& key : keys) run("insert into Warehouse(Id) values(" + literal_of(key) + ")");
    std::vector<std::string> ordered;
    for (auto set = run("select Id from Warehouse order by Id"); !set.at_end(); set.MoveNext()) {
      ordered.push_back(set.value("Id").as_text());
    }
    return ordered;
  }
};

// A server knows no row limit there.
TEST_F(SqliteOwnMeanings, Top_stands_in_a_list_too) {
  run("insert into StockBill(Id,Type) values('B1',32)");
  run("insert into StockBill(Id,Type) values('B2',32)");
  EXPECT_EQ(run("select Id from StockBill where Id in (select top 1 Id from StockBill order by Id) and Type=32")
                .record_count(),
            1U);
}

// A server rounds a half away from zero.
TEST_F(SqliteOwnMeanings, A_half_is_rounded_to_the_even_number) {
  EXPECT_EQ(value("select clng(2.5)"), ado::Value(Long{2}));
  EXPECT_EQ(value("select clng('3.5')"), ado::Value(Long{4}));
}

// To a server a number with a point is a decimal, and a number in quotes a number.
TEST_F(SqliteOwnMeanings, A_number_of_no_column_is_a_double_and_equals_no_text) {
  EXPECT_EQ(value("select 1.5 as half"), ado::Value(Double{1.5}));
  EXPECT_EQ(count("select count(*) from (select 1) where '1'=1"), 0);
}

TEST_F(SqliteOwnMeanings, All_columns_may_stand_behind_others_and_a_text_is_named_by_its_literal) {
  EXPECT_EQ(run("select CloseAmount - 1,*,convert(int,Type) from StockBill").names().front(), "CloseAmount - 1");
  EXPECT_EQ(run("select abs(PaidAmount),*,convert(int,Type) from StockBill").names().back(), "convert(int,Type)");
  EXPECT_EQ(run("select 7,'x' from StockBill").names().back(), "'x'");
}

TEST_F(SqliteOwnMeanings, A_selection_in_the_place_of_a_table_needs_no_name_and_a_cast_knows_text) {
  run("insert into StockBillItems(BillId,Qty) values('B1',0.3)");
  EXPECT_EQ(count("select count(*) from (select BillId from StockBillItems group by BillId)"), 1);
  EXPECT_EQ(text("select cast(Qty as text) from StockBillItems"), "0.3");
  EXPECT_EQ(error_of(*books, "select max(Type),cast(min(Id) as text) from StockBill"), 0);
  EXPECT_EQ(error_of(*books, "select Balance as Balance from (select YE as Balance from ZHXX) where Balance=1"), 0);
}

// An index of this engine is seen by other programs as their own only if no key ends in a blank, so that none may,
// wherever it comes from.
TEST_F(SqliteOwnMeanings, Trailing_blanks_of_a_key_are_cut_when_it_is_worked_out) {
  run("insert into StockBill(Id) select 'B2 '");
  run("insert into StockBillItems(BillId) values('B1 ')");
  run("update StockBillItems set BillId=BillId||' '");
  run("insert into ZHXX(ID,YE) select 'A1 ',1.00006");
  EXPECT_EQ(count("select length(Id) from StockBill"), 2);
  EXPECT_EQ(count("select length(BillId) from StockBillItems"), 2);
  EXPECT_EQ(count("select length(ID) from ZHXX"), 2);
}

TEST_F(SqliteOwnMeanings, Full_and_half_width_are_two_keys) {
  EXPECT_EQ(in_order({"Ｂ", "主", "a", "B", "ａ"}), (std::vector<std::string>{"a", "B", "主", "ａ", "Ｂ"}));
}

TEST_F(SqliteOwnMeanings, Signs_stand_among_the_letters_as_their_bytes_do_in_small_letters) {
  EXPECT_EQ(in_order({"AB C", "axb", "[x]", "AB", "c\\d", "a_b", "100%"}),
            (std::vector<std::string>{"100%", "[x]", "a_b", "AB", "AB C", "axb", "c\\d"}));
}

// A text has no encoding here, and no length.
TEST_F(SqliteOwnMeanings, Any_bytes_come_back_and_leave_one_shape) {
  std::mt19937 random(3);
  const std::string_view bytes = "'\"\\;-/*?@:$#[]%_ \t\n\x01\x02\x03 aA0中";
  run("begin");
  run("insert into Warehouse(Id,WName) values('W','')");
  run("update Warehouse set WName='a' where Id='W'");
  const std::size_t shapes = books->cached_statements();
  for (int time = 0; time < 3'000; ++time) {
    std::string value(random() % 40, ' ');
    for (char& c : value) c = random() % 4 == 0 ? static_cast<char>(random() % 256) : bytes[random() % bytes.size()];
    run("update Warehouse set WName=" + literal_of(value) + " where Id='W'");
    ado::Recordset set = books->Execute("select WName from Warehouse where Id='W'");
    ASSERT_EQ(set.record_count(), 1U);
    EXPECT_EQ(set.value("WName").as_text(), value);
  }
  EXPECT_EQ(books->cached_statements(), shapes + 1);
  run("commit");
  for (const std::string& value : {std::string("\xff"), std::string(100'000, '\'')}) {
    run("update Warehouse set WName=" + literal_of(value) + ",Id=" + literal_of(value + "1"));
    EXPECT_EQ(text("select WName from Warehouse where Id=" + literal_of(value + "1")), value);
  }
}

// A server takes as much as its administrator lets it.
TEST_F(SqliteOwnMeanings, Twenty_megabytes_of_text_come_back) {
  const std::string remarks(20'000'000, '\\');
  run("insert into Warehouse(Id,WName) values('W1'," + literal_of(remarks) + ")");
  EXPECT_TRUE(text("select WName from Warehouse where Id='W1'") == remarks);
}

// Amounts are kept as numbers that are exact up to there and no further, so whatever is worked out has the limit too.
class SqliteLargeAmounts : public SqliteBooks {};

TEST_F(SqliteLargeAmounts, What_is_worked_out_beyond_the_limit_is_refused_and_changes_nothing) {
  run("insert into ZHXX(ID,YE) values('A0',1)");
  run("insert into ZHXX(ID,YE) values('A1',549755813887.9999)");
  for (const char* amount : {"549755813887+1", "1*549755813888.0000"}) {
    EXPECT_EQ(error_of(*books, std::string("insert into ZHXX(ID,YE) values('A2',") + amount + ")"),
              ado::error::data_overflow);
  }
  EXPECT_EQ(error_of(*books, "update ZHXX set YE=YE+0.0001"), ado::error::data_overflow);
  EXPECT_EQ(error_of(*books, "update ZHXX set YE=YE+1+2"), ado::error::data_overflow);
  EXPECT_EQ(text("select YE from ZHXX where ID='A0'"), "1");
  EXPECT_EQ(text("select YE from ZHXX where ID='A1'"), "549755813887.9999");
}

TEST_F(SqliteLargeAmounts, Sums_and_differences_are_exact_or_an_overflow) {
  constexpr std::int64_t limit = (std::int64_t{1} << 39) * 10'000;
  std::mt19937_64 random(8);
  std::uniform_int_distribution<std::int64_t> any(1 - limit, limit - 1);
  const auto written = [](std::int64_t count) { return ado::Money::from_ten_thousandths(count).text(); };
  run("insert into StockBill(Id) values('B1')");
  for (int time = 0; time < 600; ++time) {
    const std::int64_t paid = any(random);
    const std::int64_t close = any(random);
    run("update StockBill set PaidAmount=" + written(paid) + ",CloseAmount='" + written(close) + "'");
    for (const auto& [expression, sum] :
         {std::pair{"PaidAmount+CloseAmount", paid + close}, std::pair{"PaidAmount-CloseAmount", paid - close},
          std::pair{"-PaidAmount+CloseAmount+ -PaidAmount", close - 2 * paid}}) {
      const std::string select = std::string("select ") + expression + " from StockBill";
      if (-limit < sum && sum < limit) {
        ASSERT_EQ(value(select), ado::Value(ado::Money::from_ten_thousandths(sum))) << expression;
      } else {
        ASSERT_EQ(error_of(*books, select), ado::error::data_overflow) << expression;
      }
    }
  }
}

TEST_F(SqliteLargeAmounts, A_sum_beyond_the_limit_is_an_overflow) {
  for (const char* amount : {"500000000000", "49755813887.9999"}) {
    run(std::string("insert into StockBillItems(BillId,Amount) values('B1',") + amount + ")");
  }
  EXPECT_EQ(value("select sum(Amount) as Total from StockBillItems"),
            ado::Value(ado::Money::parse("549755813887.9999")));
  run("insert into StockBillItems(BillId,Amount) values('B1',0.0001)");
  EXPECT_EQ(error_of(*books, "select sum(Amount) as Total from StockBillItems"), ado::error::data_overflow);
  run("insert into StockBillItems(BillId,Amount) values('B1',-0.0001)");
  EXPECT_EQ(error_of(*books, "select sum(Amount) as Total from StockBillItems"), 0);
}

}  // namespace
}  // namespace brunvik::sqlite
