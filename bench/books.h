// Filled books: some kinds of bills over some years of days, the day of the benchmark's clock among them.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "bench/plain_sqlite.h"
#include "brunvik/ado/connection.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "drivers/sqlite/connection.h"

namespace brunvik::bench {

// What the filled books hold, whatever the number of their bills.
inline constexpr int goods_count = 5'000;
inline constexpr int bills_a_day = 365;

// A folder that is gone when the benchmark is over.
class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string file(std::string_view name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

// Lays books in a new file and fills them: two rows a bill, a voucher for every fifth.
void lay_books(const std::string& path, int bills);

// Where a benchmark keeps its books.
struct Place {
  std::string_view name;
  bool in_memory;
  sqlite::Synchronous synchronous;
};

inline constexpr Place in_memory{"memory", true, sqlite::Synchronous::full};
inline constexpr Place normal_log{"log_normal", false, sqlite::Synchronous::normal};
inline constexpr Place full_log{"log_full", false, sqlite::Synchronous::full};

// A copy of the books in a file, opened by the driver or by SQLite alone.
std::shared_ptr<sqlite::Connection> open_copy(const Folder& folder, const std::string& books, const Place& place);
std::unique_ptr<PlainSqlite> open_plain_copy(const Folder& folder, const std::string& books, const Place& place);

// Begins a session on a connection, in the place of the one before.
void start_session(const ado::ConnectionReference& connection, std::string_view dialect = sql_server_dialect);

}  // namespace brunvik::bench
