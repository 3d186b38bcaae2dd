#include "host/server_database.h"

#include <cstdlib>

#include "brunvik/ado/errors.h"
#include "drivers/odbc/address.h"
#include "drivers/odbc/connection.h"

namespace brunvik::host {

namespace {

std::shared_ptr<odbc::Connection> opened(const std::string& address) {
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

// A server ends a transaction at each statement that lays a table, so what a failure leaves is taken away here: a
// database whose laying was cut off must not look as if it were in use.
void lay_tables(odbc::Connection& database) {
  try {
    for (const std::string& statement : schema::statements(engine_of(database))) database.Execute(statement);
  } catch (const ado::RuntimeError&) {
    for (const std::string& table : names_of_tables()) {
      try {
        database.Execute("drop table " + table);
      } catch (const ado::RuntimeError&) {
        // It wasn't laid yet; or the server is gone, and `schema --apply` lays the rest.
      }
    }
    throw;
  }
}

}  // namespace

std::string shown_address(const std::string& address) {
  std::string shown;
  for (const std::string& server : odbc::servers_of(address)) {
    shown.append(shown.empty() ? "" : "||").append(odbc::without_password(server));
  }
  return shown;
}

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
