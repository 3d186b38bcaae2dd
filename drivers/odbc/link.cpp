#include "drivers/odbc/link.h"

#include <array>
#include <cstdint>

#include "drivers/odbc/failure.h"
#include "drivers/odbc/result_columns.h"

namespace brunvik::odbc {

namespace {

// ODBC takes numbers in the place of pointers.
SQLPOINTER as_attribute(std::uintptr_t number) noexcept {
  return reinterpret_cast<SQLPOINTER>(number);  // NOLINT(performance-no-int-to-ptr)
}

Environment made_environment() {
  Environment environment(SQL_NULL_HANDLE);
  expect(SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, as_attribute(SQL_OV_ODBC3), 0), environment);
  return environment;
}

}  // namespace

Link::Link(const std::string& connection_string, std::chrono::seconds time_to_open)
    : environment_(made_environment()), database_(environment_.get()) {
  SQLSetConnectAttr(database_.get(), SQL_ATTR_LOGIN_TIMEOUT,
                    as_attribute(static_cast<std::uintptr_t>(time_to_open.count())), SQL_IS_UINTEGER);
  const SQLRETURN result =
      SQLDriverConnect(database_.get(), nullptr, as_characters(connection_string),
                       static_cast<SQLSMALLINT>(connection_string.size()), nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
  expect(result, database_);
  SQLUINTEGER extensions = 0;
  constexpr SQLUINTEGER any = SQL_GD_ANY_COLUMN | SQL_GD_BOUND;
  SQLGetInfo(database_.get(), SQL_GETDATA_EXTENSIONS, &extensions, sizeof extensions, nullptr);
  gives_any_column_ = (extensions & any) == any;
  // Of a text that is sent at once, MariaDB's ODBC driver takes the engine's error for a format: a percent sign in it
  // ends the process. Of one that is prepared it doesn't.
  prepares_first_ = told(SQL_DRIVER_NAME).find("maodbc") != std::string::npos;
}

Link::~Link() {
  if (database_.get()) SQLDisconnect(database_.get());
}

std::string Link::told(SQLUSMALLINT what) const {
  std::array<char, 256> text{};
  SQLSMALLINT length = 0;
  expect(SQLGetInfo(database_.get(), what, text.data(), static_cast<SQLSMALLINT>(text.size()), &length), database_);
  return text.data();
}

std::string Link::engine_name() const { return told(SQL_DBMS_NAME); }

std::string Link::engine_version() const { return told(SQL_DBMS_VER); }

Statement Link::statement() const {
  Statement statement(database_.get());
  if (!statement.get()) throw Failure(diagnosis_of(database_));
  SQLSetStmtAttr(statement.get(), SQL_ATTR_NOSCAN, as_attribute(SQL_NOSCAN_ON), SQL_IS_UINTEGER);
  return statement;
}

void Link::send(const Statement& statement, std::string_view text) const {
  const auto length = static_cast<SQLINTEGER>(text.size());
  if (!prepares_first_) return expect(SQLExecDirect(statement.get(), as_characters(text), length), statement);
  expect(SQLPrepare(statement.get(), as_characters(text), length), statement);
  expect(SQLExecute(statement.get()), statement);
}

ado::Recordset Link::execute(std::string_view text) const {
  const Statement statement = this->statement();
  send(statement, text);
  ResultColumns columns(statement, {}, gives_any_column_);
  return columns.empty() ? ado::Recordset() : columns.fetch(statement);
}

}  // namespace brunvik::odbc
