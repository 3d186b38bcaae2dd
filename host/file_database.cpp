#include "host/file_database.h"

#include <filesystem>

#include "brunvik/ado/errors.h"
#include "drivers/sqlite/connection.h"
#include "host/database.h"

namespace brunvik::host {

namespace {

constexpr std::string_view memory = ":memory:";

ado::ConnectionReference opened(const std::string& path, bool create) {
  try {
    return sqlite::open(path, {.create = create, .known_tables = names_of_tables()});
  } catch (const ado::RuntimeError& failure) {
    throw ado::RuntimeError(failure.number(), "the database '" + path + "' can't be opened: " + failure.description());
  }
}

bool is_empty(ado::Connection& database) {
  return database.Execute("select count(*) as entries from sqlite_master").value("entries").as_long() == 0;
}

// Whether the tables were laid, which they are in an empty database. All of them or none: one whose laying was cut off
// must not look as if it were in use.
bool lay_tables(ado::Connection& database) {
  bool empty = false;
  all_or_nothing(database, [&] {
    empty = is_empty(database);
    if (!empty) return;
    for (const std::string& statement : schema::statements(schema::Engine::sqlite)) database.Execute(statement);
  });
  return empty;
}

}  // namespace

ado::ConnectionReference open_file(const std::string& path, bool create) {
  std::error_code ignored;
  if (path != memory && !create && !std::filesystem::exists(path, ignored)) {
    throw ado::RuntimeError(ado::error::provider_failed,
                            "there is no database '" + path + "' (--create makes one with its tables)");
  }
  auto database = opened(path, create);
  if (create || path == memory) lay_tables(*database);
  return database;
}

ado::ConnectionReference open_fresh_file(const std::string& path) {
  auto database = opened(path, true);
  if (!lay_tables(*database)) {
    throw ado::RuntimeError(ado::error::provider_failed, "'" + path + "' is in use already, and stays as it is");
  }
  return database;
}

}  // namespace brunvik::host
