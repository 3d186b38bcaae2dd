#include "drivers/sqlite/pattern.h"

#include <cstddef>
#include <stdexcept>

#include "brunvik/ado/characters.h"

namespace brunvik::sqlite {

namespace {

constexpr char escape = '\\';

// The bytes of the character at the front of a text. A byte that begins no character counts as one.
std::size_t length_of_character(std::string_view text) noexcept {
  if ((static_cast<unsigned char>(text.front()) & 0xc0) != 0xc0) return 1;
  std::size_t length = 1;
  while (length < text.size() && length < 4 && (static_cast<unsigned char>(text[length]) & 0xc0) == 0x80) ++length;
  return length;
}

// Characters in their order, letters without their case.
char32_t order_of(std::string_view character) noexcept { return ado::upper_case(ado::take_character(character)); }

// The engine knows the two cases of ASCII letters alone.
bool has_case_beyond_ascii(std::string_view text) noexcept {
  while (!text.empty()) {
    const char32_t character = ado::take_character(text);
    if (character >= 0x80 && ado::has_case(character)) return true;
  }
  return false;
}

// What stands between the bracket at the front and its end, which is never the first character of the list; null
// without an end.
std::string_view list_at(std::string_view pattern) noexcept {
  const std::size_t end = pattern.find(']', 2);
  return end == std::string_view::npos ? std::string_view() : pattern.substr(1, end - 1);
}

bool list_has(std::string_view list, std::string_view character) noexcept {
  const bool outside = list.size() > 1 && list.front() == '^';
  if (outside) list.remove_prefix(1);
  const char32_t wanted = order_of(character);
  const auto take = [&list] {
    const std::size_t length = length_of_character(list);
    const char32_t order = order_of(list.substr(0, length));
    list.remove_prefix(length);
    return order;
  };
  bool found = false;
  while (!list.empty() && !found) {
    const char32_t first = take();
    char32_t last = first;
    if (list.size() > 1 && list.front() == '-') {
      list.remove_prefix(1);
      last = take();
    }
    found = first <= wanted && wanted <= last;
  }
  return found != outside;
}

// Whether the front of a pattern (no %) matches one character; `used` is the length of that front.
bool matches_one(std::string_view pattern, std::string_view character, std::size_t& used) noexcept {
  if (pattern.front() == '_') {
    used = 1;
    return true;
  }
  if (const std::string_view list = pattern.front() == '[' ? list_at(pattern) : std::string_view(); !list.empty()) {
    used = list.size() + 2;
    return list_has(list, character);
  }
  used = length_of_character(pattern);
  return order_of(pattern.substr(0, used)) == order_of(character);
}

std::string plain_text(std::string_view literal) {
  std::string text;
  for (std::size_t place = 1; place + 1 < literal.size(); ++place) {
    text += literal[place];
    if (literal[place] == '\'') ++place;
  }
  return text;
}

std::string quoted(std::string_view text) {
  std::string literal = "'";
  for (const char c : text) {
    literal += c;
    if (c == '\'') literal += c;
  }
  return literal + "'";
}

}  // namespace

TranslatedPattern translate_pattern(std::string_view literal) {
  const std::string pattern = plain_text(literal);
  std::string translated;
  bool has_lists = has_case_beyond_ascii(pattern);
  bool has_escapes = false;
  for (std::string_view rest = pattern; !rest.empty();) {
    if (rest.front() != '[') {
      if (rest.front() == escape) translated += escape;
      translated += rest.front();
      rest.remove_prefix(1);
      continue;
    }
    const std::string_view list = list_at(rest);
    if (list.empty()) throw std::invalid_argument("A bracket in a pattern has no end: " + pattern);
    has_escapes = true;
    if (length_of_character(list) != list.size()) has_lists = true;
    if (list == "%" || list == "_" || list.front() == escape) translated += escape;
    translated += list;
    rest.remove_prefix(list.size() + 2);
  }
  if (has_lists) return {true, quoted(pattern)};
  // The engine takes "x%" for a range and looks no further. Trailing blanks don't count in a range, as they do in a
  // pattern, so behind a blank it is made to look.
  const std::string_view ending = pattern.size() > 1 ? std::string_view(pattern).substr(pattern.size() - 2) : "";
  const std::string_view more = ending == " %" ? "%" : "";
  if (!has_escapes) return {false, quoted(pattern + std::string(more))};
  return {false, quoted(translated + std::string(more)) + " escape '\\'"};
}

bool matches(std::string_view pattern, std::string_view text) noexcept {
  // Only the last % needs to be gone back to: it can take over what an earlier one would have taken.
  bool any = false;
  std::string_view pattern_behind_any;
  std::string_view text_behind_any;
  for (;;) {
    if (!pattern.empty() && pattern.front() == '%') {
      pattern.remove_prefix(1);
      any = true;
      pattern_behind_any = pattern;
      text_behind_any = text;
      continue;
    }
    if (text.empty()) return pattern.empty();
    std::size_t used = 0;
    const std::size_t length = length_of_character(text);
    if (!pattern.empty() && matches_one(pattern, text.substr(0, length), used)) {
      pattern.remove_prefix(used);
      text.remove_prefix(length);
      continue;
    }
    if (!any) return false;
    text_behind_any.remove_prefix(length_of_character(text_behind_any));
    pattern = pattern_behind_any;
    text = text_behind_any;
  }
}

}  // namespace brunvik::sqlite
