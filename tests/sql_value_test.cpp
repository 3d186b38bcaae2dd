// Values on their way into statement text.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "tests/support/apartment.h"

namespace brunvik {
namespace {

using Notices = std::vector<std::string>;

class SqlValueTest : public ::testing::Test {
 protected:
  SqlValueTest() { session().DATAType = sql_server_dialect; }

  test::Session guard;
  test::NoticeRecorder host;
};

class GetSqlValTest : public SqlValueTest {};
class EscapeLikeTest : public SqlValueTest {};
class Get_DateStrTest : public SqlValueTest {};

Date moment(std::string_view text) { return ado::parse_date(text); }

TEST_F(GetSqlValTest, Empty_and_null_are_the_word_null) {
  EXPECT_EQ(GetSqlVal(Value()), "null");
  EXPECT_EQ(GetSqlVal(ado::Null()), "null");
}

TEST_F(GetSqlValTest, Numbers_are_plain_decimal_text) {
  EXPECT_EQ(GetSqlVal(Integer{-7}), "-7");
  EXPECT_EQ(GetSqlVal(Long{1'000'000}), "1000000");
  EXPECT_EQ(GetSqlVal(Byte{255}), "255");
  EXPECT_EQ(GetSqlVal(Single{0.1F}), "0.1");
  EXPECT_EQ(GetSqlVal(Single{0.5F}), "0.5");
  EXPECT_EQ(GetSqlVal(12.5), "12.5");
  EXPECT_EQ(GetSqlVal(1e-7), "0.0000001");
  EXPECT_EQ(GetSqlVal(1e16), "10000000000000000");
  EXPECT_EQ(GetSqlVal(Money::parse("12.50")), "12.5");
  EXPECT_EQ(GetSqlVal(Money::parse("-0.0001")), "-0.0001");
  EXPECT_EQ(GetSqlVal(Money::parse("1234567.8901")), "1234567.8901");
}

TEST_F(GetSqlValTest, A_boolean_is_1_or_0_in_both_dialects_and_in_none) {
  for (const std::string_view dialect : {sql_server_dialect, access_dialect, std::string_view("other")}) {
    session().DATAType = dialect;
    EXPECT_EQ(GetSqlVal(true), "1");
    EXPECT_EQ(GetSqlVal(false), "0");
  }
}

TEST_F(GetSqlValTest, A_date_has_the_quote_of_the_dialect) {
  EXPECT_EQ(GetSqlVal(moment("2024-03-05 10:00:00")), "'2024-03-05 10:00:00'");
  session().DATAType = access_dialect;
  EXPECT_EQ(GetSqlVal(moment("2024-03-05 10:00:00")), "#2024-03-05 10:00:00#");
}

TEST_F(GetSqlValTest, The_zero_date_is_null_and_any_other_is_not) {
  EXPECT_EQ(GetSqlVal(Date{0}), "null");
  EXPECT_EQ(GetSqlVal(Date{0.5}), "'12:00:00'");
  EXPECT_EQ(GetSqlVal(Date{1}), "'1899/12/31'");
  session().DATAType = "other";
  EXPECT_EQ(GetSqlVal(Date{0}), "null");
}

TEST_F(GetSqlValTest, Without_a_dialect_a_date_is_nothing_and_all_else_is_as_ever) {
  for (const char* dialect : {"", "[microsoft sql server]", "[Microsoft Access] ", "SQLite"}) {
    session().DATAType = dialect;
    EXPECT_EQ(GetSqlVal(moment("2024-03-05")), "") << dialect;
    EXPECT_EQ(GetSqlVal("a"), "'a'");
    EXPECT_EQ(GetSqlVal(1), "1");
  }
}

TEST_F(GetSqlValTest, Text_is_trimmed_and_quoted_and_its_apostrophes_doubled) {
  EXPECT_EQ(GetSqlVal("O'Neil "), "'O''Neil'");
  EXPECT_EQ(GetSqlVal("  a  b  "), "'a  b'");
  EXPECT_EQ(GetSqlVal("'"), "''''");
  EXPECT_EQ(GetSqlVal("''"), "''''''");
  EXPECT_EQ(GetSqlVal("螺丝 M6"), "'螺丝 M6'");
  EXPECT_EQ(GetSqlVal("\ta\n"), "'\ta\n'");
  EXPECT_EQ(GetSqlVal("a\\"), "'a\\'");
}

TEST_F(GetSqlValTest, Empty_text_and_blanks_are_two_apostrophes) {
  EXPECT_EQ(GetSqlVal(""), "''");
  EXPECT_EQ(GetSqlVal("    "), "''");
  EXPECT_EQ(GetSqlVal("", true), "''");
}

TEST_F(GetSqlValTest, A_bracket_an_underscore_and_a_percent_sign_stay_in_plain_text) {
  EXPECT_EQ(GetSqlVal("50%_[x]", false), "'50%_[x]'");
  EXPECT_EQ(GetSqlVal("50%", false, "%", "Both"), "'50%'");
}

TEST_F(GetSqlValTest, They_are_bracketed_for_a_like) {
  EXPECT_EQ(GetSqlVal("50%_[x]", true), "'50[%][_][[]x]'");
  EXPECT_EQ(GetSqlVal("a'[_", true, "[Drop]", "[Drop]"), "'a''[[][_]'");
  EXPECT_EQ(GetSqlVal(" a ", true), "'a'");
}

TEST_F(GetSqlValTest, The_word_that_drops_an_argument_is_compared_without_regard_to_case) {
  EXPECT_EQ(GetSqlVal("a", true, "[DROP]", "Both"), "'a'");
  EXPECT_EQ(GetSqlVal("a", true, "[drop]", "Start"), "'a'");
}

TEST_F(GetSqlValTest, A_wildcard_stands_where_the_position_says) {
  EXPECT_EQ(GetSqlVal("a_b ", true, "%", "Start"), " like '%a[_]b'");
  EXPECT_EQ(GetSqlVal("a_b ", true, "%", "End"), " like 'a[_]b%'");
  EXPECT_EQ(GetSqlVal("a_b ", true, "%", "Both"), " like '%a[_]b%'");
}

TEST_F(GetSqlValTest, The_position_is_compared_without_regard_to_case) {
  for (const char* position : {"start", "START", "Start"}) {
    EXPECT_EQ(GetSqlVal("a", true, "%", position), " like '%a'");
  }
  EXPECT_EQ(GetSqlVal("a", true, "%", "eND"), " like 'a%'");
  EXPECT_EQ(GetSqlVal("a", true, "%", "bOTH"), " like '%a%'");
}

TEST_F(GetSqlValTest, Any_other_position_leaves_the_wildcard_out) {
  for (const char* position : {"[Drop]", "", "Middle", " Start"}) {
    EXPECT_EQ(GetSqlVal("a%", true, "%", position), "'a[%]'") << position;
  }
}

TEST_F(GetSqlValTest, The_wildcard_goes_in_as_it_stands) {
  EXPECT_EQ(GetSqlVal("a", true, "_%'", "End"), " like 'a_%''");
  EXPECT_EQ(GetSqlVal("a", true, "", "End"), " like 'a'");
}

TEST_F(GetSqlValTest, The_like_is_looked_at_for_text_alone) {
  EXPECT_EQ(GetSqlVal(5, true, "%", "Both"), "5");
  EXPECT_EQ(GetSqlVal(ado::Null(), true, "%", "Both"), "null");
}

TEST_F(GetSqlValTest, An_object_and_an_array_are_nothing_at_all) {
  EXPECT_EQ(GetSqlVal(Value(std::make_shared<ado::Recordset>())), "");
  EXPECT_EQ(GetSqlVal(Value(ado::ObjectReference())), "");
  EXPECT_EQ(GetSqlVal(Value(ado::Array{1, 2})), "");
  EXPECT_EQ(host.notices, Notices{});
}

TEST_F(GetSqlValTest, A_date_outside_of_the_calendar_is_nothing_and_tells_so_under_the_dates_own_name) {
  EXPECT_EQ(GetSqlVal(Date{1e9}), "");
  EXPECT_EQ(host.notices, Notices{"提示信息|Get_DateStr():溢出"});
}

TEST_F(EscapeLikeTest, Gives_a_text_that_finds_just_this_text) {
  const Value escaped = EscapeLike("  it's 100%_[a] ");
  ASSERT_NE(escaped.get_if<std::string>(), nullptr);
  EXPECT_EQ(*escaped.get_if<std::string>(), "it''s 100[%][_][[]a]");
  EXPECT_EQ(EscapeLike(""), Value(""));
}

TEST_F(Get_DateStrTest, Formats_the_month_the_day_and_the_time) {
  const Date evening = moment("2024-03-05 21:07:09");
  EXPECT_EQ(Get_DateStr(evening, 0), "'2024-03-05 21:07:09'");
  EXPECT_EQ(Get_DateStr(evening, 1), "'2024-03'");
  EXPECT_EQ(Get_DateStr(evening, 2), "'2024-03-05'");
  EXPECT_EQ(Get_DateStr(evening, 3), "'21:07:09'");
  for (const Integer other : {Integer{4}, Integer{-1}, Integer{99}}) {
    EXPECT_EQ(Get_DateStr(evening, other), "'2024-03-05 21:07:09'");
  }
  session().DATAType = access_dialect;
  EXPECT_EQ(Get_DateStr(evening, 2), "#2024-03-05#");
}

TEST_F(Get_DateStrTest, Up_to_the_year_1900_the_default_form_takes_the_place_of_the_fixed_one) {
  EXPECT_EQ(Get_DateStr(moment("1900-12-31 09:05:00"), 0), "'1900/12/31 9:05:00'");
  EXPECT_EQ(Get_DateStr(moment("1901-01-01 09:05:00"), 0), "'1901-01-01 09:05:00'");
  EXPECT_EQ(Get_DateStr(moment("1899-01-02"), 0), "'1899/1/2'");
  EXPECT_EQ(Get_DateStr(Date{0}, 0), "'0:00:00'");
  EXPECT_EQ(Get_DateStr(Date{0.25}, 0), "'6:00:00'");
}

TEST_F(Get_DateStrTest, The_default_form_is_read_back_where_a_part_of_it_is_asked_for) {
  EXPECT_EQ(Get_DateStr(moment("1900-02-03 09:05:00"), 1), "'1900-02'");
  EXPECT_EQ(Get_DateStr(moment("1900-02-03 09:05:00"), 2), "'1900-02-03'");
  EXPECT_EQ(Get_DateStr(moment("1900-02-03 09:05:00"), 3), "'09:05:00'");
  EXPECT_EQ(Get_DateStr(Date{0.25}, 2), "'1899-12-30'");
}

TEST_F(Get_DateStrTest, Without_a_dialect_it_is_nothing_and_shows_nothing) {
  session().DATAType = "[Microsoft access]";
  EXPECT_EQ(Get_DateStr(moment("2024-03-05"), 2), "");
  EXPECT_EQ(host.notices, Notices{});
}

TEST_F(Get_DateStrTest, Outside_of_the_calendar_it_shows_its_notice) {
  EXPECT_EQ(Get_DateStr(Date{-1e9}, 0), "");
  EXPECT_EQ(host.notices, Notices{"提示信息|Get_DateStr():溢出"});
}

}  // namespace
}  // namespace brunvik
