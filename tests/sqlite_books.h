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

namespace brunvik::sqlite {

inline constexpr std::string_view small_books[] = {
    "CREATE TABLE StockBill (Id TEXT COLLATE NOCASE NOT NULL PRIMARY KEY, Type INTEGER, Status INTEGER,"
    " Auditor TEXT COLLATE NOCASE, AuditTime TEXT COLLATE NOCASE,"
    " PaidAmount MONEY DEFAULT 0 CHECK (typeof(PaidAmount) NOT IN ('text', 'blob')),"
    " CloseAmount MONEY DEFAULT 0 CHECK (typeof(CloseAmount) NOT IN ('text', 'blob')),"
    " AdvanceAmount MONEY DEFAULT 0 CHECK (typeof(AdvanceAmount) NOT IN ('text', 'blob')),"
    " ClosedTag INTEGER DEFAULT 0 CHECK (ClosedTag IS NULL OR typeof(ClosedTag) = 'integer'),"
    " CreateFlag BIT, TaxRate REAL CHECK (typeof(TaxRate) NOT IN ('text', 'blob')), Remarks TEXT COLLATE NOCASE)",
    "CREATE INDEX StockBill_Type ON StockBill (Type)",
    "CREATE TABLE StockBillItems (BillId TEXT COLLATE NOCASE, RowNum SMALLINT, GId TEXT COLLATE NOCASE,"
    " Qty REAL CHECK (typeof(Qty) NOT IN ('text', 'blob')),"
    " Price MONEY CHECK (typeof(Price) NOT IN ('text', 'blob')),"
    " Amount MONEY CHECK (typeof(Amount) NOT IN ('text', 'blob')), Receiver TEXT COLLATE NOCASE,"
    " Remarks TEXT COLLATE NOCASE)",
    "CREATE INDEX StockBillItems_BillId ON StockBillItems (BillId)",
    "CREATE TABLE Warehouse (Id TEXT COLLATE NOCASE NOT NULL PRIMARY KEY, WName TEXT COLLATE NOCASE)",
    "CREATE TABLE ZHXX (ID TEXT COLLATE NOCASE NOT NULL PRIMARY KEY, ZH TEXT COLLATE NOCASE, KHH TEXT COLLATE NOCASE,"
    " YE MONEY DEFAULT 0 CHECK (typeof(YE) NOT IN ('text', 'blob')))",
};

inline void lay_small_books(Connection& connection) {
  for (const std::string_view statement : small_books) connection.Execute(statement);
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
