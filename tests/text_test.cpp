#include "brunvik/foundation/text.h"

#include <gtest/gtest.h>

#include <string>

#include "brunvik/ado/names.h"

namespace brunvik {
namespace {

TEST(Text, Trimming_takes_blanks_at_both_ends_alone) {
  EXPECT_EQ(trimmed("  a b  "), "a b");
  EXPECT_EQ(trimmed("a"), "a");
  EXPECT_EQ(trimmed("   "), "");
  EXPECT_EQ(trimmed(""), "");
  EXPECT_EQ(trimmed("\ta\n"), "\ta\n");
  EXPECT_EQ(trimmed("　全角　"), "　全角　");
}

TEST(Text, Upper_case_goes_by_the_simple_mapping_of_each_character) {
  EXPECT_EQ(upper_case("update goods set X='abc'"), "UPDATE GOODS SET X='ABC'");
  EXPECT_EQ(upper_case("ａｂｃ é ß ÿ 螺丝 ω"), "ＡＢＣ É ß Ÿ 螺丝 Ω");
  EXPECT_EQ(upper_case(""), "");
}

TEST(Text, Upper_case_leaves_bytes_that_are_no_text) {
  EXPECT_EQ(upper_case("a\xFF\x80z"), "A\xFF\x80Z");
  EXPECT_EQ(upper_case("a\xE8\x9E"), "A\xE8\x9E");
}

TEST(Text, Every_occurrence_is_replaced_and_the_replacement_is_not_looked_at_again) {
  EXPECT_EQ(replaced("a'b'c", "'", "''"), "a''b''c");
  EXPECT_EQ(replaced("[[", "[", "[[]"), "[[][[]");
  EXPECT_EQ(replaced("TRUE,TRUE,", "TRUE,", "1,"), "1,1,");
  EXPECT_EQ(replaced("true,", "TRUE,", "1,"), "true,");
  EXPECT_EQ(replaced("", "x", "y"), "");
}

TEST(Text, A_position_counts_characters_and_not_bytes) {
  EXPECT_EQ(text_from("QTR24030500001", 10), "00001");
  EXPECT_EQ(text_from("进货单240305001", 10), "001");
  EXPECT_EQ(text_from("short", 10), "");
  EXPECT_EQ(text_from("short", 1), "short");
  EXPECT_EQ(text_from("", 1), "");
}

TEST(Names, Are_equal_without_regard_to_the_case_of_ascii_letters) {
  EXPECT_TRUE(ado::same_name("ManualId", "manualID"));
  EXPECT_FALSE(ado::same_name("Manual", "ManualId"));
  EXPECT_FALSE(ado::same_name("É", "é"));
  EXPECT_TRUE(ado::same_name("", ""));
  EXPECT_FALSE(ado::same_name("[", "{"));
}

}  // namespace
}  // namespace brunvik
