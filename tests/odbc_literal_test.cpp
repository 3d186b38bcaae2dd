// Values as MariaDB reads them: an amount in its four places, a quantity as the decimal of its single, a key without
// trailing blanks, a text as it is.
#include <gtest/gtest.h>

#include "brunvik/ado/errors.h"
#include "drivers/odbc/literal.h"

namespace brunvik::odbc {
namespace {

using dialects::Literal;
using dialects::LiteralKind;
using dialects::Target;

std::string written(LiteralKind kind, std::string_view content, Target target) {
  Literal literal{};
  literal.kind = kind;
  literal.content = content;
  literal.has_apostrophes = content.find('\'') != std::string_view::npos;
  std::string text = "=";
  append_literal(text, literal, target, "the statement");
  return text.substr(1);
}

std::string number(std::string_view content, Target target) { return written(LiteralKind::number, content, target); }
std::string text(std::string_view content, Target target) { return written(LiteralKind::text, content, target); }

Long error_of(std::string_view content, Target target) {
  try {
    number(content, target);
    return 0;
  } catch (const ado::RuntimeError& failure) {
    EXPECT_EQ(failure.statement(), "the statement");
    return failure.number();
  }
}

TEST(OdbcLiteral, An_amount_has_four_places_ties_to_the_even_digit) {
  EXPECT_EQ(number("1.00005", Target::money), "1");
  EXPECT_EQ(number("1.00015", Target::money), "1.0002");
  EXPECT_EQ(number("12e-1", Target::money), "1.2");
  EXPECT_EQ(number(".5", Target::money), "0.5");
  EXPECT_EQ(number("549755813887.9999", Target::money), "549755813887.9999");
  EXPECT_EQ(error_of("549755813888", Target::money), ado::error::data_overflow);
  EXPECT_EQ(error_of("1e300", Target::money), ado::error::data_overflow);
}

TEST(OdbcLiteral, An_amount_in_quotes_is_an_amount_whose_sign_opens_no_comment) {
  EXPECT_EQ(text("2.00005", Target::money), "2");
  EXPECT_EQ(text(" -12.5 ", Target::money), " -12.5");
  EXPECT_EQ(text("much", Target::money), "'much'");
  EXPECT_EQ(text("", Target::money), "''");
}

TEST(OdbcLiteral, A_quantity_is_the_decimal_of_its_single) {
  EXPECT_EQ(number("0.1", Target::single), "0.1");
  EXPECT_EQ(number("16777217", Target::single), "16777216");
  EXPECT_EQ(number("0.1234567891", Target::single), "0.12345679");
  EXPECT_EQ(error_of("1e39", Target::single), ado::error::data_overflow);
}

TEST(OdbcLiteral, Any_other_number_stays_a_decimal) {
  EXPECT_EQ(number("1e-1", Target::plain), "0.1");
  EXPECT_EQ(number("1.5E+3", Target::plain), "1500");
  EXPECT_EQ(number("12.345e1", Target::plain), "123.45");
  EXPECT_EQ(number("007", Target::plain), "007");
  EXPECT_EQ(number("1e300", Target::plain), "1e300");
}

TEST(OdbcLiteral, A_key_loses_its_trailing_blanks_and_a_text_does_not) {
  EXPECT_EQ(text("B1  ", Target::key), "'B1'");
  EXPECT_EQ(text("  ", Target::key), "''");
  EXPECT_EQ(text("two  ", Target::plain), "'two  '");
}

TEST(OdbcLiteral, A_text_goes_as_it_is_written_and_a_zero_byte_by_its_number) {
  EXPECT_EQ(text("O''Neil \\", Target::plain), "'O''Neil \\'");
  EXPECT_EQ(text(std::string_view("a\0''", 4), Target::plain), "_utf8mb4 x'610027'");
}

TEST(OdbcLiteral, Apostrophes_that_stand_twice_become_one) {
  EXPECT_EQ(with_single_apostrophes("O''Neil"), "O'Neil");
  EXPECT_EQ(with_single_apostrophes("''''"), "''");
  EXPECT_EQ(with_single_apostrophes(""), "");
}

}  // namespace
}  // namespace brunvik::odbc
