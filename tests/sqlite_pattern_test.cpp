// The patterns that SQLite leaves to the driver.
#include <gtest/gtest.h>

#include "drivers/sqlite/pattern.h"

namespace brunvik::sqlite {
namespace {

TEST(SqlitePattern, A_pattern_matches_as_it_is_written) {
  EXPECT_TRUE(matches("", ""));
  EXPECT_TRUE(matches("%", ""));
  EXPECT_FALSE(matches("_", ""));
  EXPECT_TRUE(matches("%a%b", "xaxbab"));
  EXPECT_FALSE(matches("%a%b", "xaxbabc"));
  EXPECT_TRUE(matches("_仓", "主仓"));
  EXPECT_TRUE(matches("[]]", "]"));
  EXPECT_TRUE(matches("[a-]", "-"));
  EXPECT_TRUE(matches("[^a]", "b"));
  EXPECT_FALSE(matches("[^a]", "A"));
  EXPECT_TRUE(matches("[一-龥]", "主"));
  EXPECT_TRUE(matches("%[%]", "5%"));
}

}  // namespace
}  // namespace brunvik::sqlite
