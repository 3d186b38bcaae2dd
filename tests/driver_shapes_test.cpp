// What is kept of a statement serves those that differ from it in their values alone.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverShapes : public DriverBooks {};

TEST_P(DriverShapes, Statements_that_differ_in_their_values_share_a_shape) {
  run("insert into ZHXX(ID,YE) values('a',1)");
  const std::size_t shapes = cached_statements();
  for (int row = 0; row < 100; ++row) {
    run("insert into ZHXX(ID,YE) values('b" + std::to_string(row) + "'," + std::to_string(row) + ".25)");
  }
  EXPECT_EQ(cached_statements(), shapes);
}

TEST_P(DriverShapes, A_number_and_a_text_are_different_shapes) {
  run("insert into ZHXX(ID,ZH) values('1','x')");
  EXPECT_EQ(count("select count(*) from ZHXX where ID='1'"), 1);
  EXPECT_EQ(count("select count(*) from ZHXX where ID=1"), 1);
  EXPECT_EQ(count("select count(*) from ZHXX where ID=-1"), 0);
  EXPECT_EQ(count("select count(*) from ZHXX where 1=1"), 1);
}

TEST_P(DriverShapes, An_endless_text_is_carried_out_and_not_kept) {
  run("insert into ZHXX(ID) values('a')");
  const std::size_t shapes = cached_statements();
  for (const char last : {'b', 'c'}) {
    const std::string pattern = std::string(40'000, 'a') + last + "%";
    EXPECT_EQ(run("select ID from ZHXX where ID like '" + pattern + "'").record_count(), 0U);
    EXPECT_EQ(cached_statements(), shapes);
  }
}

TEST_P(DriverShapes, A_table_that_is_laid_later_is_found) {
  EXPECT_EQ(error_of(*books, "insert into Later(a) values(1.00005)"), ado::error::no_such_table);
  static constexpr schema::Column amount[] = {{"a", schema::Type::Money}};
  lay({"Later", amount});
  run("insert into Later(a) values(1.00006)");
  EXPECT_EQ(text("select a from Later"), "1.0001");
}

TEST_P(DriverShapes, A_failed_statement_leaves_its_shape_usable) {
  run("insert into Warehouse(Id) values('W1')");
  EXPECT_EQ(error_of(*books, "insert into Warehouse(Id) values('W1')"), ado::error::constraint_violated);
  run("insert into Warehouse(Id) values('W2')");
  EXPECT_EQ(count("select count(*) from Warehouse"), 2);
}

TEST_P(DriverShapes, A_text_of_any_length_follows_one_of_any_length) {
  int number = 0;
  for (const std::size_t length : {3U, 0U, 64U, 65U, 1'023U, 1'024U, 1'025U, 3U, 4'096U, 4'097U, 300'000U, 2U, 0U}) {
    const std::string id = "'W" + std::to_string(++number) + "'";
    const std::string name = std::string(length, 'x');
    run("insert into Warehouse(Id,WName) values(" + id + ",'" + name + "')");
    EXPECT_TRUE(text("select WName from Warehouse where Id=" + id) == name) << length;
  }
  EXPECT_EQ(run("select WName from Warehouse").record_count(), 13U);
}

TEST_P(DriverShapes, They_are_bounded) {
  const auto few = place->open_with(3);
  for (int day = 10; day < 30; ++day) {
    few->Execute("select max(ID) from StockBill where ID like 'QTR2403" + std::to_string(day) + "%'");
    few->Execute("select * from ZHXX where ID='x'");
    EXPECT_LE(place->cached_statements(*few), 3U);
  }
}

INSTANTIATE_TEST_SUITE_P(On, DriverShapes, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
