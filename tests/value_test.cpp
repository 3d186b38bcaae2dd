#include "brunvik/ado/value.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "tests/support/error_number.h"

namespace brunvik::ado {
namespace {

using test::error_number;

Money money(const char* text) { return Money::parse(text); }

struct Conversion {
  const char* what;
  Value value;
  double number;
  const char* text;
};

std::vector<Conversion> conversions() {
  return {
      {"empty", Value(), 0, ""},
      {"byte", Byte{200}, 200, "200"},
      {"integer", Integer{-7}, -7, "-7"},
      {"long", Long{100'000}, 100'000, "100000"},
      {"single", Single{0.5F}, 0.5, "0.5"},
      {"double", 12.25, 12.25, "12.25"},
      {"money", money("12.5"), 12.5, "12.5"},
      {"true", true, -1, "True"},
      {"false", false, 0, "False"},
      {"text", " 42.5 ", 42.5, " 42.5 "},
      {"date", Date{45356.5}, 45356.5, "2024/3/5 12:00:00"},
  };
}

TEST(Value, Reads_as_a_double) {
  for (const auto& [what, value, number, text] : conversions()) EXPECT_EQ(value.as_double(), number) << what;
}

TEST(Value, Reads_as_text) {
  for (const auto& [what, value, number, text] : conversions()) {
    EXPECT_EQ(value.as_text(), text) << what;
    EXPECT_EQ(value.joined_text(), text) << what;
  }
}

TEST(Value, Null_joined_to_the_empty_text_is_the_empty_text) { EXPECT_EQ(Value(Null()).joined_text(), ""); }

TEST(Value, Null_is_error_94_whatever_it_is_read_as) {
  const Value null{Null()};
  EXPECT_EQ(error_number([&] { null.as_double(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_long(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_integer(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_byte(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_single(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_money(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_boolean(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_date(); }), 94);
  EXPECT_EQ(error_number([&] { null.as_text(); }), 94);
}

TEST(Value, Text_that_is_no_number_an_object_and_an_array_are_error_13) {
  const std::vector<Value> values{"abc", "", Value(std::make_shared<Recordset>()), Value(Array{1})};
  for (const Value& value : values) {
    EXPECT_EQ(error_number([&] { value.as_double(); }), 13);
    EXPECT_EQ(error_number([&] { value.as_long(); }), 13);
    EXPECT_EQ(error_number([&] { value.as_money(); }), 13);
    EXPECT_EQ(error_number([&] { value.as_boolean(); }), 13);
    EXPECT_EQ(error_number([&] { value.as_date(); }), 13);
  }
  EXPECT_EQ(error_number([&] { values[2].as_text(); }), 13);
  EXPECT_EQ(error_number([&] { values[3].joined_text(); }), 13);
}

TEST(Value, Reads_as_whole_numbers_rounded_to_the_even_one) {
  EXPECT_EQ(Value(2.5).as_long(), 2);
  EXPECT_EQ(Value("3.5").as_long(), 4);
  EXPECT_EQ(Value(money("-1.5")).as_integer(), -2);
  EXPECT_EQ(Value(Single{0.5F}).as_byte(), 0);
  EXPECT_EQ(Value(true).as_long(), -1);
  EXPECT_EQ(Value(Long{2'000'000'000}).as_long(), 2'000'000'000);
}

TEST(Value, A_number_outside_of_the_type_is_error_6) {
  EXPECT_EQ(error_number([] { Value(40'000).as_integer(); }), 6);
  EXPECT_EQ(error_number([] { Value(3e9).as_long(); }), 6);
  EXPECT_EQ(error_number([] { Value("256").as_byte(); }), 6);
  EXPECT_EQ(error_number([] { Value(true).as_byte(); }), 6);
  EXPECT_EQ(error_number([] { Value(1e300).as_single(); }), 6);
  EXPECT_EQ(error_number([] { Value(1e300).as_money(); }), 6);
}

TEST(Value, Reads_as_money_without_a_double_in_between) {
  EXPECT_EQ(Value("900719925474099.2001").as_money().text(), "900719925474099.2001");
  EXPECT_EQ(Value(money("900719925474099.2001")).as_money().text(), "900719925474099.2001");
  EXPECT_EQ(Value(Long{-3}).as_money(), money("-3"));
  EXPECT_EQ(Value(0.1).as_money(), money("0.1"));
  EXPECT_EQ(Value().as_money(), Money());
}

TEST(Value, Any_number_but_zero_reads_as_true) {
  EXPECT_TRUE(Value(-1).as_boolean());
  EXPECT_TRUE(Value(0.25).as_boolean());
  EXPECT_TRUE(Value("2").as_boolean());
  EXPECT_FALSE(Value(0).as_boolean());
  EXPECT_FALSE(Value("0.0").as_boolean());
  EXPECT_FALSE(Value().as_boolean());
}

TEST(Value, Reads_as_a_date_from_text_and_from_days) {
  EXPECT_EQ(Value("2024-03-05 12:00:00").as_date(), Date{45356.5});
  EXPECT_EQ(Value(45356).as_date(), Date{45356});
  EXPECT_EQ(error_number([] { Value("today").as_date(); }), 13);
}

TEST(Value, Is_equal_to_a_value_of_the_same_type_and_content_alone) {
  EXPECT_EQ(Value(Long{1}), Value(Long{1}));
  EXPECT_NE(Value(Long{1}), Value(Integer{1}));
  EXPECT_NE(Value("1"), Value(Long{1}));
  EXPECT_NE(Value(), Value(Null()));
  EXPECT_EQ(Value(Null()), Value(Null()));
}

TEST(Value, Knows_what_it_holds) {
  EXPECT_TRUE(Value().is_empty());
  EXPECT_FALSE(Value(Null()).is_empty());
  EXPECT_TRUE(Value(Null()).is_null());
  EXPECT_EQ(*Value("x").get_if<std::string>(), "x");
  EXPECT_EQ(Value("x").get_if<Long>(), nullptr);
  EXPECT_EQ(Value(Array{1, "b"}).array()->size(), 2U);
  EXPECT_EQ(Value("x").array(), nullptr);
}

}  // namespace
}  // namespace brunvik::ado
