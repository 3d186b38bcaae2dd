// Owners of SQLite's prepared statements.
#pragma once

#include <sqlite3.h>

#include <memory>

namespace brunvik::sqlite {

struct Finalize {
  void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};

using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

// Lets go of the locks that a running statement holds, however its run ends.
class Reset {
 public:
  explicit Reset(sqlite3_stmt* statement) noexcept : statement_(statement) {}
  ~Reset() { sqlite3_reset(statement_); }
  Reset(const Reset&) = delete;
  Reset& operator=(const Reset&) = delete;

 private:
  sqlite3_stmt* statement_;
};

}  // namespace brunvik::sqlite
