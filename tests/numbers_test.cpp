#include "brunvik/ado/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "tests/support/error_number.h"

namespace brunvik::ado {
namespace {

using test::error_number;

template <class Number>
std::string text_of(Number number) {
  std::string text;
  append_number(text, number);
  return text;
}

TEST(Numbers, Whole_numbers_are_written_without_separators) {
  EXPECT_EQ(text_of(std::int64_t{0}), "0");
  EXPECT_EQ(text_of(std::int64_t{1'234'567}), "1234567");
  EXPECT_EQ(text_of(std::int64_t{-1}), "-1");
  EXPECT_EQ(text_of(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(Numbers, A_single_is_the_shortest_text_that_reads_back) {
  EXPECT_EQ(text_of(0.1F), "0.1");
  EXPECT_EQ(text_of(0.5F), "0.5");
  EXPECT_EQ(text_of(2.0F), "2");
  EXPECT_EQ(text_of(-1.25F), "-1.25");
  EXPECT_EQ(text_of(16777216.0F), "16777216");
  EXPECT_EQ(text_of(0.0F), "0");
}

TEST(Numbers, A_double_is_the_shortest_text_that_reads_back) {
  EXPECT_EQ(text_of(0.1), "0.1");
  EXPECT_EQ(text_of(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(text_of(12.5), "12.5");
  EXPECT_EQ(text_of(1.0 / 3), "0.3333333333333333");
}

TEST(Numbers, Never_have_an_exponent) {
  EXPECT_EQ(text_of(1e21), "1000000000000000000000");
  EXPECT_EQ(text_of(1e-7), "0.0000001");
  EXPECT_EQ(text_of(1e20F), "100000000000000000000");
  EXPECT_EQ(text_of(1.5e-5F), "0.000015");
  EXPECT_EQ(text_of(std::numeric_limits<double>::max()).find_first_not_of("0123456789"), std::string::npos);
  EXPECT_EQ(text_of(std::numeric_limits<double>::denorm_min()).find_first_not_of("0123456789."), std::string::npos);
}

TEST(Numbers, A_negative_zero_is_written_as_zero) {
  EXPECT_EQ(text_of(-0.0), "0");
  EXPECT_EQ(text_of(-0.0F), "0");
}

template <class Number, class Bits>
void expect_any_number_to_read_back() {
  std::mt19937_64 random(20240305);
  for (int round = 0; round < 5'000; ++round) {
    const auto bits = static_cast<Bits>(random());
    Number number = 0;
    std::memcpy(&number, &bits, sizeof(number));
    if (!std::isfinite(number)) continue;
    ASSERT_EQ(static_cast<Number>(parse_double(text_of(number))), number) << text_of(number);
    ASSERT_EQ(text_of(number).find_first_not_of("-0123456789."), std::string::npos) << text_of(number);
  }
}

TEST(Numbers, Any_single_and_any_double_reads_back_as_itself) {
  expect_any_number_to_read_back<Single, std::uint32_t>();
  expect_any_number_to_read_back<Double, std::uint64_t>();
}

TEST(Numbers, A_large_number_has_its_shortest_digits_and_zeros_behind_them) {
  EXPECT_EQ(text_of(16777217.0), "16777217");
  EXPECT_EQ(text_of(123456792.0F), "123456790");
  EXPECT_EQ(text_of(1e15), "1000000000000000");
  EXPECT_EQ(text_of(1.5e300).substr(0, 4), "1500");
  EXPECT_EQ(text_of(1.5e300).size(), 301U);
  EXPECT_EQ(text_of(-9007199254740993.0), "-9007199254740992");
}

TEST(Numbers, Text_is_read_with_a_point_a_sign_and_an_exponent) {
  EXPECT_EQ(parse_double("12.5"), 12.5);
  EXPECT_EQ(parse_double(" 12.5\t"), 12.5);
  EXPECT_EQ(parse_double("+7"), 7);
  EXPECT_EQ(parse_double("-0.25"), -0.25);
  EXPECT_EQ(parse_double("1.5e3"), 1500);
  EXPECT_EQ(parse_double("00042"), 42);
}

TEST(Numbers, Text_that_is_no_number_is_error_13) {
  for (const char* text : {"", " ", "x", "1,5", "1 2", "1x", "+-1", "--1", "0x1", "inf", "nan", "-", "００１"}) {
    EXPECT_EQ(error_number([&] { parse_double(text); }), 13) << text;
  }
}

TEST(Numbers, Too_large_a_number_is_error_6) {
  EXPECT_EQ(error_number([] { parse_double("1e999"); }), 6);
  EXPECT_EQ(error_number([] { to_single(1e39); }), 6);
  EXPECT_EQ(error_number([] { to_single(-HUGE_VAL); }), 6);
  EXPECT_EQ(error_number([] { to_single(std::nan("")); }), 6);
}

TEST(Numbers, Halves_go_to_the_even_number) {
  EXPECT_EQ(to_long(0.5), 0);
  EXPECT_EQ(to_long(1.5), 2);
  EXPECT_EQ(to_long(2.5), 2);
  EXPECT_EQ(to_long(-1.5), -2);
  EXPECT_EQ(to_long(2.51), 3);
  EXPECT_EQ(to_integer(3.5), 4);
  EXPECT_EQ(to_byte(254.5), 254);
}

TEST(Numbers, A_whole_number_outside_of_its_type_is_error_6) {
  EXPECT_EQ(to_long(2147483647.4), 2147483647);
  EXPECT_EQ(to_long(-2147483648.0), std::numeric_limits<Long>::min());
  EXPECT_EQ(error_number([] { to_long(2147483648.0); }), 6);
  EXPECT_EQ(error_number([] { to_long(-2147483649.0); }), 6);
  EXPECT_EQ(error_number([] { to_long(std::nan("")); }), 6);
  EXPECT_EQ(to_integer(-32768), -32768);
  EXPECT_EQ(error_number([] { to_integer(32768); }), 6);
  EXPECT_EQ(to_byte(255), 255);
  EXPECT_EQ(error_number([] { to_byte(256); }), 6);
  EXPECT_EQ(error_number([] { to_byte(-1); }), 6);
}

}  // namespace
}  // namespace brunvik::ado
