// A server that is lost in the middle: the statement that meets it fails and is never sent again, the next one finds a
// server or says that there is none, and a transaction is gone as a whole.
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <thread>

#include "tests/support/driver_books.h"
#include "tests/support/mariadb.h"
#include "tests/support/own_server.h"
#include "tests/support/small_books.h"

namespace brunvik::test {
namespace {

namespace error = ado::error;
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::string_view one_warehouse = "insert into Warehouse(Id,WName) values('W1','东仓')";
constexpr std::string_view all_warehouses = "select count(*) as n from Warehouse";

Long warehouses(ado::Connection& books) { return books.Execute(all_warehouses).value("n").as_long(); }

class OdbcLoss : public ::testing::Test {
 protected:
  OdbcLoss() { lay(*books_, schema::Engine::mariadb, small_tables()); }

  void kill_the_connection() {
    const std::string number = books_->Execute("select connection_id() as id").value("id").joined_text();
    database_.open()->Execute("kill " + number);
  }

  MariaDbDatabase database_;
  std::shared_ptr<odbc::Connection> books_ = database_.open();
};

TEST_F(OdbcLoss, A_connection_that_is_killed_fails_one_statement_and_the_next_goes_on) {
  kill_the_connection();
  const auto failure = failure_of([&] { books_->Execute(one_warehouse); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_TRUE(holds(failure, "MariaDB") || holds(failure, "ma-3")) << failure.description();
  EXPECT_EQ(failure.statement(), one_warehouse);
  EXPECT_EQ(warehouses(*books_), 0);
  EXPECT_EQ(error_of(*books_, one_warehouse), 0);
  EXPECT_EQ(warehouses(*books_), 1);
}

TEST_F(OdbcLoss, The_settings_of_the_next_connection_are_those_of_the_lost_one) {
  kill_the_connection();
  EXPECT_NE(error_of(*books_, one_warehouse), 0);
  books_->Execute("insert into Warehouse(Id,WName) values('W\\'||'1','a\\b')");
  EXPECT_EQ(books_->Execute("select WName from Warehouse where Id='w\\1 '").value("WName").as_text(), "a\\b");
}

TEST_F(OdbcLoss, A_transaction_is_gone_with_its_connection_and_nothing_of_it_enters_the_books) {
  books_->BeginTrans();
  books_->Execute(one_warehouse);
  kill_the_connection();
  EXPECT_EQ(error_of(*books_, "insert into Warehouse(Id) values('W2')"), error::provider_failed);
  EXPECT_EQ(error_of(*books_, "insert into Warehouse(Id) values('W3')"), error::provider_failed);
  EXPECT_EQ(failure_of([&] { books_->BeginTrans(); }).number(), error::provider_failed);
  EXPECT_EQ(failure_of([&] { books_->RollbackTrans(); }).number(), 0);
  EXPECT_EQ(warehouses(*books_), 0);
  books_->BeginTrans();
  books_->Execute(one_warehouse);
  books_->CommitTrans();
  EXPECT_EQ(warehouses(*books_), 1);
}

TEST_F(OdbcLoss, The_commit_of_a_lost_transaction_is_an_error_that_ends_it) {
  books_->BeginTrans();
  books_->Execute(one_warehouse);
  kill_the_connection();
  EXPECT_EQ(failure_of([&] { books_->CommitTrans(); }).number(), error::provider_failed);
  EXPECT_EQ(failure_of([&] { books_->RollbackTrans(); }).number(), error::no_transaction);
  EXPECT_EQ(warehouses(*books_), 0);
}

// Stands in the place of a server that is about to end: takes one connection, closes it without a word, and is gone.
class EndingServer {
 public:
  explicit EndingServer(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    unlink(path.c_str());
    bind(listening_, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    listen(listening_, 1);
    taking_ = std::thread([this] {
      close(accept(listening_, nullptr, nullptr));
      close(listening_);
    });
  }
  EndingServer(const EndingServer&) = delete;
  EndingServer& operator=(const EndingServer&) = delete;
  ~EndingServer() { taking_.join(); }

 private:
  int listening_ = socket(AF_UNIX, SOCK_STREAM, 0);
  std::thread taking_;
};

class OdbcOwnServerLoss : public ::testing::Test {
 protected:
  std::shared_ptr<odbc::Connection> lay_books(const odbc::Options& options = {}) {
    auto books = odbc::open(server_.connection_string(), options);
    lay(*books, schema::Engine::mariadb, small_tables());
    return books;
  }

  // What was acknowledged is there after the end.
  OwnServer server_{"innodb_flush_log_at_trx_commit=1"};
};

TEST_F(OdbcOwnServerLoss, One_that_ends_fails_its_statement_at_once_and_the_next_within_the_time_for_opening) {
  const auto books = lay_books();
  books->Execute(one_warehouse);
  server_.end_at_once();
  auto begin = Clock::now();
  EXPECT_EQ(error_of(*books, all_warehouses), error::provider_failed);
  EXPECT_LT(Clock::now() - begin, 5s);
  begin = Clock::now();
  const auto failure = failure_of([&] { books->Execute(all_warehouses); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_TRUE(holds(failure, "Can't connect")) << failure.description();
  EXPECT_LT(Clock::now() - begin, 15s);
  server_.start();
  EXPECT_EQ(warehouses(*books), 1);
}

TEST_F(OdbcOwnServerLoss, What_stood_in_the_way_last_is_told_and_not_what_stood_there_at_first) {
  const auto books = lay_books({.reopen_timeout = 1s});
  server_.end_at_once();
  EXPECT_EQ(error_of(*books, all_warehouses), error::provider_failed);
  const EndingServer ending(server_.socket());
  const auto failure = failure_of([&] { books->Execute(all_warehouses); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_TRUE(holds(failure, "Can't connect")) << failure.description();
}

TEST_F(OdbcOwnServerLoss, One_that_falls_silent_is_waited_for_as_long_as_the_host_said) {
  const auto books = lay_books({.answer_timeout = 2s, .reopen_timeout = 2s});
  server_.fall_silent();
  const auto begin = Clock::now();
  const auto failure = failure_of([&] { books->Execute(one_warehouse); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_LT(Clock::now() - begin, 15s);
  EXPECT_EQ(error_of(*books, one_warehouse), error::provider_failed);
  EXPECT_LT(Clock::now() - begin, 30s);
  server_.go_on();
  EXPECT_GE(warehouses(*books), 0);
}

TEST(OdbcFullServer, A_disk_without_room_is_an_error_and_keeps_what_was_there) {
  const OwnServer server("innodb_file_per_table=OFF innodb_data_file_path=ibdata1:12M:autoextend:max:20M");
  const auto books = odbc::open(server.connection_string());
  lay(*books, schema::Engine::mariadb, small_tables());
  books->Execute(one_warehouse);
  const std::string remarks = literal_of(std::string(2'000'000, 'x'));
  ado::RuntimeError failure(0, "");
  Long kept = 1;
  for (; failure.number() == 0 && kept < 50; ++kept) {
    failure = failure_of([&] {
      books->Execute("insert into Warehouse(Id,WName) values('X" + std::to_string(kept) + "'," + remarks + ")");
    });
  }
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_TRUE(holds(failure, "is full")) << failure.description();
  EXPECT_EQ(warehouses(*books), kept - 1);
  EXPECT_EQ(books->Execute("select WName from Warehouse where Id='W1'").value("WName").as_text(), "东仓");
}

}  // namespace
}  // namespace brunvik::test
