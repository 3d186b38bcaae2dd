#include "brunvik/foundation/sql_text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/statement_writer.h"
#include "tests/support/apartment.h"

namespace brunvik {
namespace {

TEST(StatementWriter, Keeps_a_statement_of_any_length) {
  StatementWriter statement;
  std::string expected;
  for (int piece = 0; piece < 500; ++piece) {
    const std::string text(static_cast<std::size_t>(piece), 'a');
    statement.add_quoted(" " + text + "'");
    statement.add(std::int64_t{-piece});
    statement.add(",");
    expected += "'" + text + "'''" + std::to_string(-piece) + ",";
  }
  EXPECT_EQ(statement.text(), expected);
}

// A text that is nowhere has no byte to copy from.
TEST(StatementWriter, A_piece_of_nothing_adds_nothing) {
  StatementWriter statement;
  statement.add(std::string_view());
  statement.add("a");
  statement.add(std::string_view());
  EXPECT_EQ(statement.text(), "a");
}

TEST(StatementWriter, Doubles_an_apostrophe_wherever_it_stands) {
  for (std::size_t length = 1; length <= 70; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, 'a');
      text.replace(place, 1, "'");
      std::string expected = text;
      expected.insert(place, "'");
      StatementWriter statement;
      statement.add_quoted(text);
      EXPECT_EQ(statement.text(), "'" + expected + "'");
      EXPECT_EQ(brunvik::quoted(text), "'" + expected + "'");
    }
  }
}

std::string written(Single number) {
  StatementWriter statement;
  statement.add(number);
  return std::string(statement.text());
}

std::string shortest(Single number) {
  std::string text;
  ado::append_number(text, number);
  return text;
}

TEST(StatementWriter, Writes_a_single_as_its_shortest_text) {
  for (int quarters = -400'003; quarters <= 400'003; quarters += 3) {
    const Single number = static_cast<Single>(quarters) / 4;
    EXPECT_EQ(written(number), shortest(number));
  }
  for (const Single number : {0.1F, -0.0F, 1e-7F, 0.125F, 99'999.99F, 100'000.25F, 262'144.25F, 1e10F, 3e38F}) {
    EXPECT_EQ(written(number), shortest(number));
  }
}

TEST(Statement, Gives_its_text_as_a_view_and_as_a_string_of_any_length) {
  for (const std::size_t length : {std::size_t{3}, std::size_t{5'000}}) {
    const std::string value(length, 'a');
    const Statement statement = sql("a={}", value);
    const std::string_view view = statement;
    const std::string text = statement;
    EXPECT_EQ(view, "a='" + value + "'");
    EXPECT_EQ(text, view);
  }
}

TEST(SqlText, Puts_each_value_at_its_place) {
  EXPECT_EQ(sql("update stockbill set Status={},Auditor={} where id={}", Long{3}, std::string("O'Neil "), "QTR1"),
            "update stockbill set Status=3,Auditor='O''Neil' where id='QTR1'");
}

TEST(SqlText, Without_places_the_text_goes_out_as_it_stands) {
  EXPECT_EQ(sql("select * from goods"), "select * from goods");
}

TEST(SqlText, Writes_each_type_as_a_value) {
  EXPECT_EQ(sql("{},{},{},{},{},{},{},{}", Byte{7}, Integer{-3}, Long{100'000}, Single{0.1F}, 0.25,
                Money::parse("12.50"), true, false),
            "7,-3,100000,0.1,0.25,12.5,1,0");
}

TEST(SqlText, Writes_a_dynamically_typed_value_by_what_it_holds) {
  test::Session guard;
  session().DATAType = access_dialect;
  const Value null{ado::Null()};
  const Value text{"a'b"};
  const Value date{ado::parse_date("2024-03-05 10:00:00")};
  EXPECT_EQ(sql("{},{},{}", null, text, date), "null,'a''b',#2024-03-05 10:00:00#");
}

TEST(SqlText, A_value_with_braces_is_a_value) { EXPECT_EQ(sql("a={} b={}", "{}", "{raw}"), "a='{}' b='{raw}'"); }

TEST(SqlText, A_like_key_is_escaped_and_has_no_like_word) {
  EXPECT_EQ(sql("id > {like} and type={}", std::string(" a_1'% "), Long{6}), "id > 'a[_]1''[%]' and type=6");
}

TEST(SqlText, A_raw_value_goes_in_as_it_stands) {
  EXPECT_EQ(sql("delete from {raw} where bid= '{raw} '", "RPBItems", std::string("O'Neil ")),
            "delete from RPBItems where bid= 'O'Neil  '");
  EXPECT_EQ(sql("{raw}{raw}", Long{3}, Money::parse("0.5")), "30.5");
}

TEST(SqlText, Quoting_trims_blanks_and_doubles_apostrophes) {
  std::string text = "x=";
  append_quoted(text, " it's ");
  append_quoted(text, "   ");
  append_quoted(text, "''");
  EXPECT_EQ(text, "x='it''s'''''''''");
}

}  // namespace
}  // namespace brunvik
