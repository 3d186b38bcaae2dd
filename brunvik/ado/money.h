// Money: an exact decimal with four places, kept as a signed 64-bit count of ten-thousandths.
//
// Sums are exact. A product, a quotient and a conversion are rounded to the ten-thousandth, ties to the even digit.
// A result outside of ±922,337,203,685,477.5807 is error 6.
#pragma once

#include <compare>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace brunvik::ado {

class Money {
 public:
  static constexpr std::int64_t scale = 10'000;

  constexpr Money() noexcept = default;

  static constexpr Money from_ten_thousandths(std::int64_t count) noexcept {
    Money money;
    money.count_ = count;
    return money;
  }

  // A whole amount.
  static Money from_whole(std::int64_t whole);

  // The nearest amount. Error 6 outside of the range, also for what is no number.
  static Money from_double(double value);

  // Reads decimal text with a point; blanks around it are passed over. Error 13 for any other text.
  static Money parse(std::string_view text);

  constexpr std::int64_t ten_thousandths() const noexcept { return count_; }
  constexpr bool is_zero() const noexcept { return count_ == 0; }
  double to_double() const noexcept { return static_cast<double>(count_) / static_cast<double>(scale); }

  // Plain decimal text with a point, without trailing zeros: 12.5, -0.0001, 0.
  std::string text() const;
  void append_to(std::string& text) const;

  friend Money operator+(Money left, Money right);
  friend Money operator-(Money left, Money right);
  friend Money operator*(Money left, Money right);
  Money operator-() const;
  Money& operator+=(Money other) { return *this = *this + other; }
  Money& operator-=(Money other) { return *this = *this - other; }

  friend constexpr bool operator==(Money, Money) noexcept = default;
  friend constexpr auto operator<=>(Money, Money) noexcept = default;

 private:
  std::int64_t count_ = 0;
};

// Writes the text, by the width and the fill of the stream.
std::ostream& operator<<(std::ostream& out, Money amount);

}  // namespace brunvik::ado

namespace brunvik {
using ado::Money;
}
