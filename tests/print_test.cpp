// Who reads a failed test sees what the books hold.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "brunvik/ado/value.h"
#include "brunvik/foundation/members.h"
#include "tests/support/faults/step.h"

namespace brunvik {
namespace {

using ::testing::PrintToString;

TEST(Print, A_value_is_shown_with_its_type) {
  EXPECT_EQ(PrintToString(Value()), "Empty");
  EXPECT_EQ(PrintToString(Value(ado::Null())), "Null");
  EXPECT_EQ(PrintToString(Value(Byte{2})), "Byte 2");
  EXPECT_EQ(PrintToString(Value(Integer{-7})), "Integer -7");
  EXPECT_EQ(PrintToString(Value(Long{70'000})), "Long 70000");
  EXPECT_EQ(PrintToString(Value(0.1F)), "Single 0.1");
  EXPECT_EQ(PrintToString(Value(0.1)), "Double 0.1");
  EXPECT_EQ(PrintToString(Value(Money::parse("12.3456"))), "Money 12.3456");
  EXPECT_EQ(PrintToString(Value(true)), "Boolean True");
  EXPECT_EQ(PrintToString(Value("螺丝")), "String \"螺丝\"");
  EXPECT_EQ(PrintToString(Value(ado::parse_date("2024-03-05 10:00:00"))), "Date 2024-03-05 10:00:00");
  EXPECT_EQ(PrintToString(Value(ado::Array{1, "b"})), "[Long 1, String \"b\"]");
  EXPECT_TRUE(PrintToString(Value(ado::ObjectReference())).starts_with("Object "));
}

TEST(Print, Amounts_dates_types_and_steps_are_shown_too) {
  EXPECT_EQ(PrintToString(Money::parse("-0.5")), "Money -0.5");
  EXPECT_EQ(PrintToString(ado::parse_date("2024-03-05")), "Date 2024-03-05 00:00:00");
  EXPECT_EQ(PrintToString(Type::Text), "String");
  EXPECT_EQ(PrintToString(MemberKind::collection), "collection");
  EXPECT_EQ(PrintToString(test::ends("bill|delete from T")), "bill|delete from T: ends with -2147217900");
  EXPECT_EQ(PrintToString(test::named("read", test::goes_on("GetBill():", "bill|select * from T"))),
            "bill|select * from T (read): goes on, tells \"提示信息|GetBill():\"");
}

}  // namespace
}  // namespace brunvik
