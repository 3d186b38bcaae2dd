#include "brunvik/foundation/member_columns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/error_number.h"
#include "tests/support/sample.h"

namespace brunvik {
namespace {

using test::SampleRow;

SampleRow read(ado::Recordset set) {
  SampleRow row;
  MemberColumns::take(row.members(), row, set);
  return row;
}

TEST(MemberColumns, Find_the_columns_of_each_set_whatever_set_came_before) {
  const ado::Recordset first({"GId", "Qty"}, {"G1", Single{1}});
  const ado::Recordset second({"Note", "QTY", "gid"}, {"n", Single{2}, "G2"});
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(read(first).Gid, "G1");
    EXPECT_EQ(read(first).Qty, 1);
    EXPECT_EQ(read(second).Gid, "G2");
    EXPECT_EQ(read(second).Qty, 2);
  }
}

TEST(MemberColumns, Read_the_record_at_which_the_set_stands) {
  ado::Recordset set({"GId", "Qty"}, {"G1", Single{1}, "G2", Single{2}});
  EXPECT_EQ(read(set).Gid, "G1");
  set.MoveNext();
  EXPECT_EQ(read(set).Gid, "G2");
  set.MoveNext();
  EXPECT_EQ(test::error_number([&] { read(set); }), 3021);
}

TEST(MemberColumns, A_column_that_the_set_does_not_have_is_an_error_behind_the_members_before_it) {
  ado::Recordset set({"GId"}, {"G1"});
  SampleRow row;
  EXPECT_EQ(test::error_number([&] { MemberColumns::take(row.members(), row, set); }), 3265);
  EXPECT_EQ(row.Gid, "G1");
}

TEST(MemberColumns, A_text_that_is_taken_is_gone_from_the_set) {
  const std::string words = "一个比字符串自己的地方更长的文本";
  ado::Recordset set({"GId", "Qty"}, {words, Single{1}});
  SampleRow row;
  row.Gid = "old";
  MemberColumns::take(row.members(), row, set);
  EXPECT_EQ(row.Gid, words);
  EXPECT_EQ(set.value("GId"), Value(""));
  MemberColumns::take(row.members(), row, set);
  EXPECT_EQ(row.Gid, "");
}

// The record of a sample, with a value in each of its columns.
ado::Recordset sample_record(Value kind, Value amount) {
  return {{"Id", "Kind", "RowNum", "Status", "TaxRate", "Amount", "CreateFlag", "Anything", "ClosedTag"},
          {"JHR24030500001", std::move(kind), Long{7}, Long{2}, Single{0.13F}, std::move(amount), true, "x", Long{1}}};
}

TEST(MemberColumns, Fill_each_property_as_what_it_is_whatever_the_column_holds) {
  test::Sample object;
  ado::Recordset set = sample_record("200", Money::parse("12.5"));
  MemberColumns::take(object.members(), object, set);
  EXPECT_EQ(object.ID, "JHR24030500001");
  EXPECT_EQ(object.Kind, 200);
  EXPECT_EQ(object.Rownum, 7);
  EXPECT_EQ(object.Status, 2);
  EXPECT_EQ(object.Rate, 0.13F);
  EXPECT_EQ(object.Amount.text(), "12.5");
  EXPECT_TRUE(object.Flag);
  EXPECT_EQ(object.Anything, Value("x"));
  EXPECT_TRUE(object.Read);
}

TEST(MemberColumns, A_value_that_can_not_be_converted_is_an_error_between_those_before_and_those_behind_it) {
  test::Sample object;
  ado::Recordset set = sample_record(Byte{200}, "many");
  EXPECT_EQ(test::error_number([&] { MemberColumns::take(object.members(), object, set); }), 13);
  EXPECT_EQ(object.Rate, 0.13F);
  EXPECT_FALSE(object.Flag);
}

TEST(MemberColumns, A_null_is_nothing_or_leaves_what_is_no_text) {
  const ado::Recordset nulls({"GId", "Qty"}, {ado::Null(), ado::Null()});
  SampleRow row;
  row.Gid = "old";
  row.Qty = 5;
  ado::Recordset set = nulls;
  MemberColumns::take(row.members(), row, set, MemberColumns::Null::leaves_numbers);
  EXPECT_EQ(row.Gid, "");
  EXPECT_EQ(row.Qty, 5);
  MemberColumns::take(row.members(), row, set);
  EXPECT_EQ(row.Qty, 0);
}

// The values that a record of the set gives these members of a row.
SampleRow row_of(ado::Recordset set, const std::vector<std::string>& names) {
  std::vector<const Member*> members;
  for (const std::string& name : names) members.push_back(&SampleRow().members().named(name));
  SampleRow row;
  MemberColumns::fields_of(members, set)->take(row, set.record());
  return row;
}

TEST(MemberColumns, Find_the_columns_of_some_members_whatever_was_asked_before) {
  const ado::Recordset first({"GId", "Qty"}, {"G1", Single{1}});
  const ado::Recordset second({"Note", "QTY", "gid"}, {"n", Single{2}, "G2"});
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(row_of(first, {"Gid", "Qty"}).Gid, "G1");
    EXPECT_EQ(row_of(first, {"Qty"}).Gid, "");
    EXPECT_EQ(row_of(first, {"Qty"}).Qty, 1);
    EXPECT_EQ(row_of(second, {"Gid", "Qty"}).Gid, "G2");
    EXPECT_EQ(row_of(second, {"Qty", "Gid"}).Qty, 2);
  }
}

TEST(MemberColumns, Are_filled_in_the_order_of_the_members) {
  const ado::Recordset set({"GId", "Qty"}, {"G1", "many"});
  const auto filled_before_the_error = [&](const std::vector<const Member*>& members) {
    ado::Recordset copy = set;
    SampleRow row;
    EXPECT_EQ(test::error_number([&] { MemberColumns::fields_of(members, copy)->take(row, copy.record()); }), 13);
    return row.Gid;
  };
  const Member* const goods = &SampleRow().members().named("Gid");
  const Member* const quantity = &SampleRow().members().named("Qty");
  EXPECT_EQ(filled_before_the_error({goods, quantity}), "G1");
  EXPECT_EQ(filled_before_the_error({quantity, goods}), "");
}

TEST(MemberColumns, A_member_whose_column_the_set_does_not_have_is_an_error_each_time) {
  const ado::Recordset set({"GId"}, {"G1"});
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(test::error_number([&] { row_of(set, {"Gid", "Qty"}); }), 3265);
    EXPECT_EQ(row_of(set, {"Gid"}).Gid, "G1");
  }
}

}  // namespace
}  // namespace brunvik
