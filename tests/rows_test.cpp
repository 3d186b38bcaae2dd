// The rows of a bill: a vector whose positions count from 1.
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "brunvik/foundation/public_object.h"
#include "tests/support/error_number.h"
#include "tests/support/sample.h"

namespace brunvik {
namespace {

using test::SampleRow;

class Rows : public ::testing::Test {
 protected:
  Rows() {
    for (const char* goods : {"G1", "G2", "G3"}) rows.add().Gid = goods;
  }

  std::string goods() const {
    std::string all;
    for (const SampleRow& row : rows) all += row.Gid + " ";
    return all;
  }

  Collection<SampleRow> rows;
  RowCollection& any = rows;
};

TEST_F(Rows, Have_positions_from_1_to_their_count) {
  EXPECT_EQ(rows.size(), 3U);
  EXPECT_EQ(any.size(), any.Count());
  EXPECT_EQ(rows[1].Gid, "G1");
  rows[3].Qty = 5;
  const Collection<SampleRow>& fixed = rows;
  EXPECT_EQ(fixed[3].Qty, 5);
  EXPECT_EQ(fixed.at(2).Gid, "G2");
  EXPECT_EQ(&any[2], &rows[2]);
}

TEST_F(Rows, Close_up_behind_one_that_is_removed) {
  rows.remove(2);
  EXPECT_EQ(goods(), "G1 G3 ");
  any.remove(2);
  any.remove(1);
  EXPECT_EQ(goods(), "");
}

TEST_F(Rows, Move_up_for_one_that_is_inserted) {
  rows.insert(2).Gid = "N";
  EXPECT_EQ(goods(), "G1 N G2 G3 ");
  rows.insert(1).Gid = "F";
  rows.insert(6).Gid = "L";
  EXPECT_EQ(goods(), "F G1 N G2 G3 L ");
  EXPECT_EQ(dynamic_cast<SampleRow&>(any.insert(2)).Gid, "");
  EXPECT_EQ(rows.size(), 7U);
}

TEST_F(Rows, Begin_at_position_1_in_an_empty_collection) {
  rows.clear();
  rows.insert(1).Gid = "N";
  EXPECT_EQ(goods(), "N ");
}

TEST_F(Rows, Are_left_alone_by_a_position_outside_of_them) {
  constexpr std::size_t far = std::numeric_limits<std::size_t>::max();
  for (const std::size_t position : {std::size_t{0}, std::size_t{4}, far}) {
    EXPECT_EQ(test::error_number([&] { rows.remove(position); }), 9) << position;
    EXPECT_EQ(test::error_number([&] { rows[position].Gid = ""; }), 9) << position;
    EXPECT_EQ(test::error_number([&] { rows.at(position).Gid = ""; }), 9) << position;
  }
  for (const std::size_t position : {std::size_t{0}, std::size_t{5}, far}) {
    EXPECT_EQ(test::error_number([&] { rows.insert(position).Gid = ""; }), 9) << position;
  }
  EXPECT_EQ(goods(), "G1 G2 G3 ");
}

}  // namespace
}  // namespace brunvik
