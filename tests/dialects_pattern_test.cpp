// A pattern taken apart.
#include <gtest/gtest.h>

#include <stdexcept>

#include "drivers/dialects/pattern.h"

namespace brunvik::dialects {
namespace {

std::string told(std::string_view pattern) {
  using Kind = PatternElement::Kind;
  std::string text;
  for (const PatternElement& element : elements_of(pattern)) {
    const char* const kind = element.kind == Kind::any_text        ? "any text"
                             : element.kind == Kind::any_character ? "any character"
                             : element.kind == Kind::character     ? "character"
                                                                   : "list";
    text += std::string(kind) + " " + std::string(element.text) + "; ";
  }
  return text;
}

TEST(Pattern, A_list_of_one_is_that_character) {
  EXPECT_EQ(told("中%_[a-f][%][]][^0][^]"),
            "character 中; any text %; any character _; list a-f; character %; character ]; list ^0; character ^; ");
}

TEST(Pattern, A_bracket_without_an_end_is_refused) {
  EXPECT_THROW(elements_of("a[b"), std::invalid_argument);
  EXPECT_THROW(elements_of("["), std::invalid_argument);
  EXPECT_THROW(elements_of("[]"), std::invalid_argument);
}

TEST(Pattern, A_literal_holds_each_apostrophe_twice) {
  EXPECT_EQ(plain_text("'O''Neil'"), "O'Neil");
  EXPECT_EQ(quoted("O'Neil"), "'O''Neil'");
}

}  // namespace
}  // namespace brunvik::dialects
