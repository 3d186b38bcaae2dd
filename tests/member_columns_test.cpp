#include "brunvik/foundation/member_columns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/error_number.h"
#include "tests/support/sample.h"

namespace brunvik {
namespace {

using test::SampleRow;

SampleRow read(const ado::Recordset& set) {
  SampleRow row;
  MemberColumns::for_each(row.members(), set,
                          [&](const Member& member, const Value& field) { member.read(row, field); });
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
  const ado::Recordset set({"GId"}, {"G1"});
  SampleRow row;
  EXPECT_EQ(test::error_number([&] {
              MemberColumns::for_each(row.members(), set,
                                      [&](const Member& member, const Value& field) { member.read(row, field); });
            }),
            3265);
  EXPECT_EQ(row.Gid, "G1");
}

std::vector<std::size_t> places(const ado::Recordset& set, const std::vector<std::string>& names) {
  std::vector<const Member*> members;
  for (const std::string& name : names) members.push_back(&SampleRow().members().named(name));
  std::vector<std::size_t> found;
  const MemberColumns::Fields fields = MemberColumns::fields_of(members, set);
  for (const auto& [member, place] : *fields) found.push_back(place);
  return found;
}

TEST(MemberColumns, Find_the_columns_of_some_members_in_their_order_whatever_was_asked_before) {
  const ado::Recordset first({"GId", "Qty"}, {"G1", Single{1}});
  const ado::Recordset second({"Note", "QTY", "gid"}, {"n", Single{2}, "G2"});
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(places(first, {"Gid", "Qty"}), (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(places(first, {"Qty", "Gid"}), (std::vector<std::size_t>{1, 0}));
    EXPECT_EQ(places(first, {"Qty"}), (std::vector<std::size_t>{1}));
    EXPECT_EQ(places(second, {"Gid", "Qty"}), (std::vector<std::size_t>{2, 1}));
  }
}

TEST(MemberColumns, A_member_whose_column_the_set_does_not_have_is_an_error_each_time) {
  const ado::Recordset set({"GId"}, {"G1"});
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(test::error_number([&] { places(set, {"Gid", "Qty"}); }), 3265);
    EXPECT_EQ(places(set, {"Gid"}), (std::vector<std::size_t>{0}));
  }
}

}  // namespace
}  // namespace brunvik
