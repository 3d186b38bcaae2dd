// LIKE patterns: % for any text, _ for one character, and in brackets one character of a list, as in [_], [a-f],
// [^0-9]. Letters match without regard to case.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brunvik::dialects {

struct PatternElement {
  enum class Kind { any_text, any_character, character, list };

  Kind kind;
  std::string_view text;  // the character, also of a list that holds one alone; or what stands between the brackets
};

// The elements point into the pattern. Throws std::invalid_argument for a bracket without an end.
std::vector<PatternElement> elements_of(std::string_view pattern);

// The bytes of the character at the front of a text. A byte that begins no character counts as one.
std::size_t length_of_character(std::string_view text) noexcept;

// What stands between the bracket at the front of a pattern and its end, which is never the first character of the
// list; empty without an end.
std::string_view list_at(std::string_view pattern) noexcept;

// XSC of the literal 'XSC%'; empty where the pattern is more than a beginning of ASCII letters and digits.
std::string_view plain_beginning(std::string_view literal) noexcept;

// The first text behind all that begin so, in the order of an index: XSD.
std::string behind_all_that_begin(std::string_view beginning);

// A literal without its apostrophes, each apostrophe in it once; and the literal of a text.
std::string plain_text(std::string_view literal);
std::string quoted(std::string_view text);

}  // namespace brunvik::dialects
