#include "brunvik/ado/money.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

#include "brunvik/ado/errors.h"
#include "tests/support/error_number.h"

namespace brunvik {
namespace {

using test::error_number;

Money money(const char* text) { return Money::parse(text); }
Money count(std::int64_t ten_thousandths) { return Money::from_ten_thousandths(ten_thousandths); }

TEST(Money, Is_written_as_plain_decimal_text_without_trailing_zeros) {
  const std::vector<std::pair<std::int64_t, std::string>> texts{
      {0, "0"},
      {1, "0.0001"},
      {-1, "-0.0001"},
      {10, "0.001"},
      {5'000, "0.5"},
      {10'000, "1"},
      {125'000, "12.5"},
      {-125'000, "-12.5"},
      {100'000, "10"},
      {1'000'000, "100"},
      {10'100, "1.01"},
      {10'001, "1.0001"},
      {999'999'999'999, "99999999.9999"},
      {999'999'999'999'999'999, "99999999999999.9999"},
  };
  for (const auto& [ten_thousandths, text] : texts) EXPECT_EQ(count(ten_thousandths).text(), text);
}

TEST(Money, Writes_and_reads_both_ends_of_its_range) {
  const Money highest = count(std::numeric_limits<std::int64_t>::max());
  const Money lowest = count(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(highest.text(), "922337203685477.5807");
  EXPECT_EQ(lowest.text(), "-922337203685477.5808");
  EXPECT_EQ(money("922337203685477.5807"), highest);
  EXPECT_EQ(money("-922337203685477.5808"), lowest);
  EXPECT_EQ(error_number([] { money("922337203685477.5808"); }), 6);
  EXPECT_EQ(error_number([] { money("-922337203685477.5809"); }), 6);
}

TEST(Money, Is_appended_behind_what_is_there) {
  std::string text = "set Cost=";
  money("-0.05").append_to(text);
  EXPECT_EQ(text, "set Cost=-0.05");
}

TEST(Money, Is_written_to_a_stream_by_its_width) {
  std::ostringstream out;
  out << money("-0.05") << '|' << std::setw(6) << money("12.5") << '|';
  EXPECT_EQ(out.str(), "-0.05|  12.5|");
}

TEST(Money, Reads_decimal_text_exactly) {
  const std::vector<std::pair<const char*, std::int64_t>> texts{
      {"0", 0},        {"12.5", 125'000}, {"-12.5", -125'000}, {"+3", 30'000},
      {"0.0001", 1},   {".5", 5'000},     {"5.", 50'000},      {" 7.25 ", 72'500},
      {"007", 70'000}, {"0.30", 3'000},   {"1e2", 1'000'000},  {"99999999.9999", 999'999'999'999},
  };
  for (const auto& [text, ten_thousandths] : texts) EXPECT_EQ(money(text).ten_thousandths(), ten_thousandths) << text;
}

TEST(Money, Rounds_a_fifth_place_to_the_even_digit_when_it_stands_in_the_middle) {
  const std::vector<std::pair<const char*, std::int64_t>> texts{
      {"0.00005", 0},          {"0.00015", 2},      {"0.00025", 2},     {"0.00035", 4},
      {"-0.00015", -2},        {"-0.00005", 0},     {"0.00004", 0},     {"0.000051", 1},
      {"0.00014999999999", 1}, {"2.71828", 27'183}, {"0.12345", 1'234}, {"0.12355", 1'236},
  };
  for (const auto& [text, ten_thousandths] : texts) EXPECT_EQ(money(text).ten_thousandths(), ten_thousandths) << text;
}

TEST(Money, Refuses_text_that_is_no_number) {
  for (const char* text : {"", " ", "-", "+", ".", "abc", "1,5", "1.2.3", "12元", "--1", "1 2", "0x10", "inf", "nan"}) {
    EXPECT_EQ(error_number([&] { money(text); }), 13) << text;
  }
}

TEST(Money, Refuses_a_number_that_has_no_place) {
  EXPECT_EQ(error_number([] { money("1000000000000000"); }), 6);
  EXPECT_EQ(error_number([] { money("99999999999999999999999999999999999999999999"); }), 6);
  EXPECT_EQ(error_number([] { money("1e300"); }), 6);
}

TEST(Money, Adds_and_subtracts_exactly) {
  EXPECT_EQ(money("0.1") + money("0.2"), money("0.3"));
  EXPECT_EQ(money("0.3") - money("0.1") - money("0.2"), Money());
  EXPECT_EQ(money("99999999.9999") + money("0.0001"), money("100000000"));
  EXPECT_EQ(money("1") - money("2.5"), money("-1.5"));
  Money sum;
  for (int payment = 0; payment < 10'000; ++payment) sum += money("0.0001");
  EXPECT_EQ(sum, money("1"));
  sum -= money("0.9999");
  EXPECT_EQ(sum, money("0.0001"));
}

TEST(Money, Multiplies_and_rounds_ties_to_the_even_digit) {
  EXPECT_EQ(money("2") * money("10.5"), money("21"));
  EXPECT_EQ(money("0.01") * money("0.01"), money("0.0001"));
  EXPECT_EQ(money("0.01") * money("0.005"), Money());            // 0.00005, a tie
  EXPECT_EQ(money("0.01") * money("0.015"), money("0.0002"));    // 0.00015, a tie
  EXPECT_EQ(money("-0.01") * money("0.015"), money("-0.0002"));  // -0.00015
  EXPECT_EQ(money("3.3333") * money("3"), money("9.9999"));
  EXPECT_EQ(money("1.2345") * money("1.2345"), money("1.524"));  // 1.52399025
  EXPECT_EQ(money("-4") * money("-2.5"), money("10"));
}

TEST(Money, Overflows_with_error_6) {
  const Money highest = count(std::numeric_limits<std::int64_t>::max());
  const Money lowest = count(std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(error_number([&] { return highest + count(1); }), 6);
  EXPECT_EQ(error_number([&] { return lowest - count(1); }), 6);
  EXPECT_EQ(error_number([&] { return -lowest; }), 6);
  EXPECT_EQ(error_number([&] { return money("30000000") * money("40000000"); }), 6);
  EXPECT_EQ(error_number([] { Money::from_whole(922'337'203'685'478); }), 6);
  EXPECT_EQ(highest + Money(), highest);
  EXPECT_EQ(-highest, lowest + count(1));
  EXPECT_EQ(money("30000000") * money("30000000"), money("900000000000000"));
}

TEST(Money, Comes_from_a_double_rounded_to_the_nearest_ten_thousandth) {
  EXPECT_EQ(Money::from_double(12.5), money("12.5"));
  EXPECT_EQ(Money::from_double(0.1), money("0.1"));
  EXPECT_EQ(Money::from_double(1.0 / 3), money("0.3333"));
  EXPECT_EQ(Money::from_double(-2.0 / 3), money("-0.6667"));
  EXPECT_EQ(Money::from_double(0.00003125), Money());
  // Exact as doubles, so that they are true ties: 1/32 = 0.03125 and 3/32 = 0.09375.
  EXPECT_EQ(Money::from_double(0.03125), money("0.0312"));
  EXPECT_EQ(Money::from_double(0.09375), money("0.0938"));
  EXPECT_EQ(Money::from_double(-0.03125), money("-0.0312"));
}

TEST(Money, Comes_from_no_double_outside_of_its_range) {
  EXPECT_EQ(error_number([] { Money::from_double(1e15); }), 6);
  EXPECT_EQ(error_number([] { Money::from_double(-1e15); }), 6);
  EXPECT_EQ(error_number([] { Money::from_double(HUGE_VAL); }), 6);
  EXPECT_EQ(error_number([] { Money::from_double(std::nan("")); }), 6);
  EXPECT_EQ(Money::from_double(9e14), money("900000000000000"));
}

TEST(Money, Becomes_a_double_of_its_value) {
  EXPECT_DOUBLE_EQ(money("12.5").to_double(), 12.5);
  EXPECT_DOUBLE_EQ(money("-0.0001").to_double(), -0.0001);
}

TEST(Money, Compares_by_its_value) {
  EXPECT_LT(money("-1"), money("0"));
  EXPECT_LT(money("9.9999"), money("10"));
  EXPECT_GE(money("10"), money("10.0"));
  EXPECT_TRUE(Money().is_zero());
  EXPECT_FALSE(money("0.0001").is_zero());
}

}  // namespace
}  // namespace brunvik
