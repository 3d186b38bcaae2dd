#include <limits>

#include "drivers/sqlite/shape.h"

namespace brunvik::sqlite {

namespace {

std::string text_of(sqlite3_stmt* statement, int column) {
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  if (!text) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))};
}

ado::Value whole_number(std::int64_t value) {
  if (value >= std::numeric_limits<Long>::min() && value <= std::numeric_limits<Long>::max()) {
    return static_cast<Long>(value);
  }
  return static_cast<Double>(value);
}

// By what the engine has in the row, as a column of its tables can hold anything.
ado::Value value_of(sqlite3_stmt* statement, int column, ColumnType type) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER: {
      const std::int64_t value = sqlite3_column_int64(statement, column);
      if (type == ColumnType::money) return ado::Money::from_whole(value);
      if (type == ColumnType::single) return static_cast<Single>(value);
      return whole_number(value);
    }
    case SQLITE_FLOAT: {
      const double value = sqlite3_column_double(statement, column);
      if (type == ColumnType::money) return ado::Money::from_double(value);
      if (type == ColumnType::single) return static_cast<Single>(value);
      return value;
    }
    case SQLITE_NULL:
      return ado::Null{};
    default:
      return text_of(statement, column);
  }
}

}  // namespace

ResultColumns::ResultColumns(sqlite3_stmt* statement, const Rewritten& rewritten) {
  const auto count = static_cast<std::size_t>(sqlite3_column_count(statement));
  for (std::size_t place = 0; place < count; ++place) {
    const char* const name = sqlite3_column_name(statement, static_cast<int>(place));
    const char* const declared = sqlite3_column_decltype(statement, static_cast<int>(place));
    const std::size_t from_last = count - 1 - place;
    const SelectedColumn* selected = nullptr;
    if (from_last < rewritten.columns_from_last.size()) selected = &rewritten.columns_from_last[from_last];
    if (place < rewritten.columns_from_first.size()) selected = &rewritten.columns_from_first[place];
    names_.emplace_back(selected && !selected->name.empty() ? selected->name.c_str() : name ? name : "");
    types_.push_back(declared                          ? type_of_declaration(declared)
                     : selected && selected->is_amount ? ColumnType::money
                                                       : ColumnType::other);
  }
}

void ResultColumns::fetch(sqlite3_stmt* statement, std::vector<ado::Value>& cells) const {
  for (std::size_t place = 0; place < types_.size(); ++place) {
    cells.push_back(value_of(statement, static_cast<int>(place), types_[place]));
  }
}

}  // namespace brunvik::sqlite
