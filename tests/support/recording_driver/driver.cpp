// An ODBC driver for tests. It stands for an engine that nobody has here: it carries nothing out, writes down each text
// that it is given, and selects nothing. In the connection string:
//
//   DRIVER   the path of this library
//   ENGINE   the name that it gives itself; Microsoft SQL Server if none is given
//   RECORD   the file that it writes the texts to, a line each
//   REFUSE   the beginning of the texts that it refuses
#include <sql.h>
#include <sqlext.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <string>
#include <string_view>

namespace {

struct Connection {
  std::string engine;
  std::string record;
  std::string refuse;
};

struct Statement {
  const Connection* connection;
  bool is_refused = false;
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
SQLRETURN SQL_API SQLFreeStmt(SQLHSTMT, SQLUSMALLINT) { return SQL_SUCCESS; }
SQLRETURN SQL_API SQLFetch(SQLHSTMT) { return SQL_NO_DATA; }

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC handle, SQLHWND, SQLCHAR* text, SQLSMALLINT length, SQLCHAR*, SQLSMALLINT,
                                   SQLSMALLINT*, SQLUSMALLINT) {
  auto& connection = *static_cast<Connection*>(handle);
  const std::string_view connection_string = text_of(text, length);
  connection.engine = attribute(connection_string, "ENGINE");
  if (connection.engine.empty()) connection.engine = "Microsoft SQL Server";
  connection.record = attribute(connection_string, "RECORD");
  connection.refuse = attribute(connection_string, "REFUSE");
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
  return statement.is_refused ? SQL_ERROR : SQL_SUCCESS;
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT, SQLSMALLINT* count) {
  *count = 0;
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
