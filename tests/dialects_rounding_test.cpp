// Numbers of a statement as a column keeps them.
#include <gtest/gtest.h>

#include <cmath>

#include "drivers/dialects/rounding.h"

namespace brunvik::dialects {
namespace {

TEST(Rounding, A_decimal_is_read_as_it_is_written) {
  EXPECT_EQ(Decimal::read("0.3")->to_double(), 0.3);
  EXPECT_EQ(Decimal::read("123456789012345678901234567890")->to_double(), 123456789012345678901234567890.0);
  EXPECT_EQ(Decimal::read("1e400")->to_double(), HUGE_VAL);
  EXPECT_EQ(Decimal::read("1e-400")->to_double(), 0.0);
  EXPECT_EQ(Decimal::read("0." + std::string(400, '0') + "1")->to_double(), 0.0);
  EXPECT_EQ(Decimal::read("5.")->to_double(), 5.0);
  EXPECT_EQ(Decimal::read(".5")->amount(), 5'000);
  EXPECT_EQ(Decimal::read("99999999999.9999")->amount(), 999'999'999'999'999);
  EXPECT_EQ(Decimal::read("0.00005")->amount(), 0);
  EXPECT_EQ(Decimal::read("0.00015")->amount(), 2);
  EXPECT_EQ(Decimal::read("0.000150000000000000000001")->amount(), 2);
  EXPECT_EQ(Decimal::read("549755813887.9999")->amount(), 5'497'558'138'879'999);
  EXPECT_FALSE(Decimal::read("549755813888")->amount());
  for (const char* text : {"", ".", "-1", "1e", "1e+", "1x", "1 ", "0x1"}) EXPECT_FALSE(Decimal::read(text)) << text;
}

}  // namespace
}  // namespace brunvik::dialects
