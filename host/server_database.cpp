#include "host/server_database.h"

#include <cstdlib>

#include "brunvik/ado/errors.h"
#include "drivers/odbc/address.h"
#include "drivers/odbc/connection.h"

namespace brunvik::host {

namespace {

// A server's name is looked up again and again until the time for opening is over, but no lookup is cut short, and by
// its own settings one that gets no answer can take a minute.
void shorten_lookups() { setenv("RES_OPTIONS", "timeout:1 attempts:1", 0); }

std::shared_ptr<odbc::Connection> opened(const std::string& address) {
  shorten_lookups();
  const char* const password = std::getenv("BRUNVIK_PASSWORD");
  try {
    return odbc::open(address, {.password = password ? password : "", .known_tables = names_of_tables()});
  } catch (const ado::RuntimeError& failure) {
    throw ado::RuntimeError(failure.number(),
                            "the database '" + shown_address(address) + "' can't be opened: " + failure.description());
  }
}

schema::Engine engine_of(const odbc::Connection& database) {
  return database.engine_name() == "MariaDB" ? schema::Engine::mariadb : schema::Engine::sqlserver;
}

// A database whose laying was cut off must not look as if it were in use. A server keeps each table by itself, so the
// tables that were laid before a failure are taken away; those of another host, who lays them at the same time, are
// not.
void lay_tables(odbc::Connection& database) {
  const std::vector<std::string> tables = names_of_tables();
  auto next = tables.begin();
  try {
    for (const std::string& statement : schema::statements(engine_of(database))) {
      database.Execute(statement);
      if (statement.starts_with("CREATE TABLE")) ++next;
    }
  } catch (const ado::RuntimeError&) {
    while (next != tables.begin()) {
      try {
        database.Execute("drop table " + *--next);
      } catch (const ado::RuntimeError&) {
        // The server is gone, or the user may not: `schema --apply` lays the rest.
      }
    }
    throw;
  }
}

std::string joined(const std::string& address, std::string (*changed)(std::string_view connection_string)) {
  std::string strings;
  for (const std::string& server : odbc::servers_of(address)) {
    strings.append(strings.empty() ? "" : "||").append(changed(server));
  }
  return strings;
}

}  // namespace

std::string shown_address(const std::string& address) { return joined(address, odbc::without_password); }

std::string address_without_password(const std::string& address) { return joined(address, odbc::stripped_of_password); }

Database open_server(const std::string& address, bool create) {
  auto database = opened(address);
  if (!database->has_tables()) {
    if (!create) {
      throw ado::RuntimeError(ado::error::provider_failed, "there are no tables in the database '" +
                                                               shown_address(address) + "' (--create lays them)");
    }
    lay_tables(*database);
  }
  return {database, engine_of(*database)};
}

Database open_fresh_server(const std::string& address) {
  auto database = opened(address);
  if (database->has_tables()) {
    throw ado::RuntimeError(ado::error::provider_failed,
                            "'" + shown_address(address) + "' is in use already, and stays as it is");
  }
  lay_tables(*database);
  return {database, engine_of(*database)};
}

}  // namespace brunvik::host
