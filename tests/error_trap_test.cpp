#include "brunvik/foundation/error_trap.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "brunvik/ado/errors.h"
#include "tests/support/apartment.h"

namespace brunvik {
namespace {

using Notices = std::vector<std::string>;

class ErrorTrap : public ::testing::Test {
 protected:
  test::NoticeRecorder host;
};

TEST_F(ErrorTrap, A_body_that_ends_gives_0_and_shows_nothing) {
  bool ran = false;
  EXPECT_EQ(trap([&] { ran = true; }), 0);
  EXPECT_TRUE(ran);
  EXPECT_EQ(trap("Save():", [] {}), 0);
  EXPECT_EQ(host.notices, Notices{});
}

TEST_F(ErrorTrap, An_error_becomes_its_number) {
  EXPECT_EQ(trap([] { ado::raise(ado::error::invalid_use_of_null); }), 94);
  EXPECT_EQ(trap([] { throw ado::RuntimeError(ado::error::statement_refused, "near from"); }), -2147217900);
  EXPECT_EQ(host.notices, Notices{});
}

TEST_F(ErrorTrap, With_a_tag_the_notice_is_the_tag_directly_followed_by_the_text) {
  EXPECT_EQ(trap(" Audite(): ", [] { throw ado::RuntimeError(ado::error::statement_refused, "near from"); }),
            -2147217900);
  EXPECT_EQ(trap("GetSqlVal():", [] { ado::raise(ado::error::overflow); }), 6);
  EXPECT_EQ(host.notices, (Notices{"提示信息| Audite(): near from", "提示信息|GetSqlVal():溢出"}));
}

TEST_F(ErrorTrap, The_title_can_be_another_one) {
  trap(
      "GetKeyValue():", [] { ado::raise(ado::error::type_mismatch); }, "错误信息");
  EXPECT_EQ(host.notices, Notices{"错误信息|GetKeyValue():类型不匹配"});
}

TEST_F(ErrorTrap, A_stop_gives_its_result_without_a_notice) {
  EXPECT_EQ(trap([] { throw Stop{-1}; }), -1);
  EXPECT_EQ(trap("Save():", [] { throw Stop{42}; }), 42);
  EXPECT_EQ(host.notices, Notices{});
}

TEST_F(ErrorTrap, A_result_other_than_0_stops_the_body) {
  bool reached = false;
  EXPECT_EQ(trap([&] {
              stop_unless_done(0);
              stop_unless_done(13);
              reached = true;
            }),
            13);
  EXPECT_FALSE(reached);
}

TEST_F(ErrorTrap, A_worker_tells_its_error_once_and_ends_the_verb_around_it) {
  bool reached = false;
  EXPECT_EQ(trap(" SavePayBill(): ",
                 [&] {
                   worker(" AddPayBill(): ", [] { ado::raise(ado::error::object_not_set); });
                   reached = true;
                 }),
            91);
  EXPECT_FALSE(reached);
  EXPECT_EQ(host.notices, Notices{"提示信息| AddPayBill(): 对象变量或 With 块变量未设置"});
}

TEST_F(ErrorTrap, A_tag_may_be_put_together_for_the_notice) {
  int made = 0;
  const auto tag = [&] {
    ++made;
    return std::string("AddWareHouseRepairBillItems():");
  };
  EXPECT_EQ(trap([&] { worker(tag, [] {}); }), 0);
  EXPECT_EQ(made, 0);
  EXPECT_EQ(trap([&] { worker(tag, [] { ado::raise(ado::error::object_not_set); }); }), 91);
  EXPECT_EQ(made, 1);
  EXPECT_EQ(host.notices, Notices{"提示信息|AddWareHouseRepairBillItems():对象变量或 With 块变量未设置"});
}

TEST_F(ErrorTrap, Lets_nothing_through_whatever_a_host_throws) {
  EXPECT_EQ(trap([] { throw std::runtime_error("from a host's connection"); }), 51);
  EXPECT_EQ(trap([] { throw 7; }), 51);
  EXPECT_EQ(trap([] { throw std::bad_alloc(); }), 7);
  trap("Save():", [] { throw 7; });
  trap("Save():", [] { throw std::bad_alloc(); });
  EXPECT_EQ(host.notices, (Notices{"提示信息|Save():内部错误", "提示信息|Save():内存溢出"}));
}

TEST(RuntimeError, Has_the_text_that_hosts_know) {
  const std::vector<std::pair<Long, std::string_view>> texts{
      {5, "无效的过程调用或参数"},
      {6, "溢出"},
      {9, "下标越界"},
      {11, "除数为零"},
      {13, "类型不匹配"},
      {91, "对象变量或 With 块变量未设置"},
      {94, "无效使用 Null"},
  };
  for (const auto& [number, text] : texts) EXPECT_EQ(ado::RuntimeError(number).description(), text) << number;
}

TEST(RuntimeError, Of_an_unknown_number_has_a_text_too) {
  EXPECT_EQ(ado::error_text(12345), "应用程序定义或对象定义错误");
}

TEST(RuntimeError, The_codes_of_a_provider_are_the_signed_numbers_of_its_32_bits) {
  EXPECT_EQ(ado::error::statement_refused, -2147217900);
  EXPECT_EQ(ado::error::no_such_table, -2147217865);
  EXPECT_EQ(ado::error::constraint_violated, -2147217873);
  EXPECT_EQ(ado::error::data_overflow, -2147217833);
  EXPECT_EQ(ado::error::timed_out, -2147217871);
  EXPECT_EQ(ado::error::provider_failed, -2147467259);
  EXPECT_EQ(ado::error::no_transaction, -2147168242);
  EXPECT_EQ(ado::error::transaction_open, -2147168237);
}

TEST(RuntimeError, Carries_the_engines_own_text_and_the_statement) {
  const ado::RuntimeError failure(ado::error::no_such_table, "no such table: T", "select * from T");
  EXPECT_EQ(failure.number(), ado::error::no_such_table);
  EXPECT_STREQ(failure.what(), "no such table: T");
  EXPECT_EQ(failure.statement(), "select * from T");
  EXPECT_EQ(ado::RuntimeError(13).statement(), "");
}

}  // namespace
}  // namespace brunvik
