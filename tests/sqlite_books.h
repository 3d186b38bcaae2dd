// Small books for the tests of the SQLite driver, in a file of their own that goes with the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "brunvik/ado/errors.h"
#include "drivers/sqlite/connection.h"
#include "tests/support/folder.h"
#include "tests/support/small_books.h"

namespace brunvik::sqlite {

inline void lay_small_books(Connection& connection) {
  test::lay(connection, schema::Engine::sqlite, test::small_tables());
}

class SqliteBooks : public ::testing::Test {
 protected:
  SqliteBooks() : books(open(path(), {.synchronous = Synchronous::normal, .create = true})) { lay_small_books(*books); }

  std::string path() const { return folder.file("books.db"); }

  ado::Recordset run(std::string_view statement) { return books->Execute(statement); }

  // The first value of the first record.
  ado::Value value(std::string_view statement) {
    ado::Recordset set = books->Execute(statement);
    return set.at_end() ? ado::Value() : set.value(ado::Column{0});
  }
  std::string text(std::string_view statement) { return value(statement).joined_text(); }
  Long count(std::string_view statement) { return value(statement).as_long(); }

  Folder folder;
  std::shared_ptr<Connection> books;
};

// The number of the error that a statement ends with, 0 without one.
inline Long error_of(ado::Connection& connection, std::string_view statement) {
  try {
    connection.Execute(statement);
    return 0;
  } catch (const ado::RuntimeError& failure) {
    EXPECT_FALSE(failure.description().empty());
    EXPECT_EQ(failure.statement(), statement);
    return failure.number();
  }
}

}  // namespace brunvik::sqlite
