// The prepared statements: kept, bounded, and prepared anew when the tables change.
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteShapes : public SqliteBooks {};

TEST_F(SqliteShapes, Statements_that_differ_in_their_values_share_a_shape) {
  run("insert into ZHXX(ID,YE) values('a',1)");
  const std::size_t shapes = books->cached_statements();
  for (int row = 0; row < 100; ++row) {
    run("insert into ZHXX(ID,YE) values('b" + std::to_string(row) + "'," + std::to_string(row) + ".25)");
  }
  EXPECT_EQ(books->cached_statements(), shapes);
}

TEST_F(SqliteShapes, A_number_and_a_text_are_different_shapes) {
  run("insert into ZHXX(ID,ZH) values('1','x')");
  EXPECT_EQ(count("select count(*) from ZHXX where ID='1'"), 1);
  EXPECT_EQ(count("select count(*) from ZHXX where ID=1"), 1);
  EXPECT_EQ(count("select count(*) from ZHXX where ID=-1"), 0);
  EXPECT_EQ(count("select count(*) from ZHXX where '1'=1"), 0);
  EXPECT_EQ(count("select count(*) from ZHXX where 1=1"), 1);
}

TEST(SqliteShapeCache, It_is_bounded) {
  const auto books = open(":memory:", {.cached_statements = 3});
  lay_small_books(*books);
  for (int day = 10; day < 30; ++day) {
    books->Execute("select max(ID) from StockBill where ID like 'QTR2403" + std::to_string(day) + "%'");
    books->Execute("select * from ZHXX where ID='x'");
    EXPECT_LE(books->cached_statements(), 3U);
  }
}

TEST_F(SqliteShapes, A_refused_statement_is_not_kept) {
  const std::size_t shapes = books->cached_statements();
  EXPECT_NE(error_of(*books, "select * from ZHXX where"), 0);
  EXPECT_EQ(books->cached_statements(), shapes);
}

TEST_F(SqliteShapes, An_endless_text_is_carried_out_and_not_kept) {
  run("insert into ZHXX(ID) values('a')");
  const std::size_t shapes = books->cached_statements();
  for (const char last : {'b', 'c'}) {
    const std::string pattern = std::string(40'000, 'a') + last + "%";
    EXPECT_EQ(run("select ID from ZHXX where ID like '" + pattern + "'").record_count(), 0U);
    EXPECT_EQ(books->cached_statements(), shapes);
  }
}

TEST_F(SqliteShapes, A_large_value_takes_no_memory_for_good) {
  const std::string value = "'" + std::string(400'000, '\'') + "'";
  const std::size_t before = books->held_bytes();
  run("insert into Warehouse(Id,WName) values('W1'," + value + ")");
  run("update Warehouse set WName=" + value + " where Id='W1'");
  run("delete from Warehouse where WName=" + value);
  EXPECT_NE(error_of(*books, "insert into Warehouse(Id,WName) values(null," + value + ")"), 0);
  EXPECT_NE(error_of(*books, "insert into Warehouse(Id,WName) values('W2'," + value + " where"), 0);
  EXPECT_NE(error_of(*books, "insert into Warehouse(Id,WName) values('W2'," + value + "'"), 0);
  std::string list = "1";
  for (int number = 0; number < 20'000; ++number) list += ",1";
  EXPECT_EQ(count("select count(*) from StockBill where Type in (" + list + ")"), 0);
  EXPECT_LT(books->held_bytes(), before + 200'000);
}

TEST_F(SqliteShapes, Large_shapes_are_dropped_before_they_fill_the_memory) {
  std::string list = "1";
  for (int number = 0; number < 10'000; ++number) list += ",1";
  const std::size_t shapes = books->cached_statements();
  for (int length = 0; length < 24; ++length) {
    list += ",1";
    EXPECT_EQ(count("select count(*) from StockBill where Type in (" + list + ")"), 0);
  }
  EXPECT_LE(books->held_bytes(), 16U * 1'024 * 1'024);
  EXPECT_GT(books->cached_statements(), shapes);
  EXPECT_LT(books->cached_statements(), shapes + 24);
  run("alter table Warehouse add column Area REAL");
  EXPECT_EQ(count("select count(*) from StockBill where Type in (" + list + ")"), 0);
  EXPECT_LT(books->held_bytes(), 3'000'000U);
}

TEST_F(SqliteShapes, A_change_of_the_tables_is_seen_by_statements_that_are_kept) {
  const auto other = open(path());
  const std::string all = "select * from Warehouse where Id='W1'";
  const std::string add = "insert into Warehouse(Id,WName) values('W";
  run(add + "1','1.00005')");
  EXPECT_EQ(run(all).names().size(), 2U);
  other->Execute("alter table Warehouse add column Area REAL");
  EXPECT_EQ(run(all).names().size(), 3U);
  books->Execute("alter table Warehouse add column Rent MONEY");
  EXPECT_EQ(run(all).names().size(), 4U);

  // The same text means another rounding when the column has another type.
  other->Execute("drop table Warehouse");
  other->Execute("create table Warehouse (Id TEXT COLLATE NOCASE, WName MONEY)");
  run(add + "1','1.00005')");
  EXPECT_EQ(run(all).value("WName"), ado::Value(ado::Money::from_whole(1)));
  run("update Warehouse set WName=WName+0.1");
  EXPECT_EQ(run(all).value("WName"), ado::Value(ado::Money::parse("1.1")));
  books->Execute("drop table Warehouse");
  EXPECT_EQ(error_of(*books, all), ado::error::no_such_table);
}

TEST_F(SqliteShapes, A_table_that_is_laid_later_is_found) {
  EXPECT_EQ(error_of(*books, "insert into Later(a) values(1.00005)"), ado::error::no_such_table);
  run("create table Later (a MONEY)");
  run("insert into Later(a) values(1.00006)");
  EXPECT_EQ(text("select a from Later"), "1.0001");
}

TEST_F(SqliteShapes, A_failed_statement_leaves_its_shape_usable) {
  run("insert into Warehouse(Id) values('W1')");
  EXPECT_EQ(error_of(*books, "insert into Warehouse(Id) values('W1')"), ado::error::constraint_violated);
  run("insert into Warehouse(Id) values('W2')");
  EXPECT_EQ(count("select count(*) from Warehouse"), 2);
}

}  // namespace
}  // namespace brunvik::sqlite
