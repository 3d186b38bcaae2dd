// The MariaDB server that a run of the tests was given, if it was given one.
#pragma once

#include <memory>
#include <string>

#include "drivers/odbc/connection.h"

namespace brunvik::test {

// Whether BRUNVIK_TEST_MARIADB names a server: a connection string without a database, of a user with all rights.
bool has_mariadb();

// An empty database of its own, which is dropped when the object goes.
class MariaDbDatabase {
 public:
  MariaDbDatabase();
  ~MariaDbDatabase();
  MariaDbDatabase(const MariaDbDatabase&) = delete;
  MariaDbDatabase& operator=(const MariaDbDatabase&) = delete;

  // The connection string.
  std::string address() const;
  std::shared_ptr<odbc::Connection> open(const odbc::Options& options = {}) const;

 private:
  std::string name_;
};

// The same with the books' tables in it.
class MariaDbBooks : public MariaDbDatabase {
 public:
  MariaDbBooks();
};

}  // namespace brunvik::test
