// An ODBC driver for tests. It stands for an engine that nobody has here: it carries nothing out, writes down each text
// that it is given, and selects nothing but what it is told to. In the connection string:
//
//   DRIVER   the path of this library
//   ENGINE   the name that it gives itself; Microsoft SQL Server if none is given
//   RECORD   the file that it writes the texts to, a line each
//   REFUSE   the beginning of the texts that it refuses
//   ANSWER   the beginning of the texts that it answers with rows
#include <sql.h>
#include <sqlext.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>

#include "tests/support/recording_driver/answer.h"

namespace {

struct Connection {
  std::string engine;
  std::string record;
  std::string refuse;
  std::string answer;
};

struct Statement {
  const Connection* connection;
  bool is_refused = false;
  bool is_answered = false;
  brunvik::test::Answer answer{};
};

std::string attribute(std::string_view connection_string, std::string_view keyword) {
  std::string key(keyword);
  key += '=';
  const auto begin = connection_string.find(key);
  if (begin == std::string_view::npos) return {};
  const std::string_view value = connection_string.substr(begin + key.size());
  return std::string(value.substr(0, value.find(';')));
}

std::string_view text_of(const SQLCHAR* text, SQLINTEGER length) {
  const auto* const characters = reinterpret_cast<const char*>(text);
  return length == SQL_NTS ? std::string_view(characters) : std::string_view(characters, std::size_t(length));
}

void tell(std::string_view text, void* place, SQLSMALLINT room, SQLSMALLINT* length) {
  if (length) *length = static_cast<SQLSMALLINT>(text.size());
  if (!place || room <= 0) return;
  const std::size_t count = std::min(text.size(), static_cast<std::size_t>(room) - 1);
  std::memcpy(place, text.data(), count);
  static_cast<char*>(place)[count] = '\0';
}

}  // namespace

extern "C" {

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT type, SQLHANDLE parent, SQLHANDLE* handle) {
  if (type == SQL_HANDLE_DBC) {
    *handle = new Connection;
  } else if (type == SQL_HANDLE_STMT) {
    *handle = new Statement{static_cast<Connection*>(parent)};
  } else {
    *handle = new char;
  }
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT type, SQLHANDLE handle) {
  if (type == SQL_HANDLE_DBC) {
    delete static_cast<Connection*>(handle);
  } else if (type == SQL_HANDLE_STMT) {
    delete static_cast<Statement*>(handle);
  } else {
    delete static_cast<char*>(handle);
  }
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetEnvAttr(SQLHENV, SQLINTEGER, SQLPOINTER, SQLINTEGER) { return SQL_SUCCESS; }
SQLRETURN SQL_API SQLSetConnectAttr(SQLHDBC, SQLINTEGER, SQLPOINTER, SQLINTEGER) { return SQL_SUCCESS; }
SQLRETURN SQL_API SQLSetStmtAttr(SQLHSTMT, SQLINTEGER, SQLPOINTER, SQLINTEGER) { return SQL_SUCCESS; }
SQLRETURN SQL_API SQLDisconnect(SQLHDBC) { return SQL_SUCCESS; }

SQLRETURN SQL_API SQLFreeStmt(SQLHSTMT handle, SQLUSMALLINT what) {
  auto& answer = static_cast<Statement*>(handle)->answer;
  if (what == SQL_CLOSE) answer.close();
  if (what == SQL_UNBIND) answer.unbind();
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT handle) {
  auto& statement = *static_cast<Statement*>(handle);
  return statement.is_answered ? statement.answer.fetch() : SQL_NO_DATA;
}

SQLRETURN SQL_API SQLBindCol(SQLHSTMT handle, SQLUSMALLINT number, SQLSMALLINT form, SQLPOINTER place, SQLLEN room,
                             SQLLEN* length) {
  static_cast<Statement*>(handle)->answer.bind(number, form, place, room, length);
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetData(SQLHSTMT handle, SQLUSMALLINT number, SQLSMALLINT form, SQLPOINTER place, SQLLEN room,
                             SQLLEN* length) {
  auto& statement = *static_cast<Statement*>(handle);
  const SQLRETURN result = statement.answer.value(number, form, place, room, length);
  statement.is_refused = result == SQL_ERROR;
  return result;
}

SQLRETURN SQL_API SQLDescribeCol(SQLHSTMT handle, SQLUSMALLINT number, SQLCHAR* name, SQLSMALLINT room,
                                 SQLSMALLINT* length, SQLSMALLINT* type, SQLULEN* size, SQLSMALLINT* places,
                                 SQLSMALLINT* nullable) {
  std::string told;
  static_cast<Statement*>(handle)->answer.describe(number, told, *type, *size);
  tell(told, name, room, length);
  *places = 0;
  *nullable = SQL_NULLABLE;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC handle, SQLHWND, SQLCHAR* text, SQLSMALLINT length, SQLCHAR*, SQLSMALLINT,
                                   SQLSMALLINT*, SQLUSMALLINT) {
  auto& connection = *static_cast<Connection*>(handle);
  const std::string_view connection_string = text_of(text, length);
  connection.engine = attribute(connection_string, "ENGINE");
  if (connection.engine.empty()) connection.engine = "Microsoft SQL Server";
  connection.record = attribute(connection_string, "RECORD");
  connection.refuse = attribute(connection_string, "REFUSE");
  connection.answer = attribute(connection_string, "ANSWER");
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetInfo(SQLHDBC handle, SQLUSMALLINT what, SQLPOINTER place, SQLSMALLINT room,
                             SQLSMALLINT* length) {
  if (what == SQL_DBMS_NAME) {
    tell(static_cast<Connection*>(handle)->engine, place, room, length);
  } else if (what == SQL_DBMS_VER || what == SQL_DRIVER_ODBC_VER) {
    tell("03.00", place, room, length);
  } else if (place) {
    std::memset(place, 0, sizeof(SQLUSMALLINT));
  }
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLExecDirect(SQLHSTMT handle, SQLCHAR* text, SQLINTEGER length) {
  auto& statement = *static_cast<Statement*>(handle);
  const Connection& connection = *statement.connection;
  const std::string_view sent = text_of(text, length);
  if (!connection.record.empty()) std::ofstream(connection.record, std::ios::app) << sent << '\n';
  statement.is_refused = !connection.refuse.empty() && sent.starts_with(connection.refuse);
  statement.is_answered = !connection.answer.empty() && sent.starts_with(connection.answer);
  return statement.is_refused ? SQL_ERROR : SQL_SUCCESS;
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT handle, SQLSMALLINT* count) {
  *count = static_cast<Statement*>(handle)->is_answered ? brunvik::test::Answer::columns : 0;
  return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetDiagRec(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT number, SQLCHAR* state,
                                SQLINTEGER* native, SQLCHAR* text, SQLSMALLINT room, SQLSMALLINT* length) {
  if (type != SQL_HANDLE_STMT || number != 1 || !static_cast<Statement*>(handle)->is_refused) return SQL_NO_DATA;
  std::memcpy(state, "42000", 6);
  *native = 102;
  tell("Incorrect syntax near what was refused.", text, room, length);
  return SQL_SUCCESS;
}

// There is nothing to tell beside the record, but the driver manager asks no driver that has no such function.
SQLRETURN SQL_API SQLGetDiagField(SQLSMALLINT, SQLHANDLE, SQLSMALLINT, SQLSMALLINT, SQLPOINTER, SQLSMALLINT,
                                  SQLSMALLINT*) {
  return SQL_NO_DATA;
}

}  // extern "C"
