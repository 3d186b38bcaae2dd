#include "drivers/odbc/literal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/money.h"
#include "brunvik/ado/numbers.h"
#include "drivers/dialects/rounding.h"

namespace brunvik::odbc {

namespace {

using dialects::Decimal;
using dialects::LiteralKind;
using dialects::Target;

[[noreturn]] void refuse_number(std::string_view number, std::string_view statement) {
  throw ado::RuntimeError(ado::error::data_overflow,
                          "The column can't keep a number as large as " + std::string(number) + ".",
                          std::string(statement));
}

std::string shortest(double value) {
  std::array<char, 32> digits{};
  return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr};
}

// 1e-1 is 0.1; what has too many digits for that stays what it is.
std::string without_exponent(std::string_view number) {
  const auto sign = number.find_first_of("eE");
  if (sign == std::string_view::npos) return std::string(number);
  int exponent = 0;
  const std::string_view power = number.substr(number[sign + 1] == '+' ? sign + 2 : sign + 1);
  std::from_chars(power.data(), power.data() + power.size(), exponent);
  constexpr int most_places = 30;
  if (std::abs(exponent) > most_places) return std::string(number);
  std::string digits(number.substr(0, sign));
  const auto point = digits.find('.');
  auto places = point == std::string::npos ? 0 : static_cast<int>(digits.size() - point) - 1;
  if (point != std::string::npos) digits.erase(point, 1);
  places -= exponent;
  if (places <= 0) return digits.append(static_cast<std::size_t>(-places), '0');
  if (digits.size() <= static_cast<std::size_t>(places)) {
    digits.insert(0, static_cast<std::size_t>(places) - digits.size() + 1, '0');
  }
  return digits.insert(digits.size() - static_cast<std::size_t>(places), ".");
}

void append_number(std::string& text, std::string_view digits, Target target, std::string_view statement) {
  const Decimal number = *Decimal::read(digits);
  if (target == Target::money) {
    const dialects::Amount amount = number.amount();
    if (!amount) refuse_number(digits, statement);
    text += ado::Money::from_ten_thousandths(*amount).text();
  } else if (target == Target::single) {
    const double single = dialects::single_of(number.to_double());
    if (!std::isfinite(single)) refuse_number(digits, statement);
    text += shortest(single);
  } else {
    text += without_exponent(digits);
  }
}

// A zero byte would end the statement in the driver manager.
void append_bytes(std::string& text, std::string_view content) {
  constexpr std::string_view digits = "0123456789abcdef";
  text += "_utf8mb4 x'";
  for (const char c : with_single_apostrophes(content)) {
    text += digits[static_cast<unsigned char>(c) >> 4U];
    text += digits[static_cast<unsigned char>(c) & 15U];
  }
  text += '\'';
}

void append_text(std::string& text, std::string_view content) {
  if (content.find('\0') != std::string_view::npos) return append_bytes(text, content);
  text.append("'").append(content).append("'");
}

}  // namespace

std::string with_single_apostrophes(std::string_view content) {
  std::string text;
  text.reserve(content.size());
  for (std::size_t place = 0; place < content.size(); ++place) {
    text += content[place];
    if (content[place] == '\'') ++place;
  }
  return text;
}

void append_literal(std::string& text, const dialects::Literal& literal, Target target, std::string_view statement) {
  if (literal.kind == LiteralKind::number) return append_number(text, literal.content, target, statement);
  std::string_view content = literal.content;
  if (target == Target::key) {
    while (content.ends_with(' ')) content.remove_suffix(1);
  } else if (dialects::has_decimals(target)) {
    const std::string_view number = ado::trimmed_number(content);
    const bool has_sign = number.starts_with('-') || number.starts_with('+');
    const std::string_view digits = number.substr(has_sign ? 1 : 0);
    if (Decimal::read(digits)) {
      // Behind another sign this one must not open a comment.
      if (has_sign) text.append(" ").append(1, number.front());
      return append_number(text, digits, target, statement);
    }
  }
  append_text(text, content);
}

}  // namespace brunvik::odbc
