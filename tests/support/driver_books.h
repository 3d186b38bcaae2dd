// Small books on each engine that has a driver, for the promises that all drivers keep.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"
#include "schema/ddl.h"
#include "schema/tables.h"
#include "tests/support/asked_books.h"
#include "tests/support/failures.h"

namespace brunvik::test {

// Where books lie, and their connections. The place goes with the object.
class BookPlace {
 public:
  virtual ~BookPlace() = default;

  virtual std::shared_ptr<ado::Connection> open() const = 0;

  // One that waits for another as short as the driver lets it.
  virtual std::shared_ptr<ado::Connection> open_impatient() const = 0;

  // One that keeps this many shapes of statements.
  virtual std::shared_ptr<ado::Connection> open_with(std::size_t cached_statements) const = 0;

  // What every driver's connection has beside that of the library.
  virtual void close(ado::Connection& books) const = 0;
  virtual std::size_t cached_statements(const ado::Connection& books) const = 0;
};

struct DriverEngine {
  std::string name;
  schema::Engine engine;
  std::function<std::unique_ptr<BookPlace>()> place;  // with nothing in it
};

// SQLite, and MariaDB where the run was given a server.
const std::vector<DriverEngine>& driver_engines();

// Of these MariaDB, where it is.
std::vector<DriverEngine> mariadb_alone();

// The last part of a test's name.
inline const auto by_engine = [](const auto& info) { return info.param.name; };

class DriverBooks : public ::testing::TestWithParam<DriverEngine>, protected AskedBooks {
 protected:
  DriverBooks();

  ado::Connection& asked() override { return *books; }

  // How many of these shapes the connection keeps.
  std::size_t cached_statements() const { return place->cached_statements(*books); }

  void lay(const schema::Table& table);

  // The statement is refused as one that neither original database would take; the text holds the reason.
  void expect_refused(std::string_view statement, std::string_view reason = {});
  void expect_taken(std::string_view statement);

  std::unique_ptr<BookPlace> place = GetParam().place();
  std::shared_ptr<ado::Connection> books = place->open();
};

// A text as a literal of a statement.
std::string literal_of(std::string_view text);

}  // namespace brunvik::test
