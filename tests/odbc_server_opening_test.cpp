// What a server refuses at the opening, and what the driver refuses of a server: each with a number and a text that
// says what to change, and none with a password.
#include <gtest/gtest.h>

#include <chrono>

#include "drivers/odbc/connection.h"
#include "tests/support/closed_port.h"
#include "tests/support/driver_books.h"
#include "tests/support/mariadb.h"
#include "tests/support/own_server.h"

namespace brunvik::test {
namespace {

namespace error = ado::error;
using namespace std::chrono_literals;

class OdbcOpening : public ::testing::Test {
 protected:
  static void expect_refused(const std::string& address, std::initializer_list<std::string_view> texts,
                             const odbc::Options& options = {}) {
    const auto begin = std::chrono::steady_clock::now();
    const auto failure = failure_of([&] { odbc::open(address, options); });
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 30s);
    EXPECT_EQ(failure.number(), error::provider_failed) << failure.description();
    for (const std::string_view text : texts) EXPECT_TRUE(holds(failure, text)) << failure.description();
    for (const std::string_view password : {"books-password", "stranger-password", "a-wrong-one"}) {
      EXPECT_FALSE(holds(failure, password)) << failure.description();
    }
  }

  // The attribute of a connection string in the place of its present value.
  static std::string with(std::string address, const std::string& keyword, const std::string& value) {
    const auto place = address.find(keyword + "=");
    return address.replace(place, address.find(';', place) - place, keyword + "=" + value);
  }

  MariaDbDatabase database_;
  std::string by_tcp_ = by_tcp() + ";DATABASE=books";
};

TEST_F(OdbcOpening, What_is_wrong_in_the_string_is_told_in_the_engine_s_words) {
  const ClosedPort closed;
  EXPECT_EQ(odbc::open(by_tcp_)->State(), 1);
  expect_refused(with(by_tcp_, "PWD", "a-wrong-one"), {"Access denied for user 'books'@"});
  expect_refused(with(by_tcp_, "PWD", "{a-wrong-one;}"), {"Access denied for user 'books'@"});
  expect_refused(with(by_tcp_, "UID", "nobody"), {"Access denied for user 'nobody'@"});
  expect_refused(with(by_tcp_, "PORT", closed.number()), {"Can't connect to server on '127.0.0.1'"});
  expect_refused(with(by_tcp_, "SERVER", "nowhere.invalid"), {"nowhere.invalid"});
  expect_refused(with(by_tcp_, "DATABASE", "books_nowhere"), {"Unknown database 'books_nowhere'"});
  expect_refused(with(by_tcp_, "DRIVER", "{Nowhere ODBC}"), {"[unixODBC][Driver Manager]"});
  expect_refused("DSN=nowhere-at-all", {"[unixODBC][Driver Manager]"});
  expect_refused("", {"There is no connection string."});
  expect_refused(" || ", {"There is no connection string."});
}

TEST_F(OdbcOpening, A_password_of_the_options_is_shown_no_more_than_one_of_the_string) {
  const std::string bare = by_tcp_.substr(0, by_tcp_.find(";PWD=")) + ";DATABASE=books";
  EXPECT_EQ(odbc::open(bare, {.password = "books-password"})->State(), 1);
  expect_refused(bare, {"Access denied for user 'books'@"}, {.password = "a-wrong-one"});
}

TEST_F(OdbcOpening, A_string_without_a_database_is_refused) {
  expect_refused(by_tcp(), {"The connection string names no DATABASE."});
}

TEST_F(OdbcOpening, A_user_without_rights_is_told_so) {
  const std::string stranger = with(with(by_tcp_, "UID", "stranger"), "PWD", "stranger-password");
  expect_refused(stranger, {"Access denied for user 'stranger'@", "to database 'books'"});
}

TEST_F(OdbcOpening, A_database_of_another_collation_or_character_set_is_refused_with_the_statement_that_changes_it) {
  const auto books = database_.open();
  const std::string base = books->Execute("select database() as name").value("name").as_text();
  for (const char* own : {"utf8mb4 collate utf8mb4_general_ci", "utf8mb4 collate utf8mb4_bin", "latin1", "gb2312"}) {
    books->Execute("alter database " + base + " character set " + own);
    expect_refused(database_.address(),
                   {"The database's collation is ",
                    "alter database " + base + " character set utf8mb4 collate utf8mb4_uca1400_as_ci"});
  }
  books->Execute("alter database " + base + " character set utf8mb4 collate utf8mb4_uca1400_as_ci");
  EXPECT_EQ(database_.open()->State(), 1);
}

TEST_F(OdbcOpening, A_connection_in_another_character_set_is_refused) {
  expect_refused(database_.address() + ";CHARSET=latin1", {"The connection's character set is latin1", "CHARSET"});
}

TEST_F(OdbcOpening, A_database_of_another_program_is_refused_and_stays_as_it_is) {
  const odbc::Options as_books{.known_tables = {"StockBill", "goods"}};
  EXPECT_EQ(database_.open(as_books)->State(), 1);
  database_.open()->Execute("create table Bookmarks (Id int)");
  expect_refused(database_.address(), {"none of the books' tables"}, as_books);
  const auto host = database_.open();
  EXPECT_EQ(
      host->Execute("select count(*) as n from information_schema.tables where table_schema=database()").value("n"),
      ado::Value(Long{1}));
  host->Execute("create table GOODS (id int)");
  EXPECT_EQ(database_.open(as_books)->State(), 1);
}

TEST(OdbcOwnServer, One_that_tells_names_apart_by_their_case_is_refused_with_the_setting) {
  const OwnServer server("lower_case_table_names=0");
  const auto failure = failure_of([&] { odbc::open(server.connection_string()); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_TRUE(holds(failure, "lower_case_table_names has to be 1")) << failure.description();
}

TEST(OdbcOwnServer, One_without_a_connection_to_spare_says_so) {
  // Another connection is left to who may see to the server; root is one of them.
  const OwnServer server("max_connections=10");
  std::vector<std::shared_ptr<odbc::Connection>> all;
  while (all.size() < 11) all.push_back(server.open_when_there_is_room());
  const auto failure = failure_of([&] { odbc::open(server.connection_string()); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_TRUE(holds(failure, "Too many connections")) << failure.description();
  all.clear();
  EXPECT_EQ(server.open_when_there_is_room()->State(), 1);
}

}  // namespace
}  // namespace brunvik::test
