// The host's own transactions on SQLite: what is kept, what is taken back, and what the engine gives up by itself.
#include <sqlite3.h>

#include <chrono>
#include <thread>

#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

namespace error = ado::error;
using namespace std::chrono_literals;

constexpr std::string_view one_warehouse = "insert into Warehouse(Id,WName) values('W1','东仓')";

// The error that a call ends with; of number 0 without one.
template <class Call>
ado::RuntimeError failure_of(Call&& call) {
  try {
    call();
  } catch (const ado::RuntimeError& failure) {
    return failure;
  }
  return ado::RuntimeError(0, "nothing failed");
}

bool holds(const ado::RuntimeError& failure, std::string_view text) {
  return failure.description().find(text) != std::string::npos;
}

class SqliteTransactions : public SqliteBooks {
 protected:
  Long warehouses() { return count("select count(*) from Warehouse"); }

  Long begin() {
    return failure_of([&] { books->BeginTrans(); }).number();
  }
  Long commit() {
    return failure_of([&] { books->CommitTrans(); }).number();
  }
  Long roll_back() {
    return failure_of([&] { books->RollbackTrans(); }).number();
  }

  // A write that needs more pages than the disk has left. It changes one record, so the engine keeps no way back but
  // the way back of the whole transaction.
  Long fill_the_disk() {
    run("pragma max_page_count=" + std::to_string(count("pragma page_count") + 1));
    return error_of(*books, "insert into Warehouse(Id,WName) values('W9','" + std::string(100'000, 'y') + "')");
  }

  // A transaction with one record in it that was lost to a full disk.
  void lose() {
    books->BeginTrans();
    run(one_warehouse);
    ASSERT_EQ(fill_the_disk(), error::provider_failed);
  }
};

TEST_F(SqliteTransactions, What_was_done_is_kept_at_the_commit_and_seen_by_others_from_then_on) {
  const auto other = open(path());
  books->BeginTrans();
  run(one_warehouse);
  run("insert into ZHXX(ID,YE) values('A1',0.3)");
  EXPECT_EQ(warehouses(), 1);
  EXPECT_EQ(other->Execute("select count(*) as n from Warehouse").value("n"), ado::Value(Long{0}));
  books->CommitTrans();
  EXPECT_EQ(other->Execute("select count(*) as n from Warehouse").value("n"), ado::Value(Long{1}));
  EXPECT_EQ(other->Execute("select YE from ZHXX").value("YE"), ado::Value(ado::Money::parse("0.3")));
}

TEST_F(SqliteTransactions, What_was_done_is_taken_back_by_the_rollback_tables_included) {
  books->BeginTrans();
  run(one_warehouse);
  run("create table Lent (Id TEXT COLLATE NOCASE)");
  run("insert into Lent(Id) values('L1')");
  books->RollbackTrans();
  EXPECT_EQ(warehouses(), 0);
  EXPECT_EQ(error_of(*books, "insert into Lent(Id) values('L1')"), error::no_such_table);
}

TEST_F(SqliteTransactions, A_begin_within_a_transaction_is_an_error_and_leaves_it_open) {
  books->BeginTrans();
  run(one_warehouse);
  const auto failure = failure_of([&] { books->BeginTrans(); });
  EXPECT_EQ(failure.number(), -2147168237);
  EXPECT_EQ(failure.description(), "只能打开一个事务，而已有一个事务打开。");
  EXPECT_EQ(roll_back(), 0);
  EXPECT_EQ(warehouses(), 0);
}

TEST_F(SqliteTransactions, A_commit_or_a_rollback_without_a_begin_is_an_error) {
  EXPECT_EQ(commit(), -2147168242);
  EXPECT_EQ(roll_back(), -2147168242);
  books->BeginTrans();
  books->CommitTrans();
  EXPECT_EQ(commit(), -2147168242);
  EXPECT_EQ(roll_back(), -2147168242);
  EXPECT_EQ(failure_of([&] { books->CommitTrans(); }).description(), "没有打开的事务。");
}

TEST_F(SqliteTransactions, A_closed_connection_says_so) {
  books->Close();
  EXPECT_EQ(begin(), error::object_closed);
  EXPECT_EQ(commit(), error::object_closed);
  EXPECT_EQ(roll_back(), error::object_closed);
}

TEST_F(SqliteTransactions, A_statement_that_fails_has_changed_nothing_and_the_transaction_goes_on) {
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

TEST_F(SqliteTransactions, Of_two_writers_the_second_waits_at_the_begin) {
  const auto impatient = open(path(), {.busy_timeout = 5ms});
  books->BeginTrans();
  EXPECT_EQ(failure_of([&] { impatient->BeginTrans(); }).number(), error::timed_out);
  EXPECT_EQ(failure_of([&] { impatient->RollbackTrans(); }).number(), error::no_transaction);

  std::thread patient([file = path()] {
    const auto other = open(file);
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

TEST_F(SqliteTransactions, A_connection_that_is_closed_or_goes_away_takes_back_what_was_open) {
  auto other = open(path());
  other->BeginTrans();
  other->Execute(one_warehouse);
  other->Close();
  EXPECT_EQ(warehouses(), 0);
  other = open(path());
  other->BeginTrans();
  other->Execute(one_warehouse);
  other.reset();
  EXPECT_EQ(warehouses(), 0);
  EXPECT_EQ(begin(), 0);
}

TEST_F(SqliteTransactions, A_commit_that_finds_readers_in_its_way_says_that_the_transaction_is_still_open) {
  // In write-ahead mode no reader is in the way of a commit; a file that can't have it works with a rollback journal.
  books = open(path(), {.busy_timeout = 5ms});
  ASSERT_EQ(text("pragma journal_mode=delete"), "delete");
  sqlite3* reader = nullptr;
  ASSERT_EQ(sqlite3_open(path().c_str(), &reader), SQLITE_OK);
  ASSERT_EQ(sqlite3_exec(reader, "begin; select count(*) from Warehouse", nullptr, nullptr, nullptr), SQLITE_OK);
  books->BeginTrans();
  run(one_warehouse);
  const auto failure = failure_of([&] { books->CommitTrans(); });
  EXPECT_EQ(failure.number(), error::timed_out);
  EXPECT_EQ(failure.description(), "database is locked; the transaction is still open");
  EXPECT_EQ(failure.statement(), "commit");
  sqlite3_close(reader);
  EXPECT_EQ(commit(), 0);
  EXPECT_EQ(warehouses(), 1);
}

TEST_F(SqliteTransactions, A_full_disk_loses_the_transaction_and_no_later_statement_enters_the_books_by_itself) {
  lose();
  const auto failure = failure_of([&] { run("insert into ZHXX(ID) values('A1')"); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_EQ(failure.description(),
            "The transaction was lost, and the books are as before its begin; it has to be rolled back before anything "
            "else is done: database or disk is full");
  EXPECT_EQ(failure.statement(), "insert into ZHXX(ID) values('A1')");
  EXPECT_EQ(error_of(*books, "select * from Warehouse"), error::provider_failed);
  EXPECT_EQ(error_of(*books, "commit"), error::provider_failed);
  EXPECT_EQ(begin(), error::provider_failed);
  EXPECT_EQ(roll_back(), 0);
  EXPECT_EQ(warehouses(), 0);
  EXPECT_EQ(count("select count(*) from ZHXX"), 0);
  EXPECT_EQ(roll_back(), error::no_transaction);
}

TEST_F(SqliteTransactions, The_commit_of_a_lost_transaction_is_an_error_that_ends_it) {
  lose();
  const auto failure = failure_of([&] { books->CommitTrans(); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_TRUE(holds(failure, "nothing is committed: database or disk is full")) << failure.description();
  EXPECT_EQ(commit(), error::no_transaction);
  EXPECT_EQ(warehouses(), 0);
  run("pragma max_page_count=1000000");
  EXPECT_EQ(begin(), 0);
  run(one_warehouse);
  EXPECT_EQ(commit(), 0);
  EXPECT_EQ(warehouses(), 1);
}

TEST_F(SqliteTransactions, A_full_disk_that_the_engine_can_take_back_for_the_statement_alone_loses_nothing) {
  run("insert into ZHXX(ID) values('A1')");
  run("insert into ZHXX(ID) values('A2')");
  books->BeginTrans();
  run(one_warehouse);
  run("pragma max_page_count=" + std::to_string(count("pragma page_count") + 1));
  EXPECT_EQ(error_of(*books, "insert into Warehouse(Id,WName) select ID,'" + std::string(100'000, 'y') + "' from ZHXX"),
            error::provider_failed);
  EXPECT_EQ(warehouses(), 1);
  EXPECT_EQ(commit(), 0);
  EXPECT_EQ(warehouses(), 1);
}

TEST_F(SqliteTransactions, Begin_commit_and_rollback_as_texts_work_on_the_same_transaction) {
  run("begin");
  run(one_warehouse);
  EXPECT_EQ(begin(), error::transaction_open);
  EXPECT_EQ(commit(), 0);
  EXPECT_EQ(warehouses(), 1);

  books->BeginTrans();
  run("delete from Warehouse");
  EXPECT_EQ(error_of(*books, "begin immediate"), error::provider_failed);
  run("rollback");
  EXPECT_EQ(roll_back(), error::no_transaction);
  EXPECT_EQ(warehouses(), 1);

  books->BeginTrans();
  run("delete from Warehouse");
  run("commit");
  EXPECT_EQ(commit(), error::no_transaction);
  EXPECT_EQ(warehouses(), 0);
}

TEST_F(SqliteTransactions, A_lost_transaction_ends_with_the_text_rollback_too) {
  for (const std::string_view text : {"rollback", " ROLLBACK Transaction;"}) {
    run("begin");
    run(one_warehouse);
    ASSERT_EQ(fill_the_disk(), error::provider_failed);
    EXPECT_EQ(error_of(*books, "rollback to W"), error::provider_failed);
    EXPECT_EQ(error_of(*books, ";"), error::provider_failed);
    EXPECT_EQ(error_of(*books, text), 0);
    EXPECT_EQ(warehouses(), 0);
  }
}

TEST_F(SqliteTransactions, A_savepoint_is_the_engine_s_own_and_leaves_the_transaction_open) {
  books->BeginTrans();
  run(one_warehouse);
  run("savepoint before_delete");
  run("delete from Warehouse");
  run("rollback to before_delete");
  EXPECT_EQ(commit(), 0);
  EXPECT_EQ(warehouses(), 1);
}

TEST_F(SqliteTransactions, A_full_disk_outside_of_a_transaction_loses_none) {
  EXPECT_EQ(fill_the_disk(), error::provider_failed);
  EXPECT_EQ(warehouses(), 0);
  EXPECT_EQ(roll_back(), error::no_transaction);
}

TEST_F(SqliteTransactions, A_connection_closed_after_a_loss_leaves_the_books_as_they_were) {
  lose();
  books->Close();
  books = open(path());
  EXPECT_EQ(warehouses(), 0);
}

}  // namespace
}  // namespace brunvik::sqlite
