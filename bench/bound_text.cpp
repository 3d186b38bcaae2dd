#include "bench/bound_text.h"

#include <charconv>

namespace brunvik::bench {

namespace {

bool is_word(char c) { return c == '_' || (c >= '0' && c <= '9') || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z'); }
bool is_digit(char c) { return c >= '0' && c <= '9'; }

template <class Number>
Number number(std::string_view digits) {
  Number value{};
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

}  // namespace

BoundText with_bound_values(std::string_view text) {
  BoundText bound;
  std::string& words = bound.words;
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t first = place;
    if (text[place] == '\'') {
      std::string value;
      for (++place; text[place] != '\'' || text.substr(place).starts_with("''"); ++place) {
        value += text[place];
        if (text[place] == '\'') ++place;
      }
      ++place;
      words += '?';
      bound.values.emplace_back(std::move(value));
    } else if (is_digit(text[place]) && (place == 0 || !is_word(text[place - 1]))) {
      while (place < text.size() && (is_digit(text[place]) || text[place] == '.')) ++place;
      const std::string_view digits = text.substr(first, place - first);
      // As whoever writes the statement for its index would have it: it holds nothing but the rows with a zero.
      if (digits == "0" && words.ends_with('=') && words.starts_with("select")) {
        words += digits;
        continue;
      }
      words += '?';
      if (digits.find('.') == std::string_view::npos) {
        bound.values.emplace_back(number<std::int64_t>(digits));
      } else {
        bound.values.emplace_back(number<double>(digits));
      }
    } else {
      words += text[place++];
    }
  }
  return bound;
}

}  // namespace brunvik::bench
