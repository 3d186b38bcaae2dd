// SQLite without the driver, as a program of its own would use it: the baselines, and the fast way to fill books.
#pragma once

#include <sqlite3.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "bench/bound_text.h"
#include "drivers/sqlite/connection.h"

namespace brunvik::bench {

// A statement written with ? for its values, and the values of one use of it.
struct PreparedText {
  sqlite3_stmt* statement = nullptr;
  std::vector<BoundValue> values;
};

class PlainSqlite {
 public:
  explicit PlainSqlite(const std::string& path);

  // With the settings that the driver gives its connections.
  PlainSqlite(const std::string& path, sqlite::Synchronous synchronous);

  // Through sqlite3_exec; what is selected is read out.
  void execute(const std::string& text);

  // The same statement, prepared once for all uses of it.
  PreparedText prepare(std::string_view text);
  void execute(const PreparedText& text);

 private:
  struct Close {
    void operator()(sqlite3* database) const noexcept { sqlite3_close(database); }
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
  };

  static int read_out(void* self, int count, char** values, char**);
  void check(int code) const;

  std::unique_ptr<sqlite3, Close> database_;
  std::map<std::string, std::unique_ptr<sqlite3_stmt, Finalize>> statements_;
  // Where a value that is read out goes.
  std::string text_;
  double number_ = 0;
};

}  // namespace brunvik::bench
