// Databases by their address: "sqlite:PATH", or "sqlite::memory:" for one that lives as long as the process;
// "odbc:CONNECTION STRING" for one on a server, several strings joined by "||" for that of a cluster.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"
#include "schema/ddl.h"

namespace brunvik::host {

inline constexpr std::string_view in_memory = "sqlite::memory:";

// The address names no database that the command knows.
class UnknownAddress : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Database {
  ado::ConnectionReference connection;
  schema::Engine engine;
};

// The path of the file at an address; empty where the database lives in memory or on a server.
std::string file_at(const std::string& address);
std::string address_of_file(const std::string& path);

// An address as another run may be given it: a file's path in full, a connection string without its password. Empty for
// the memory, which no other run reaches.
std::string address_for_another_run(const std::string& address);

// Opens the database. `create` makes the file where there is none, and lays the tables in an empty database; the
// memory is always new and gets them in any case. A password that a connection string lacks is taken from the
// environment, BRUNVIK_PASSWORD. Throws an UnknownAddress, or a RuntimeError that says what is in the way, without any
// password; a database that has tables, and none of the books', is refused and stays as it is.
Database open_database(const std::string& address, bool create);

// Makes the file where there is none and lays the tables. Throws where anything stands in the database already.
Database open_fresh_database(const std::string& address);

// The names of the books' tables.
std::vector<std::string> names_of_tables();

// Does the work in one transaction: what throws out of it leaves the database as it was. A server ends the transaction
// at each statement that lays a table, so there it leaves what was laid before.
void all_or_nothing(ado::Connection& database, const std::function<void()>& work);

}  // namespace brunvik::host
