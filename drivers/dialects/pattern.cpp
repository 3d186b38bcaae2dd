#include "drivers/dialects/pattern.h"

#include <algorithm>
#include <stdexcept>

#include "brunvik/ado/names.h"

namespace brunvik::dialects {

namespace {

bool is_letter_or_digit(char c) {
  const char small = ado::lower(c);
  return (small >= 'a' && small <= 'z') || (c >= '0' && c <= '9');
}

}  // namespace

std::vector<PatternElement> elements_of(std::string_view pattern) {
  using Kind = PatternElement::Kind;
  std::vector<PatternElement> elements;
  const auto take = [&pattern, &elements](Kind kind, std::size_t length) {
    elements.push_back({kind, pattern.substr(0, length)});
    pattern.remove_prefix(length);
  };
  while (!pattern.empty()) {
    if (pattern.front() == '%') {
      take(Kind::any_text, 1);
    } else if (pattern.front() == '_') {
      take(Kind::any_character, 1);
    } else if (pattern.front() != '[') {
      take(Kind::character, length_of_character(pattern));
    } else {
      const std::string_view list = list_at(pattern);
      if (list.empty()) {
        throw std::invalid_argument("A bracket in a pattern has no end: " + std::string(pattern));
      }
      pattern.remove_prefix(1);
      take(length_of_character(list) == list.size() ? Kind::character : Kind::list, list.size());
      pattern.remove_prefix(1);
    }
  }
  return elements;
}

std::size_t length_of_character(std::string_view text) noexcept {
  if ((static_cast<unsigned char>(text.front()) & 0xc0) != 0xc0) return 1;
  std::size_t length = 1;
  while (length < text.size() && length < 4 && (static_cast<unsigned char>(text[length]) & 0xc0) == 0x80) ++length;
  return length;
}

std::string_view list_at(std::string_view pattern) noexcept {
  const std::size_t end = pattern.find(']', 2);
  return end == std::string_view::npos ? std::string_view() : pattern.substr(1, end - 1);
}

std::string_view plain_beginning(std::string_view literal) noexcept {
  if (literal.size() < 4 || !literal.ends_with("%'")) return {};
  const std::string_view beginning = literal.substr(1, literal.size() - 3);
  return std::all_of(beginning.begin(), beginning.end(), is_letter_or_digit) ? beginning : std::string_view();
}

// No letter or digit is the last character of its kind.
std::string behind_all_that_begin(std::string_view beginning) {
  std::string behind(beginning);
  behind.back() = static_cast<char>(ado::lower(behind.back()) + 1);
  return behind;
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

}  // namespace brunvik::dialects
