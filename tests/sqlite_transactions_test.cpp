// The host's own transactions on SQLite: what is kept, what is taken back, and what the engine gives up by itself.
#include <sqlite3.h>

#include <chrono>
#include <thread>

#include "tests/sqlite_books.h"
#include "tests/support/transaction_scene.h"

namespace brunvik::sqlite {
namespace {

namespace error = ado::error;
using namespace std::chrono_literals;
using test::failure_of;
using test::holds;

class SqliteTransactions : public test::TransactionScene<SqliteBooks> {
 protected:
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

TEST_F(SqliteTransactions, What_was_done_is_taken_back_by_the_rollback_tables_included) {
  books->BeginTrans();
  run(one_warehouse);
  run("create table Lent (Id TEXT COLLATE NOCASE)");
  run("insert into Lent(Id) values('L1')");
  books->RollbackTrans();
  EXPECT_EQ(warehouses(), 0);
  EXPECT_EQ(error_of(*books, "insert into Lent(Id) values('L1')"), error::no_such_table);
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
