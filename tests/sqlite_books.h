// Small books for the tests of the SQLite driver, in a file of their own that goes with the test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "drivers/sqlite/connection.h"
#include "tests/support/asked_books.h"
#include "tests/support/failures.h"
#include "tests/support/folder.h"
#include "tests/support/small_books.h"

namespace brunvik::sqlite {

using test::error_of;

inline void lay_small_books(Connection& connection) {
  test::lay(connection, schema::Engine::sqlite, test::small_tables());
}

class SqliteBooks : public ::testing::Test, protected test::AskedBooks {
 protected:
  SqliteBooks() : books(open(path(), {.synchronous = Synchronous::normal, .create = true})) { lay_small_books(*books); }

  std::string path() const { return folder.file("books.db"); }

  ado::Connection& asked() override { return *books; }

  Folder folder;
  std::shared_ptr<Connection> books;
};

}  // namespace brunvik::sqlite
