#include "drivers/dialects/rounding.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/money.h"

namespace brunvik::dialects {

namespace {

constexpr std::int64_t scale = ado::Money::scale;

// Up to here every whole count is a double.
constexpr std::int64_t largest_whole_double = std::int64_t{1} << 53;

// Below this every decimal of four places has a double of its own.
constexpr std::int64_t end_of_amounts = (std::int64_t{1} << 39) * scale;

constexpr std::array<std::int64_t, 19> powers = [] {
  std::array<std::int64_t, 19> list{1};
  for (std::size_t place = 1; place < list.size(); ++place) list[place] = 10 * list[place - 1];
  return list;
}();

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

Amount kept(std::int64_t count) noexcept {
  if (!is_kept(count)) return {};
  return count;
}

// A value in ten-thousandths: the nearest whole count, and what is left of it.
struct Count {
  double whole;
  double fraction;
};

// Counts from here on are multiplied out, since the product is rounded too coarsely to tell the nearest one.
constexpr double large_count = 0x1p48;

Count count_of(double value) noexcept {
  const double product = value * static_cast<double>(scale);
  const double whole = std::nearbyint(product);
  if (std::fabs(whole) < large_count) return {whole, product - whole};
  const double fraction = std::fma(value, static_cast<double>(scale), -whole);
  const double step = fraction > 0.5 ? 1 : fraction < -0.5 ? -1 : 0;
  return {whole + step, fraction - step};
}

}  // namespace

bool is_kept(std::int64_t ten_thousandths) noexcept {
  return -end_of_amounts < ten_thousandths && ten_thousandths < end_of_amounts;
}

Amount amount_of(double value) noexcept {
  const double count = count_of(value).whole;
  if (!(std::fabs(count) < static_cast<double>(end_of_amounts))) return {};
  return static_cast<std::int64_t>(count);
}

void AmountTotal::add(double value) noexcept {
  const Count count = count_of(value);
  constexpr double far_too_large = 0x1p62;
  if (!(std::fabs(count.whole) < far_too_large) ||
      __builtin_add_overflow(count_, static_cast<std::int64_t>(count.whole), &count_)) {
    too_large_ = true;
    return;
  }
  // What is left of an amount is how far the double lies from its decimal.
  constexpr double nearest = 0x1p-51;
  if (std::fabs(count.fraction) > std::fabs(count.whole) * nearest) fraction_ += count.fraction;
}

Amount AmountTotal::amount() const noexcept {
  const double whole = std::floor(fraction_);
  const double rest = fraction_ - whole;
  std::int64_t count = 0;
  if (too_large_ || __builtin_add_overflow(count_, static_cast<std::int64_t>(whole), &count)) return {};
  if (rest > 0.5 || (rest == 0.5 && count % 2 != 0)) ++count;
  return kept(count);
}

double double_of_amount(std::int64_t ten_thousandths) noexcept {
  return static_cast<double>(ten_thousandths) / static_cast<double>(scale);
}

double single_of(double value) noexcept {
  if (std::fabs(value) > std::numeric_limits<float>::max()) return std::copysign(HUGE_VAL, value);
  const float single = static_cast<float>(value);
  // A decimal of up to six digits that names the single is the shortest one that does.
  const double count = std::nearbyint(value * 10'000);
  if (std::fabs(count) < 1'000'000) {
    const double decimal = count / 10'000;
    if (static_cast<float>(decimal) == single && (count != 0 || value == 0)) return decimal;
  }
  std::array<char, 64> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), single, std::chars_format::scientific).ptr;
  double decimal = single;
  std::from_chars(text.data(), end, decimal);
  return decimal;
}

std::optional<Decimal> Decimal::read(std::string_view text) noexcept {
  Decimal number;
  number.text_ = text;
  const char* place = text.data();
  const char* const end = place + text.size();
  int count = 0;
  const auto digits = [&] {
    const char* const first = place;
    for (; place != end && is_digit(*place); ++place) {
      if (count < 18) number.digits_ = number.digits_ * 10 + (*place - '0');
      if (number.digits_ != 0) ++count;
    }
    return static_cast<int>(place - first);
  };
  bool any = digits() != 0;
  if (place != end && *place == '.') {
    ++place;
    number.whole_ = false;
    number.places_ = digits();
    any = any || number.places_ != 0;
  }
  if (!any) return {};
  if (count > 18 || number.places_ > 18) number.whole_ = number.short_ = false;
  if (place != end) {
    if (*place != 'e' && *place != 'E') return {};
    ++place;
    if (place != end && (*place == '+' || *place == '-')) ++place;
    if (place == end) return {};
    for (; place != end; ++place) {
      if (!is_digit(*place)) return {};
    }
    number.whole_ = number.short_ = false;
  }
  return number;
}

double Decimal::to_double() const noexcept {
  // Both sides are exact as doubles, so that the quotient is the nearest one.
  if (short_ && digits_ <= largest_whole_double) {
    return static_cast<double>(digits_) / static_cast<double>(powers[static_cast<std::size_t>(places_)]);
  }
  double value = 0;
  const auto [end, failure] = std::from_chars(text_.data(), text_.data() + text_.size(), value);
  if (failure == std::errc::result_out_of_range) {
    // Too large a number, or one too small to tell from zero.
    const auto exponent = text_.find_first_of("eE");
    const bool small = exponent == std::string_view::npos ? text_.find_first_of("123456789.") == text_.find('.')
                                                          : text_.substr(exponent + 1).starts_with('-');
    return small ? 0.0 : HUGE_VAL;
  }
  return value;
}

Amount Decimal::amount() const noexcept {
  if (!short_) {
    try {
      return kept(ado::Money::parse(text_).ten_thousandths());
    } catch (const ado::RuntimeError&) {
      return {};
    }
  }
  if (places_ <= 4) {
    const std::int64_t factor = powers[static_cast<std::size_t>(4 - places_)];
    if (digits_ > end_of_amounts / factor) return {};
    return kept(digits_ * factor);
  }
  const std::int64_t divisor = powers[static_cast<std::size_t>(places_ - 4)];
  std::int64_t count = digits_ / divisor;
  const std::int64_t twice = 2 * (digits_ % divisor);
  if (twice > divisor || (twice == divisor && count % 2 != 0)) ++count;
  return kept(count);
}

}  // namespace brunvik::dialects
