// A statement that comes again with other values means what it would mean as the first of its text.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverKnownTexts : public DriverBooks {};

TEST_P(DriverKnownTexts, Values_of_any_content_come_through_each_time) {
  const std::string insert = "insert into ZHXX(ID,ZH,YE) values(";
  for (const char* row : {"'a','x',1", "'b','O''Neil',2.5", "'c','',0", "'d','''',3e2", "'e','1',-4", "'f',1,.5"}) {
    run(insert + row + ")");
  }
  const char* const texts[] = {"x", "O'Neil", "", "'", "1", "1"};
  const char* const amounts[] = {"1", "2.5", "0", "300", "-4", "0.5"};
  for (int row = 0; row < 6; ++row) {
    const std::string id(1, static_cast<char>('a' + row));
    EXPECT_EQ(text("select ZH from ZHXX where ID='" + id + "'"), texts[row]);
    EXPECT_EQ(text("select YE from ZHXX where ID='" + id + "'"), amounts[row]);
  }
}

TEST_P(DriverKnownTexts, What_is_refused_is_refused_behind_a_text_that_is_known) {
  const std::string by_number = "select * from ZHXX where KHH='x' and YE=";
  run(by_number + "1");
  EXPECT_NE(error_of(*books, by_number + "1x"), 0);
  EXPECT_NE(error_of(*books, by_number), 0);
  EXPECT_NE(error_of(*books, by_number + "1 ?"), 0);
  EXPECT_NE(error_of(*books, "select * from ZHXX where KHH='x"), 0);
  EXPECT_EQ(run(by_number + "2").record_count(), 0U);
}

TEST_P(DriverKnownTexts, Words_that_go_on_make_another_statement) {
  run("insert into ZHXX(ID,YE) values('a',1)");
  run("insert into ZHXX(ID,YE) values('b',2)");
  EXPECT_EQ(run("select ID from ZHXX where ID='a'").record_count(), 1U);
  EXPECT_EQ(run("select ID from ZHXX where ID='a' or YE=2").record_count(), 2U);
  EXPECT_EQ(run("select ID from ZHXX where ID='a'||'b'").record_count(), 0U);
  EXPECT_EQ(run("select ID from ZHXX where ID='b'").record_count(), 1U);
}

// The bytes that mark values in a shape can stand in a literal that the shape keeps.
TEST_P(DriverKnownTexts, A_pattern_that_holds_a_mark_is_not_taken_for_a_value) {
  run("insert into ZHXX(ID,ZH) values('a','5')");
  const std::string pattern = "select ID from ZHXX where ZH like '";
  EXPECT_EQ(run(pattern + "\x02'").record_count(), 0U);
  EXPECT_EQ(run(pattern + "5'").record_count(), 1U);
  EXPECT_EQ(run(pattern + "\x02'").record_count(), 0U);
}

TEST_P(DriverKnownTexts, A_text_that_was_let_go_is_known_no_more) {
  const auto few = place->open_with(2);
  for (int round = 0; round < 3; ++round) {
    for (const char* column : {"ID", "ZH", "KHH", "YE"}) {
      const std::string statement = "select " + std::string(column) + " from ZHXX where ID='";
      EXPECT_EQ(few->Execute(statement + std::to_string(round) + "'").names().front(), column);
    }
  }
}

TEST_P(DriverKnownTexts, A_zero_that_is_assigned_shares_the_shape_of_other_numbers) {
  run("update ZHXX set YE=1 where ID='a'");
  const std::size_t shapes = cached_statements();
  run("update ZHXX set YE=0 where ID='a'");
  EXPECT_EQ(cached_statements(), shapes);
}

TEST_P(DriverKnownTexts, A_zero_that_is_asked_for_finds_what_other_numbers_do_not) {
  run("insert into ZHXX(ID,YE) values('a',0)");
  run("insert into ZHXX(ID,YE) values('b',1)");
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(text("select ID from ZHXX where KHH is null and YE=1"), "b");
    EXPECT_EQ(text("select ID from ZHXX where KHH is null and YE=0"), "a");
    EXPECT_EQ(text("select ID from ZHXX where KHH is null and YE=0.0"), "a");
  }
}

INSTANTIATE_TEST_SUITE_P(On, DriverKnownTexts, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
