#include "drivers/odbc/result_columns.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/money.h"
#include "drivers/dialects/memory.h"
#include "drivers/odbc/failure.h"

namespace brunvik::odbc {

namespace {

// Of a text, in bytes. The rest of a longer one is asked for, so that its room isn't held for the next result.
constexpr SQLULEN longest_bound = 4'096;
constexpr std::size_t room_without_bound = 1'024;

// Its digits, the sign, the point and the end, and twice as many for another program's decimals.
constexpr std::size_t room_of_amount = 80;

bool is_of_a_table(const Statement& statement, SQLUSMALLINT number) {
  std::array<char, 256> name{};
  SQLSMALLINT length = 0;
  const SQLRETURN result = SQLColAttribute(statement.get(), number, SQL_DESC_BASE_COLUMN_NAME, name.data(),
                                           static_cast<SQLSMALLINT>(name.size()), &length, nullptr);
  return SQL_SUCCEEDED(result) && name.front() != '\0';
}

ado::Value whole(std::int64_t number) {
  if (number >= std::numeric_limits<Long>::min() && number <= std::numeric_limits<Long>::max()) {
    return {static_cast<Long>(number)};
  }
  return {static_cast<Double>(number)};
}

// A total of whole numbers has no places; more than an amount's are rounded.
ado::Value amount(std::string_view digits) {
  if (digits.find('.') != std::string_view::npos) return {ado::Money::parse(digits)};
  try {
    return whole(std::stoll(std::string(digits)));
  } catch (const std::out_of_range&) {
    return {std::stod(std::string(digits))};
  }
}

template <class Number>
Number number_in(const std::vector<char>& place) {
  Number number{};
  std::memcpy(&number, place.data(), sizeof number);
  return number;
}

// The whole of a text that is longer than a place. What is left behind its beginning comes at once.
std::string long_text(const Statement& statement, SQLUSMALLINT number, bool& is_null) {
  std::string text;
  std::array<char, room_without_bound> front;
  char* room = front.data();
  std::size_t size = front.size();
  for (;;) {
    SQLLEN length = 0;
    const SQLRETURN result = SQLGetData(statement.get(), number, SQL_C_CHAR, room, static_cast<SQLLEN>(size), &length);
    expect(result, statement);
    is_null = length == SQL_NULL_DATA;
    if (is_null || result == SQL_NO_DATA) return text;
    const std::size_t left = length == SQL_NO_TOTAL ? 2 * size : static_cast<std::size_t>(length);
    const bool goes_on = left >= size;
    const std::size_t got = goes_on ? size - 1 : left;
    if (room == front.data()) {
      text.assign(room, got);
    } else {
      text.resize(text.size() - size + got);
    }
    if (!goes_on) return text;
    // Behind what is there, with a place for the zero that ODBC puts at the end.
    size = left - got + 1;
    text.resize(text.size() + size);
    room = text.data() + text.size() - size;
  }
}

}  // namespace

ResultColumns::Column ResultColumns::described(const Statement& statement, SQLUSMALLINT number, std::string& name) {
  std::array<char, 512> told{};
  SQLSMALLINT length = 0;
  SQLSMALLINT type = 0;
  SQLULEN size = 0;
  SQLSMALLINT places = 0;
  SQLSMALLINT nullable = 0;
  expect(SQLDescribeCol(statement.get(), number, reinterpret_cast<SQLCHAR*>(told.data()),
                        static_cast<SQLSMALLINT>(told.size()), &length, &type, &size, &places, &nullable),
         statement);
  name = told.data();
  const auto column = [](Kind kind, SQLSMALLINT form, std::size_t room) {
    return Column{kind, form, std::vector<char>(room)};
  };
  switch (type) {
    case SQL_BIT:
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
      return column(Kind::whole, SQL_C_SBIGINT, sizeof(std::int64_t));
    case SQL_DECIMAL:
    case SQL_NUMERIC:
      return column(Kind::amount, SQL_C_CHAR, room_of_amount);
    case SQL_REAL:
      return column(Kind::single, SQL_C_DOUBLE, sizeof(double));
    case SQL_FLOAT:
    case SQL_DOUBLE:
      return column(is_of_a_table(statement, number) ? Kind::single : Kind::double_number, SQL_C_DOUBLE,
                    sizeof(double));
    default: {
      constexpr SQLULEN longest_character = 4;
      const bool has_no_bound = size == 0 || size > longest_bound / longest_character;
      Column text = column(Kind::text, SQL_C_CHAR, has_no_bound ? room_without_bound : size * longest_character + 1);
      text.has_no_bound = has_no_bound;
      return text;
    }
  }
}

ResultColumns::ResultColumns(const Statement& statement, const dialects::Selection& selection, bool gives_any_column) {
  SQLSMALLINT count = 0;
  expect(SQLNumResultCols(statement.get(), &count), statement);
  std::vector<std::string> names;
  bool are_bound = true;
  for (SQLSMALLINT place = 0; place < count; ++place) {
    std::string& name = names.emplace_back();
    Column& column = columns_.emplace_back(described(statement, static_cast<SQLUSMALLINT>(place + 1), name));
    are_bound = are_bound && (gives_any_column || !column.has_no_bound);
    column.is_bound = are_bound;
    const auto* const written = selection.column(static_cast<std::size_t>(place), static_cast<std::size_t>(count));
    if (written && !written->name.empty()) name = written->name;
  }
  if (count > 0) names_ = std::make_shared<const ado::ColumnNames>(std::move(names));
}

void ResultColumns::bind(const Statement& statement) {
  if (is_bound_) return;
  SQLUSMALLINT number = 0;
  for (Column& column : columns_) {
    ++number;
    if (!column.is_bound) continue;
    expect(SQLBindCol(statement.get(), number, column.form, column.place.data(),
                      static_cast<SQLLEN>(column.place.size()), &column.length),
           statement);
  }
  is_bound_ = true;
}

ado::Value ResultColumns::value(const Statement& statement, std::size_t place) {
  Column& column = columns_[place];
  const auto number = static_cast<SQLUSMALLINT>(place + 1);
  const bool is_longer = column.length == SQL_NO_TOTAL || column.length >= static_cast<SQLLEN>(column.place.size());
  if (column.has_no_bound && (!column.is_bound || is_longer)) {
    bool is_null = false;
    const std::string text = long_text(statement, number, is_null);
    if (is_null) return {ado::Null{}};
    return {std::string_view(text)};
  }
  if (!column.is_bound) {
    expect(SQLGetData(statement.get(), number, column.form, column.place.data(),
                      static_cast<SQLLEN>(column.place.size()), &column.length),
           statement);
  }
  if (column.length == SQL_NULL_DATA) return {ado::Null{}};
  const std::string_view text(column.place.data(), static_cast<std::size_t>(column.length));
  switch (column.kind) {
    case Kind::whole:
      return whole(number_in<std::int64_t>(column.place));
    case Kind::single:
      return {static_cast<Single>(number_in<double>(column.place))};
    case Kind::double_number:
      return {number_in<double>(column.place)};
    case Kind::amount:
      return amount(text);
    default:
      return {text};
  }
}

ado::Recordset ResultColumns::fetch(const Statement& statement) {
  // However the reading ends, the statement can be carried out again.
  const dialects::AtEnd close([&statement]() noexcept { SQLFreeStmt(statement.get(), SQL_CLOSE); });
  bind(statement);
  std::vector<ado::Value> cells;
  for (;;) {
    const SQLRETURN result = SQLFetch(statement.get());
    if (result == SQL_NO_DATA) break;
    expect(result, statement);
    if (cells.capacity() - cells.size() < columns_.size()) cells.reserve(2 * cells.size() + columns_.size());
    for (std::size_t place = 0; place < columns_.size(); ++place) cells.push_back(value(statement, place));
  }
  return {names_, std::move(cells)};
}

}  // namespace brunvik::odbc
