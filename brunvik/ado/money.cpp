#include "brunvik/ado/money.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <ostream>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/numbers.h"

namespace brunvik::ado {

namespace {

__extension__ using Wide = __int128;

Money narrow(Wide count) {
  if (count < std::numeric_limits<std::int64_t>::min() || count > std::numeric_limits<std::int64_t>::max()) {
    raise(error::overflow);
  }
  return Money::from_ten_thousandths(static_cast<std::int64_t>(count));
}

Wide divide_ties_to_even(Wide dividend, Wide divisor) {
  Wide quotient = dividend / divisor;
  const Wide remainder = dividend % divisor;
  const Wide twice = 2 * (remainder < 0 ? -remainder : remainder);
  if (twice > divisor || (twice == divisor && quotient % 2 != 0)) quotient += dividend < 0 ? -1 : 1;
  return quotient;
}

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

Money Money::from_whole(std::int64_t whole) { return narrow(static_cast<Wide>(whole) * scale); }

Money Money::from_double(double value) {
  const double count = std::nearbyint(value * static_cast<double>(scale));
  // 2^63 is the first count that doesn't fit, and it is exact as a double.
  if (!(count >= -0x1p63 && count < 0x1p63)) raise(error::overflow);
  return from_ten_thousandths(static_cast<std::int64_t>(count));
}

Money Money::parse(std::string_view text) {
  const std::string_view number = trimmed_number(text);
  const bool negative = number.starts_with('-');
  Wide digits = 0;
  Wide divisor = 1;
  bool behind_point = false;
  bool any_digit = false;
  for (std::string_view rest = number.substr(negative || number.starts_with('+') ? 1 : 0); !rest.empty();
       rest.remove_prefix(1)) {
    const char c = rest.front();
    if (c == '.' && !behind_point) {
      behind_point = true;
    } else if (is_digit(c)) {
      any_digit = true;
      if (digits > std::numeric_limits<std::int64_t>::max()) {
        // More digits than an amount has: too large in front of the point, too fine to count behind it.
        if (!behind_point) raise(error::overflow);
        continue;
      }
      digits = digits * 10 + (c - '0');
      if (behind_point) divisor *= 10;
    } else {
      return from_double(parse_double(text));
    }
  }
  if (!any_digit) raise(error::type_mismatch);
  return narrow(divide_ties_to_even((negative ? -digits : digits) * scale, divisor));
}

char* write_amount(char* place, std::int64_t ten_thousandths) noexcept {
  const bool negative = ten_thousandths < 0;
  // The magnitude of the lowest count has no place in a signed number.
  const auto count = static_cast<std::uint64_t>(ten_thousandths);
  const std::uint64_t magnitude = negative ? std::uint64_t{0} - count : count;
  if (negative) *place++ = '-';
  place = std::to_chars(place, place + 20, magnitude / Money::scale).ptr;
  if (auto fraction = static_cast<unsigned>(magnitude % Money::scale); fraction != 0) {
    *place++ = '.';
    for (unsigned unit = 1'000; fraction != 0; unit /= 10) {
      *place++ = static_cast<char>('0' + fraction / unit);
      fraction %= unit;
    }
  }
  return place;
}

void Money::append_to(std::string& text) const {
  std::array<char, 24> buffer;
  text.append(buffer.data(), write_amount(buffer.data(), count_));
}

std::string Money::text() const {
  std::array<char, 24> buffer;
  return {buffer.data(), write_amount(buffer.data(), count_)};
}

std::ostream& operator<<(std::ostream& out, Money amount) { return out << amount.text(); }

Money operator+(Money left, Money right) {
  return narrow(static_cast<Wide>(left.count_) + static_cast<Wide>(right.count_));
}

Money operator-(Money left, Money right) {
  return narrow(static_cast<Wide>(left.count_) - static_cast<Wide>(right.count_));
}

Money operator*(Money left, Money right) {
  return narrow(divide_ties_to_even(static_cast<Wide>(left.count_) * static_cast<Wide>(right.count_), Money::scale));
}

Money Money::operator-() const { return narrow(-static_cast<Wide>(count_)); }

}  // namespace brunvik::ado
