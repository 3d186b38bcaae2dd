#include "host/database.h"

#include <filesystem>

#include "brunvik/ado/errors.h"
#include "drivers/sqlite/connection.h"
#include "schema/ddl.h"
#include "schema/tables.h"

namespace brunvik::host {

namespace {

constexpr std::string_view scheme = "sqlite:";

std::string path_in(const std::string& address) {
  if (!address.starts_with(scheme) || address.size() == scheme.size()) {
    throw UnknownAddress("'" + address + "' is no database: sqlite:PATH or sqlite::memory: is one");
  }
  return address.substr(scheme.size());
}

std::vector<std::string> names_of_tables() {
  std::vector<std::string> names;
  for (const schema::Table& table : schema::tables()) names.emplace_back(table.name);
  return names;
}

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

std::string address_of_file(const std::string& path) { return std::string(scheme) + path; }

std::string file_at(const std::string& address) { return address == in_memory ? std::string() : path_in(address); }

ado::ConnectionReference open_database(const std::string& address, bool create) {
  const std::string path = path_in(address);
  std::error_code ignored;
  if (address != in_memory && !create && !std::filesystem::exists(path, ignored)) {
    throw ado::RuntimeError(ado::error::provider_failed,
                            "there is no database '" + path + "' (--create makes one with its tables)");
  }
  auto database = opened(path, create);
  if (create || address == in_memory) lay_tables(*database);
  return database;
}

ado::ConnectionReference open_fresh_database(const std::string& address) {
  auto database = opened(path_in(address), true);
  if (!lay_tables(*database)) {
    throw ado::RuntimeError(ado::error::provider_failed,
                            "'" + file_at(address) + "' is in use already, and stays as it is");
  }
  return database;
}

void all_or_nothing(ado::Connection& database, const std::function<void()>& work) {
  database.BeginTrans();
  try {
    work();
    database.CommitTrans();
  } catch (...) {
    try {
      database.RollbackTrans();
    } catch (const ado::RuntimeError&) {
      // A commit that failed may have ended the transaction; what counts is that failure.
    }
    throw;
  }
}

}  // namespace brunvik::host
