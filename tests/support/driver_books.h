// Small books on each engine that has a driver, for the promises that all drivers keep.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"
#include "schema/ddl.h"
#include "schema/tables.h"

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

class DriverBooks : public ::testing::TestWithParam<DriverEngine> {
 protected:
  DriverBooks();

  ado::Recordset run(std::string_view statement) { return books->Execute(statement); }

  // The first value of the first record.
  ado::Value value(std::string_view statement);
  std::string text(std::string_view statement) { return value(statement).joined_text(); }
  Long count(std::string_view statement) { return value(statement).as_long(); }

  // How many of these shapes the connection keeps.
  std::size_t cached_statements() const { return place->cached_statements(*books); }

  void lay(const schema::Table& table);

  // The statement is refused as one that neither original database would take; the text holds the reason.
  void expect_refused(std::string_view statement, std::string_view reason = {});
  void expect_taken(std::string_view statement);

  std::unique_ptr<BookPlace> place = GetParam().place();
  std::shared_ptr<ado::Connection> books = place->open();
};

// The error that a call ends with; of number 0 without one.
template <class Call>
ado::RuntimeError failure_of(Call&& call) {
  try {
    call();
  } catch (const ado::RuntimeError& failure) {
    return failure;
  }
  return ado::RuntimeError(0, "nothing failed");
}

// The number of the error that a statement ends with, 0 without one.
Long error_of(ado::Connection& connection, std::string_view statement);

inline bool holds(const ado::RuntimeError& failure, std::string_view text) {
  return failure.description().find(text) != std::string::npos;
}

// A text as a literal of a statement.
std::string literal_of(std::string_view text);

}  // namespace brunvik::test
