#include "drivers/sqlite/pattern.h"

#include <cstddef>

#include "brunvik/ado/characters.h"
#include "drivers/dialects/pattern.h"

namespace brunvik::sqlite {

namespace {

constexpr char escape = '\\';

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

}  // namespace

TranslatedPattern translate_pattern(std::string_view literal) {
  using Kind = PatternElement::Kind;
  const std::string pattern = plain_text(literal);
  std::string without_escapes;
  std::string translated;
  bool has_lists = has_case_beyond_ascii(pattern);
  bool has_escapes = false;
  for (const auto& [kind, text] : elements_of(pattern)) {
    if (kind == Kind::list) has_lists = true;
    const bool is_sign = kind == Kind::character && (text == "%" || text == "_");
    has_escapes = has_escapes || is_sign;
    if (is_sign || text.front() == escape) translated += escape;
    translated += text;
    without_escapes += text;
  }
  if (has_lists) return {true, quoted(pattern)};
  // The engine takes "x%" for a range and looks no further. Trailing blanks don't count in a range, as they do in a
  // pattern, so behind a blank it is made to look.
  const std::string_view more = pattern.ends_with(" %") ? "%" : "";
  if (!has_escapes) return {false, quoted(without_escapes.append(more))};
  return {false, quoted(translated.append(more)) + " escape '\\'"};
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
