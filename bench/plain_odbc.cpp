#include "bench/plain_odbc.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "drivers/odbc/failure.h"

namespace brunvik::bench {

namespace {

using odbc::expect;

// The longest text that a document binds, and the longest column that it reads, in bytes.
constexpr std::size_t longest_parameter = 1'024;
constexpr std::size_t longest_column = 4'096;

constexpr const char* settings =
    "set session sql_mode='STRICT_ALL_TABLES,NO_BACKSLASH_ESCAPES,ANSI_QUOTES,PIPES_AS_CONCAT,SIMULTANEOUS_ASSIGNMENT,"
    "NO_UNSIGNED_SUBTRACTION',autocommit=1,collation_connection=utf8mb4_uca1400_as_ci";

SQLPOINTER as_attribute(std::uintptr_t number) { return reinterpret_cast<SQLPOINTER>(number); }

SQLCHAR* as_characters(std::string_view text) { return reinterpret_cast<SQLCHAR*>(const_cast<char*>(text.data())); }

odbc::Environment made_environment() {
  odbc::Environment environment(SQL_NULL_HANDLE);
  SQLSetEnvAttr(environment.get(), SQL_ATTR_ODBC_VERSION, as_attribute(SQL_OV_ODBC3), 0);
  return environment;
}

// Statements of one text whose values are of other types are prepared apart, so that none is bound again.
std::string with_types(const BoundText& text) {
  std::string name = text.words;
  for (const BoundValue& value : text.values) name += static_cast<char>('0' + value.index());
  return name;
}

PlainOdbc::Cell cell_for(SQLSMALLINT type, SQLULEN size) {
  switch (type) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
      return {SQL_C_SBIGINT, std::vector<char>(sizeof(std::int64_t))};
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
      return {SQL_C_DOUBLE, std::vector<char>(sizeof(double))};
    default:
      return {SQL_C_CHAR,
              std::vector<char>(size == 0 ? longest_column : std::min<SQLULEN>(4 * size + 1, longest_column))};
  }
}

template <class Number>
void put(PlainOdbc::Cell& cell, Number number) {
  std::memcpy(cell.place.data(), &number, sizeof number);
}

void put(PlainOdbc::Cell& cell, const std::string& text) {
  if (text.size() > cell.place.size()) throw std::runtime_error("a text is longer than its place: " + text);
  std::memcpy(cell.place.data(), text.data(), text.size());
  cell.length = static_cast<SQLLEN>(text.size());
}

template <class Number>
Number number_in(const PlainOdbc::Cell& cell) {
  Number number{};
  std::memcpy(&number, cell.place.data(), sizeof number);
  return number;
}

}  // namespace

PlainOdbc::PlainOdbc(const std::string& connection_string)
    : environment_(made_environment()), database_(environment_.get()) {
  const std::string complete = connection_string + ";OPTION=2;CHARSET=utf8mb4";
  expect(SQLDriverConnect(database_.get(), nullptr, as_characters(complete), static_cast<SQLSMALLINT>(complete.size()),
                          nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
         database_);
  execute(settings);
}

PlainOdbc::~PlainOdbc() {
  statements_.clear();
  SQLDisconnect(database_.get());
}

void PlainOdbc::execute(const std::string& text) {
  const odbc::Statement statement(database_.get());
  expect(SQLExecDirect(statement.get(), as_characters(text), static_cast<SQLINTEGER>(text.size())), statement);
}

PlainOdbc::Use PlainOdbc::prepare(std::string_view text) {
  BoundText bound = with_bound_values(text);
  Prepared& prepared = statements_[with_types(bound)];
  if (!prepared.handle.get()) {
    prepared.handle = odbc::Statement(database_.get());
    expect(SQLPrepare(prepared.handle.get(), as_characters(bound.words), static_cast<SQLINTEGER>(bound.words.size())),
           prepared.handle);
    bind_parameters(prepared, bound.values);
    bind_columns(prepared);
  }
  return {&prepared, std::move(bound.values)};
}

void PlainOdbc::bind_parameters(Prepared& prepared, const std::vector<BoundValue>& values) const {
  SQLUSMALLINT number = 0;
  for (const BoundValue& value : values) {
    constexpr std::array<SQLSMALLINT, 3> forms{SQL_C_SBIGINT, SQL_C_DOUBLE, SQL_C_CHAR};
    constexpr std::array<SQLSMALLINT, 3> types{SQL_BIGINT, SQL_DOUBLE, SQL_VARCHAR};
    const bool is_text = forms[value.index()] == SQL_C_CHAR;
    Cell& cell = prepared.parameters.emplace_back(
        Cell{forms[value.index()], std::vector<char>(is_text ? longest_parameter : sizeof(double))});
    expect(SQLBindParameter(prepared.handle.get(), ++number, SQL_PARAM_INPUT, cell.form, types[value.index()],
                            is_text ? longest_parameter : 0, 0, cell.place.data(),
                            static_cast<SQLLEN>(cell.place.size()), &cell.length),
           prepared.handle);
  }
}

void PlainOdbc::bind_columns(Prepared& prepared) const {
  SQLSMALLINT count = 0;
  expect(SQLNumResultCols(prepared.handle.get(), &count), prepared.handle);
  for (SQLUSMALLINT number = 1; number <= static_cast<SQLUSMALLINT>(count); ++number) {
    std::array<SQLCHAR, 256> name{};
    SQLSMALLINT length = 0, type = 0, places = 0, nullable = 0;
    SQLULEN size = 0;
    expect(SQLDescribeCol(prepared.handle.get(), number, name.data(), static_cast<SQLSMALLINT>(name.size()), &length,
                          &type, &size, &places, &nullable),
           prepared.handle);
    Cell& cell = prepared.columns.emplace_back(cell_for(type, size));
    expect(SQLBindCol(prepared.handle.get(), number, cell.form, cell.place.data(),
                      static_cast<SQLLEN>(cell.place.size()), &cell.length),
           prepared.handle);
  }
}

void PlainOdbc::execute(const Use& use) {
  Prepared& prepared = *use.statement;
  for (std::size_t place = 0; place < use.values.size(); ++place) {
    std::visit([&cell = prepared.parameters[place]](const auto& value) { put(cell, value); }, use.values[place]);
  }
  expect(SQLExecute(prepared.handle.get()), prepared.handle);
  if (prepared.columns.empty()) return;
  for (SQLRETURN result = SQLFetch(prepared.handle.get()); result != SQL_NO_DATA;
       result = SQLFetch(prepared.handle.get())) {
    expect(result, prepared.handle);
    for (const Cell& cell : prepared.columns) {
      if (cell.length == SQL_NULL_DATA) continue;
      if (cell.form == SQL_C_SBIGINT) number_ = static_cast<double>(number_in<std::int64_t>(cell));
      if (cell.form == SQL_C_DOUBLE) number_ = number_in<double>(cell);
      if (cell.form == SQL_C_CHAR) text_.assign(cell.place.data());
    }
  }
  SQLFreeStmt(prepared.handle.get(), SQL_CLOSE);
}

}  // namespace brunvik::bench
