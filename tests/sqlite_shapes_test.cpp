// The prepared statements: kept, bounded, and prepared anew when the tables change.
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteShapes : public SqliteBooks {};

TEST_F(SqliteShapes, A_refused_statement_is_not_kept) {
  const std::size_t shapes = books->cached_statements();
  EXPECT_NE(error_of(*books, "select * from ZHXX where"), 0);
  EXPECT_EQ(books->cached_statements(), shapes);
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

}  // namespace
}  // namespace brunvik::sqlite
