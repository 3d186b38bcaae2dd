// The host's own transactions: what is kept, what is taken back, and who waits for whom.
#include <chrono>
#include <thread>

#include "tests/support/driver_books.h"
#include "tests/support/transaction_scene.h"

namespace brunvik::test {
namespace {

namespace error = ado::error;
using namespace std::chrono_literals;

class DriverTransactions : public TransactionScene<DriverBooks> {};

TEST_P(DriverTransactions, What_was_done_is_kept_at_the_commit_and_seen_by_others_from_then_on) {
  const auto other = place->open();
  books->BeginTrans();
  run(one_warehouse);
  run("insert into ZHXX(ID,YE) values('A1',0.3)");
  EXPECT_EQ(warehouses(), 1);
  EXPECT_EQ(other->Execute("select count(*) as n from Warehouse").value("n"), ado::Value(Long{0}));
  books->CommitTrans();
  EXPECT_EQ(other->Execute("select count(*) as n from Warehouse").value("n"), ado::Value(Long{1}));
  EXPECT_EQ(other->Execute("select YE from ZHXX").value("YE"), ado::Value(ado::Money::parse("0.3")));
}

TEST_P(DriverTransactions, A_begin_within_a_transaction_is_an_error_and_leaves_it_open) {
  books->BeginTrans();
  run(one_warehouse);
  const auto failure = failure_of([&] { books->BeginTrans(); });
  EXPECT_EQ(failure.number(), -2147168237);
  EXPECT_EQ(failure.description(), "只能打开一个事务，而已有一个事务打开。");
  EXPECT_EQ(roll_back(), 0);
  EXPECT_EQ(warehouses(), 0);
}

TEST_P(DriverTransactions, A_commit_or_a_rollback_without_a_begin_is_an_error) {
  EXPECT_EQ(commit(), -2147168242);
  EXPECT_EQ(roll_back(), -2147168242);
  books->BeginTrans();
  books->CommitTrans();
  EXPECT_EQ(commit(), -2147168242);
  EXPECT_EQ(roll_back(), -2147168242);
  EXPECT_EQ(failure_of([&] { books->CommitTrans(); }).description(), "没有打开的事务。");
}

TEST_P(DriverTransactions, A_closed_connection_says_so) {
  place->close(*books);
  EXPECT_EQ(begin(), error::object_closed);
  EXPECT_EQ(commit(), error::object_closed);
  EXPECT_EQ(roll_back(), error::object_closed);
}

TEST_P(DriverTransactions, A_statement_that_fails_has_changed_nothing_and_the_transaction_goes_on) {
  run("insert into ZHXX(ID,KHH) values('A1','W1')");
  run("insert into ZHXX(ID,KHH) values('A2','W2')");
  books->BeginTrans();
  run("insert into Warehouse(Id) values('W2')");
  EXPECT_EQ(error_of(*books, "insert into Warehouse(Id) select KHH from ZHXX order by ID"), error::constraint_violated);
  EXPECT_EQ(text("select Id from Warehouse"), "W2");
  EXPECT_EQ(error_of(*books, "insert into Nowhere(Id) values('W3')"), error::no_such_table);
  EXPECT_EQ(error_of(*books, "update ZHXX set YE=549755813888"), error::data_overflow);
  run("insert into Warehouse(Id) values('W3')");
  EXPECT_EQ(commit(), 0);
  EXPECT_EQ(warehouses(), 2);
}

TEST_P(DriverTransactions, Of_two_writers_the_second_waits_at_the_begin) {
  const auto impatient = place->open_impatient();
  books->BeginTrans();
  EXPECT_EQ(failure_of([&] { impatient->BeginTrans(); }).number(), error::timed_out);
  EXPECT_EQ(failure_of([&] { impatient->RollbackTrans(); }).number(), error::no_transaction);

  std::thread patient([this] {
    const auto other = place->open();
    other->BeginTrans();
    // Read after the wait, so what the first writer left is in it.
    const Long before = other->Execute("select count(*) as n from Warehouse").value("n").as_long();
    other->Execute("insert into Warehouse(Id) values('after " + std::to_string(before) + "')");
    other->CommitTrans();
  });
  std::this_thread::sleep_for(30ms);
  run(one_warehouse);
  books->CommitTrans();
  patient.join();
  EXPECT_EQ(count("select count(*) from Warehouse where Id='after 1'"), 1);
}

TEST_P(DriverTransactions, A_connection_that_is_closed_or_goes_away_takes_back_what_was_open) {
  auto other = place->open();
  other->BeginTrans();
  other->Execute(one_warehouse);
  place->close(*other);
  EXPECT_EQ(warehouses(), 0);
  other = place->open();
  other->BeginTrans();
  other->Execute(one_warehouse);
  other.reset();
  EXPECT_EQ(warehouses(), 0);
  EXPECT_EQ(begin(), 0);
}

TEST_P(DriverTransactions, A_row_that_another_holds_is_waited_for_no_longer_than_the_host_said) {
  run(one_warehouse);
  const auto impatient = place->open_impatient();
  books->BeginTrans();
  run("update Warehouse set WName='西仓' where Id='W1'");
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(error_of(*impatient, "update Warehouse set WName='南仓' where Id='W1'"), error::timed_out);
  // Of its own accord a driver waits for five.
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 4'500ms);
  books->CommitTrans();
  EXPECT_EQ(error_of(*impatient, "update Warehouse set WName=WName||'一' where Id='W1'"), 0);
  EXPECT_EQ(text("select WName from Warehouse"), "西仓一");
}

INSTANTIATE_TEST_SUITE_P(On, DriverTransactions, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
