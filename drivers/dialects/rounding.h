// How numbers are kept in columns.
//
// An amount of money is the double nearest to its decimal of four places; a single is the double nearest to the decimal
// in which it is written, which is the shortest one that names it. Both are canonical: equal values are equal doubles,
// and other tools see plain figures.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace brunvik::dialects {

// A count of ten-thousandths, empty where a double can't keep it exactly: from ±549,755,813,888 on, that is 2^39, the
// doubles lie farther apart than two amounts.
using Amount = std::optional<std::int64_t>;

bool is_kept(std::int64_t ten_thousandths) noexcept;

Amount amount_of(double value) noexcept;
double double_of_amount(std::int64_t ten_thousandths) noexcept;

// A total of amounts and of other numbers, rounded once, at its end.
class AmountTotal {
 public:
  void add(double value) noexcept;
  Amount amount() const noexcept;

 private:
  std::int64_t count_ = 0;
  double fraction_ = 0;
  bool too_large_ = false;
};

// The value of a column of singles; infinite outside of the range of a single.
double single_of(double value) noexcept;

// A number as it stands in a statement or in a text, without a sign.
class Decimal {
 public:
  // Empty where the text is no unsigned number.
  static std::optional<Decimal> read(std::string_view text) noexcept;

  // Written without a point and an exponent, and small enough for 64 bits.
  bool is_whole() const noexcept { return whole_; }
  std::int64_t whole() const noexcept { return digits_; }

  double to_double() const noexcept;

  // Rounded to four places as it is written, ties to the even digit.
  Amount amount() const noexcept;

 private:
  std::string_view text_;
  std::int64_t digits_ = 0;
  int places_ = 0;  // behind the point
  bool whole_ = true;
  bool short_ = true;  // digits_ and places_ say all of it
};

}  // namespace brunvik::dialects
