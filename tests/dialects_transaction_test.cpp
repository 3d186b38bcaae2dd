// What a driver answers by how the host's transaction stands.
#include <gtest/gtest.h>

#include <functional>

#include "drivers/dialects/host_transaction.h"

namespace brunvik::dialects {
namespace {

namespace error = ado::error;
using State = HostTransaction::State;

// "number text" of the error that a call ends with, empty without one.
std::string failure_of(const std::function<void()>& call) {
  try {
    call();
    return {};
  } catch (const ado::RuntimeError& failure) {
    return std::to_string(failure.number()) + ' ' + failure.description();
  }
}

constexpr const char* only_one = "-2147168237 只能打开一个事务，而已有一个事务打开。";
constexpr const char* none = "-2147168242 没有打开的事务。";

TEST(HostTransaction, Without_one_there_is_nothing_to_commit_to_roll_back_or_to_lose) {
  HostTransaction transaction;
  transaction.lost("deadlock");
  EXPECT_EQ(transaction.state(), State::none);
  transaction.expect_not_lost("select 1");
  transaction.expect_none();
  EXPECT_EQ(failure_of([&] { transaction.expect_to_commit(); }), none);
  EXPECT_EQ(failure_of([&] { transaction.expect_to_roll_back(); }), none);
}

TEST(HostTransaction, An_open_one_lets_no_other_begin) {
  HostTransaction transaction;
  transaction.opened();
  EXPECT_EQ(failure_of([&] { transaction.expect_none(); }), only_one);
  transaction.expect_not_lost("select 1");
  transaction.expect_to_commit();
  EXPECT_TRUE(transaction.expect_to_roll_back());
  EXPECT_EQ(transaction.state(), State::open);
  transaction.ended();
  transaction.expect_none();
}

TEST(HostTransaction, A_lost_one_refuses_each_statement_and_each_begin) {
  HostTransaction transaction;
  transaction.opened();
  transaction.lost("deadlock");
  transaction.lost("the second reason");
  EXPECT_EQ(transaction.state(), State::lost);
  const std::string refused =
      "-2147467259 The transaction was lost, and the books are as before its begin; it has to be rolled back before "
      "anything else is done: deadlock";
  EXPECT_EQ(failure_of([&] { transaction.expect_not_lost("select 1"); }), refused);
  EXPECT_EQ(failure_of([&] { transaction.expect_none(); }), refused);
  EXPECT_EQ(transaction.state(), State::lost);
}

TEST(HostTransaction, The_rollback_of_a_lost_one_ends_it_and_leaves_the_engine_nothing_to_do) {
  HostTransaction transaction;
  transaction.opened();
  transaction.lost("deadlock");
  EXPECT_FALSE(transaction.expect_to_roll_back());
  EXPECT_EQ(transaction.state(), State::none);
}

TEST(HostTransaction, The_commit_of_a_lost_one_ends_it_with_an_error) {
  HostTransaction transaction;
  transaction.opened();
  transaction.lost("deadlock");
  EXPECT_EQ(failure_of([&] { transaction.expect_to_commit(); }),
            "-2147467259 The transaction was lost, and the books are as before its begin; nothing is committed: "
            "deadlock");
  EXPECT_EQ(transaction.state(), State::none);
}

TEST(HostTransaction, A_commit_that_the_engine_refuses_says_how_the_transaction_stands) {
  const ado::RuntimeError busy(error::timed_out, "busy", "commit");
  HostTransaction transaction;
  transaction.opened();
  EXPECT_EQ(failure_of([&] { transaction.commit_failed(busy, true); }),
            "-2147217871 busy; the transaction is still open");
  EXPECT_EQ(transaction.state(), State::open);
  EXPECT_EQ(failure_of([&] { transaction.commit_failed(busy, false); }),
            "-2147217871 busy; the transaction is over, and the books are as before its begin");
  EXPECT_EQ(transaction.state(), State::none);
}

}  // namespace
}  // namespace brunvik::dialects
