#include "bench/server_books.h"

#include <sqlite3.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <thread>
#include <utility>

#include "bench/plain_odbc.h"
#include "drivers/odbc/connection.h"
#include "schema/ddl.h"
#include "schema/tables.h"

namespace brunvik::bench {

namespace {

constexpr std::string_view between_servers = "||";

std::string variable(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

std::string first_of(const std::string& servers) { return servers.substr(0, servers.find(between_servers)); }

std::string next_name() {
  static int count = 0;
  return "books_bench_" + std::to_string(getpid()) + "_" + std::to_string(++count);
}

// The rows of a table as the values of an insert: (1,'a'),(2,'b')
class Rows {
 public:
  Rows(sqlite3* database, const schema::Table& table) {
    std::string columns;
    for (const schema::Column& column : table.columns) {
      columns += (columns.empty() ? "quote(" : "||','||quote(") + std::string(column.name) + ")";
    }
    const std::string text = "select '('||" + columns + "||')' from " + std::string(table.name);
    sqlite3_stmt* made = nullptr;
    if (sqlite3_prepare_v2(database, text.c_str(), -1, &made, nullptr) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(database));
    }
    statement_.reset(made);
  }

  // As many as stand in a statement of a megabyte; empty behind the last.
  std::string next() {
    constexpr std::size_t longest = 1'000'000;
    std::string values;
    while (values.size() < longest && !is_done_) {
      is_done_ = sqlite3_step(statement_.get()) != SQLITE_ROW;
      if (is_done_) break;
      if (!values.empty()) values += ',';
      values += reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), 0));
    }
    return values;
  }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
  bool is_done_ = false;
};

}  // namespace

std::string mariadb_server() { return variable("BRUNVIK_BENCH_MARIADB"); }
std::string cluster_servers() { return variable("BRUNVIK_BENCH_CLUSTER"); }

ServerBooks::ServerBooks(std::string server, const std::string& path)
    : servers_(std::move(server)), name_(next_name()) {
  PlainOdbc(first_of(servers_) + ";DATABASE=books")
      .execute("create or replace database " + name_ + " character set utf8mb4 collate utf8mb4_uca1400_as_ci");
  copy_from(path);
}

ServerBooks::~ServerBooks() {
  try {
    PlainOdbc(first_of(servers_) + ";DATABASE=books").execute("drop database " + name_);
  } catch (const std::exception&) {
    // The server is removed behind the benchmarks.
  }
}

std::string ServerBooks::address() const {
  std::string all;
  for (std::size_t first = 0; first <= servers_.size();) {
    const std::size_t end = std::min(servers_.find(between_servers, first), servers_.size());
    if (!all.empty()) all += between_servers;
    all += servers_.substr(first, end - first) + ";DATABASE=" + name_;
    first = end + between_servers.size();
  }
  return all;
}

void ServerBooks::copy_from(const std::string& path) const {
  PlainOdbc books(first_of(servers_) + ";DATABASE=" + name_);
  for (const std::string& statement : schema::statements(schema::Engine::mariadb)) books.execute(statement);
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
  const std::unique_ptr<sqlite3, int (*)(sqlite3*)> file(opened, sqlite3_close_v2);
  if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(file.get()));
  // Without its questions the engine lays the indexes of an empty table in one go.
  books.execute("set session unique_checks=0,foreign_key_checks=0");
  for (const schema::Table& table : schema::tables()) {
    Rows rows(file.get(), table);
    books.execute("start transaction");
    for (std::string values = rows.next(); !values.empty(); values = rows.next()) {
      books.execute("insert into `" + std::string(table.name) + "` values" + values);
    }
    books.execute("commit");
    books.execute("analyze table `" + std::string(table.name) + "`");
  }
}

void settle(const std::string& server) {
  const auto books = odbc::open(first_of(server) + ";DATABASE=books");
  PlainOdbc settings(first_of(server) + ";DATABASE=books");
  settings.execute("set global innodb_max_purge_lag_wait=0");
  settings.execute("set global innodb_max_dirty_pages_pct=0");
  const auto dirty_pages = [&] {
    return std::stol(
        books->Execute("show global status like 'Innodb_buffer_pool_pages_dirty'").value("Value").as_text());
  };
  constexpr int longest = 120;
  constexpr long hardly_any = 100;
  for (int second = 0; second < longest && dirty_pages() > hardly_any; ++second) {
    std::this_thread::sleep_for(std::chrono::seconds(1));
  }
  settings.execute("set global innodb_max_dirty_pages_pct=default");
}

void set_commit(const std::string& server, Commit commit) {
  PlainOdbc(first_of(server) + ";DATABASE=books")
      .execute("set global innodb_flush_log_at_trx_commit=" + std::string(commit == Commit::durable ? "1" : "0"));
}

}  // namespace brunvik::bench
