#include "brunvik/foundation/late_binding.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/error_number.h"
#include "tests/support/sample.h"

namespace brunvik {
namespace {

using test::error_number;
using test::Sample;
using test::SampleRow;

class LateBinding : public ::testing::Test {
 protected:
  Value call(const char* name) { return Sample::table().named(name).call(object, arguments); }

  Sample object;
  std::vector<Value> arguments;
};

Money money(const char* text) { return Money::parse(text); }

TEST_F(LateBinding, Calls_a_verb_and_gives_its_result) {
  object.Status = 7;
  EXPECT_EQ(call("save"), Value(Long{7}));
}

TEST_F(LateBinding, A_verb_without_a_result_gives_nothing) {
  object.ID = "x";
  EXPECT_TRUE(call("Forget").is_empty());
  EXPECT_EQ(object.ID, "");
}

TEST_F(LateBinding, A_by_reference_argument_comes_back_as_the_verb_left_it) {
  arguments = {"one"};
  EXPECT_EQ(call("GetNewId"), Value(Long{0}));
  EXPECT_EQ(arguments, std::vector<Value>{"new one"});
}

TEST_F(LateBinding, Arguments_are_taken_as_the_types_of_the_parameters) {
  arguments = {"1.5", 2, 0};
  EXPECT_EQ(call("Add"), Value(money("3.5")));
  EXPECT_EQ(arguments, (std::vector<Value>{Money(), Single{2}, false}));
}

TEST_F(LateBinding, An_omitted_argument_is_added_with_its_default) {
  arguments = {money("1")};
  EXPECT_EQ(call("Add"), Value(money("3")));
  EXPECT_EQ(arguments, (std::vector<Value>{Money(), Single{2}, false}));
}

TEST_F(LateBinding, An_argument_that_only_brings_something_back_may_be_left_out_at_the_end) {
  EXPECT_EQ(call("GetNewId"), Value(Long{0}));
  EXPECT_EQ(arguments, std::vector<Value>{"new "});
}

TEST_F(LateBinding, A_wrong_count_of_arguments_is_error_450) {
  EXPECT_EQ(error_number([&] { call("Add"); }), 450);
  arguments = {"a", "b"};
  EXPECT_EQ(error_number([&] { call("GetNewId"); }), 450);
  arguments = {1};
  EXPECT_EQ(error_number([&] { call("Save"); }), 450);
}

TEST_F(LateBinding, An_argument_of_the_wrong_type_is_refused) {
  arguments = {"much"};
  EXPECT_EQ(error_number([&] { call("Add"); }), 13);
  arguments = {money("1"), ado::Null()};
  EXPECT_EQ(error_number([&] { call("Add"); }), 94);
}

TEST_F(LateBinding, A_property_cannot_be_called) {
  EXPECT_EQ(error_number([&] { call("ID"); }), 438);
}

TEST_F(LateBinding, A_value_passes_through_as_it_is) {
  for (const Value& value : {Value(ado::Null()), Value(), Value("text"), Value(Date{5})}) {
    arguments = {value};
    EXPECT_EQ(call("Echo"), value);
  }
}

TEST_F(LateBinding, An_object_goes_by_reference) {
  auto row = std::make_shared<SampleRow>();
  row->Gid = "G1";
  arguments = {ado::ObjectReference(row)};
  EXPECT_EQ(call("Name"), Value("G1"));
  EXPECT_EQ(row->Qty, 9);

  auto rows = std::make_shared<Collection<SampleRow>>();
  rows->add();
  rows->add();
  arguments = {ado::ObjectReference(rows)};
  EXPECT_EQ(call("Count"), Value(Long{2}));
}

TEST_F(LateBinding, Nothing_in_the_place_of_a_record_is_a_new_one) {
  arguments = {ado::Null()};
  EXPECT_EQ(call("Name"), Value(""));
}

TEST_F(LateBinding, An_object_of_another_class_is_error_13) {
  arguments = {ado::ObjectReference(std::make_shared<Collection<SampleRow>>())};
  EXPECT_EQ(error_number([&] { call("Name"); }), 13);
  arguments = {"row"};
  EXPECT_EQ(error_number([&] { call("Name"); }), 13);
  arguments = {ado::Null()};
  EXPECT_EQ(error_number([&] { call("Count"); }), 13);
}

TEST_F(LateBinding, What_a_verb_throws_reaches_the_caller) {
  arguments = {Long{1004}};
  EXPECT_EQ(error_number([&] { call("Refuse"); }), 1004);
}

TEST_F(LateBinding, A_parameter_knows_its_type_and_the_record_that_it_takes) {
  const Member& add = Sample::table().named("Add");
  ASSERT_EQ(add.parameters().size(), 3U);
  EXPECT_EQ(add.parameters()[0].type, Type::Money);
  EXPECT_TRUE(add.parameters()[0].by_reference);
  EXPECT_FALSE(add.parameters()[0].optional);
  EXPECT_EQ(add.parameters()[1].type, Type::Single);
  EXPECT_TRUE(add.parameters()[1].optional);
  EXPECT_EQ(add.parameters()[2].type, Type::Boolean);
  const auto make = Sample::table().named("Name").parameters()[0].make_record;
  ASSERT_NE(make, nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<SampleRow>(make()), nullptr);
  EXPECT_EQ(Sample::table().named("Count").parameters()[0].make_record, nullptr);
}

template <auto pointer, class... Described>
concept CanBeDescribed = requires(Described... parameters) {
  verb<pointer>("Name", parameters...);
};

TEST(Verb, Described_with_another_count_of_parameters_than_it_has_does_not_compile) {
  static_assert(CanBeDescribed<&Sample::GetNewId, Parameter>);
  static_assert(!CanBeDescribed<&Sample::GetNewId>);
  static_assert(CanBeDescribed<&Sample::Save>);
  static_assert(!CanBeDescribed<&Sample::Save, Parameter>);
}

Long twice(Long number, std::string& seen) {
  seen = "seen";
  return 2 * number;
}

TEST(Procedure, Is_called_with_dynamically_typed_arguments) {
  const Procedure procedure = brunvik::procedure<&twice>("twice", in("Number"), out("Seen"));
  EXPECT_EQ(procedure.name, "twice");
  EXPECT_EQ(procedure.result, Type::Long);
  std::vector<Value> arguments{"21", ""};
  EXPECT_EQ(procedure.call(arguments), Value(Long{42}));
  EXPECT_EQ(arguments[1], Value("seen"));
}

}  // namespace
}  // namespace brunvik
