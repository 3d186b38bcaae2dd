// Patterns in MariaDB's words: a list in brackets makes a regular expression of the whole, a sign that means something
// to the engine alone is escaped.
#include <gtest/gtest.h>

#include <stdexcept>

#include "drivers/odbc/mariadb_pattern.h"

namespace brunvik::odbc {
namespace {

TEST(OdbcPattern, Without_brackets_it_stays_a_pattern) {
  const auto pattern = translate_pattern("'QTR240305%_'");
  EXPECT_FALSE(pattern.is_expression);
  EXPECT_EQ(pattern.literal, "'QTR240305%_'");
  EXPECT_EQ(translate_pattern("'O''Neil%'").literal, "'O''Neil%'");
}

TEST(OdbcPattern, A_sign_in_brackets_and_a_backslash_are_escaped) {
  EXPECT_EQ(translate_pattern("'100[%]'").literal, R"('100\%' escape '\')");
  EXPECT_EQ(translate_pattern("'a[_]b%'").literal, R"('a\_b%' escape '\')");
  EXPECT_EQ(translate_pattern(R"('c\d')").literal, R"('c\\d' escape '\')");
  EXPECT_EQ(translate_pattern("'[[]x]'").literal, "'[x]'");
}

TEST(OdbcPattern, A_list_is_an_expression_whose_other_signs_mean_themselves) {
  const auto pattern = translate_pattern("'[A-C][^0-9]_%.x'");
  EXPECT_TRUE(pattern.is_expression);
  EXPECT_EQ(pattern.literal, R"('(?s)^[A-C][^0-9]..*\.x\z')");
  EXPECT_EQ(translate_pattern("'[a-]中'").literal, R"('(?s)^[a\-]中\z')");
  EXPECT_EQ(translate_pattern(R"('[\^]')").literal, R"('(?s)^[\\\^]\z')");
}

TEST(OdbcPattern, A_bracket_without_an_end_is_refused) {
  EXPECT_THROW(translate_pattern("'a[b'"), std::invalid_argument);
}

}  // namespace
}  // namespace brunvik::odbc
