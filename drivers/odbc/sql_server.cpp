#include "drivers/odbc/sql_server.h"

#include <algorithm>

namespace brunvik::odbc {

namespace {

// Behind the literal or the name that begins at a place, or the place itself where none begins there. A closing mark
// that stands there twice closes nothing.
std::size_t behind_quoted(std::string_view statement, std::size_t place) {
  constexpr std::string_view opening = "'\"[";
  constexpr std::string_view closing = "'\"]";
  const std::size_t mark = opening.find(statement[place]);
  if (mark == std::string_view::npos) return place;
  for (++place; place < statement.size(); ++place) {
    if (statement[place] != closing[mark]) continue;
    if (place + 1 == statement.size() || statement[place + 1] != closing[mark]) return place + 1;
    ++place;
  }
  return statement.size();
}

}  // namespace

std::string with_minus_signs_apart(std::string_view statement) {
  std::string apart;
  for (std::size_t place = 0; place < statement.size();) {
    const std::size_t end = std::max(behind_quoted(statement, place), place + 1);
    if (statement[place] == '-' && apart.ends_with('-')) apart += ' ';
    apart += statement.substr(place, end - place);
    place = end;
  }
  return apart;
}

SqlServer::SqlServer(Link link, const Options& options) : Server(std::move(link)) {
  link_.execute("set lock_timeout " + std::to_string(options.busy_timeout.count() * 1'000));
}

ado::Recordset SqlServer::execute(std::string_view statement) {
  if (statement.find("--") == std::string_view::npos) return link_.execute(statement);
  return link_.execute(with_minus_signs_apart(statement));
}

void SqlServer::begin() {
  link_.execute("set transaction isolation level serializable");
  link_.execute("begin transaction");
}

void SqlServer::commit() {
  link_.execute("commit transaction");
  link_.execute("set transaction isolation level read committed");
}

void SqlServer::roll_back() {
  link_.execute("rollback transaction");
  link_.execute("set transaction isolation level read committed");
}

ado::Recordset SqlServer::tables() {
  return link_.execute("select table_name as name from information_schema.tables where table_schema=schema_name()");
}

}  // namespace brunvik::odbc
