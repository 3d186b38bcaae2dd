// The tables laid on SQLite itself: no driver between.
#pragma once

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "schema/ddl.h"

namespace brunvik::schema {

using Row = std::vector<std::string>;

class Database {
 public:
  explicit Database(const std::string& path = ":memory:") {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open(path.c_str(), &opened);
    handle_.reset(opened);
    if (code != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(opened));
  }

  // Runs one statement and gives its rows as text, a null as "null".
  std::vector<Row> run(const std::string& text) {
    const auto statement = prepared(text);
    std::vector<Row> rows;
    int code = sqlite3_step(statement.get());
    for (; code == SQLITE_ROW; code = sqlite3_step(statement.get())) {
      Row row;
      for (int place = 0; place < sqlite3_column_count(statement.get()); ++place) {
        const auto* value = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), place));
        row.emplace_back(value == nullptr ? "null" : value);
      }
      rows.push_back(row);
    }
    if (code != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(handle_.get()));
    return rows;
  }

  // Whether a statement is carried out, or refused by a constraint; anything else is a fault of the test.
  bool takes(const std::string& text) {
    try {
      run(text);
      return true;
    } catch (const std::runtime_error&) {
      if (sqlite3_errcode(handle_.get()) != SQLITE_CONSTRAINT) throw;
      return false;
    }
  }

  // How the engine goes about a statement, a step a line.
  std::string plan(const std::string& text) {
    std::string steps;
    for (const Row& step : run("explain query plan " + text)) steps += step.back() + "\n";
    return steps;
  }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
  };

  std::unique_ptr<sqlite3_stmt, Finalize> prepared(const std::string& text) {
    sqlite3_stmt* statement = nullptr;
    const char* rest = nullptr;
    if (sqlite3_prepare_v2(handle_.get(), text.c_str(), -1, &statement, &rest) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(handle_.get()) + (": " + text));
    }
    std::unique_ptr<sqlite3_stmt, Finalize> owned(statement);
    if (*rest != '\0') throw std::runtime_error("more than one statement: " + text);
    return owned;
  }

  std::unique_ptr<sqlite3, Close> handle_;
};

inline Database laid(const std::string& path = ":memory:") {
  Database database(path);
  for (const std::string& statement : statements(Engine::sqlite)) database.run(statement);
  return database;
}

}  // namespace brunvik::schema
