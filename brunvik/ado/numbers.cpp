#include "brunvik/ado/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include "brunvik/ado/errors.h"

namespace brunvik::ado {

namespace {

// From here on, plain notation would spell out digits that don't belong to the number: every whole number below is
// exact, and above only some are.
template <class Number>
constexpr Number first_inexact = static_cast<Number>(std::uint64_t{1} << std::numeric_limits<Number>::digits);

// The shortest digits with as many zeros as the exponent asks for.
template <class Number>
void append_large(std::string& text, Number value) {
  std::array<char, 40> buffer;
  const char* end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific).ptr;
  const std::string_view scientific(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const auto exponent_mark = scientific.find('e');
  std::size_t exponent = 0;
  std::from_chars(scientific.data() + exponent_mark + 2, end, exponent);
  std::size_t places = 0;
  bool behind_point = false;
  for (const char c : scientific.substr(0, exponent_mark)) {
    if (c == '.') {
      behind_point = true;
    } else {
      text += c;
      if (behind_point) ++places;
    }
  }
  text.append(exponent - places, '0');
}

template <class Number>
void append_floating(std::string& text, Number value) {
  if (std::fabs(value) < first_inexact<Number>) {
    // Most quantities are whole, and the digits of a whole number are found at a third of the cost.
    const auto whole = static_cast<std::int64_t>(value);
    if (static_cast<Number>(whole) == value) return append_number(text, whole);
  } else if (std::isfinite(value)) {
    return append_large(text, value);
  }
  // The longest plain text has some 340 digits behind the point.
  std::array<char, 400> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
  text.append(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
}

template <class Whole>
Whole to_whole(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
    raise(error::overflow);
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

void append_number(std::string& text, std::int64_t value) {
  std::array<char, 24> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  text.append(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
}

std::string number_text(Long value) {
  std::array<char, 12> buffer;
  return {buffer.data(), std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr};
}

void append_number(std::string& text, Single value) { append_floating(text, value); }
void append_number(std::string& text, Double value) { append_floating(text, value); }

std::string_view trimmed_number(std::string_view text) noexcept {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

double parse_double(std::string_view text) {
  std::string_view number = trimmed_number(text);
  if (number.starts_with('+') && !number.starts_with("+-")) number.remove_prefix(1);
  double value = 0;
  const auto [end, failure] = std::from_chars(number.data(), number.data() + number.size(), value);
  if (failure == std::errc::result_out_of_range) raise(error::overflow);
  if (failure != std::errc{} || end != number.data() + number.size() || !std::isfinite(value)) {
    raise(error::type_mismatch);
  }
  return value;
}

Long to_long(double value) { return to_whole<Long>(value); }
Integer to_integer(double value) { return to_whole<Integer>(value); }
Byte to_byte(double value) { return to_whole<Byte>(value); }

Single to_single(double value) {
  if (!(std::fabs(value) <= std::numeric_limits<Single>::max())) raise(error::overflow);
  return static_cast<Single>(value);
}

}  // namespace brunvik::ado
