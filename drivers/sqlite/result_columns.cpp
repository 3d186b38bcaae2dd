#include <limits>

#include "drivers/dialects/rounding.h"
#include "drivers/sqlite/shape.h"

namespace brunvik::sqlite {

namespace {

ado::Money money_of(double value) {
  const Amount amount = amount_of(value);
  // Only an amount that another program wrote is larger than the driver's own.
  return amount ? ado::Money::from_ten_thousandths(*amount) : ado::Money::from_double(value);
}

void add_whole(std::vector<ado::Value>& cells, std::int64_t value) {
  if (value >= std::numeric_limits<Long>::min() && value <= std::numeric_limits<Long>::max()) {
    cells.emplace_back(static_cast<Long>(value));
  } else {
    cells.emplace_back(static_cast<Double>(value));
  }
}

// By what the engine has in the row, as a column of its tables can hold anything. The value is read directly, which is
// safe as the connection is used by one thread, and saves three in four of the calls into the engine.
void add_value(std::vector<ado::Value>& cells, sqlite3_value* field, ColumnType type) {
  switch (sqlite3_value_type(field)) {
    case SQLITE_INTEGER: {
      const std::int64_t value = sqlite3_value_int64(field);
      if (type == ColumnType::money) {
        cells.emplace_back(ado::Money::from_whole(value));
      } else if (type == ColumnType::single) {
        cells.emplace_back(static_cast<Single>(value));
      } else {
        add_whole(cells, value);
      }
      break;
    }
    case SQLITE_FLOAT: {
      const double value = sqlite3_value_double(field);
      if (type == ColumnType::money) {
        cells.emplace_back(money_of(value));
      } else if (type == ColumnType::single) {
        cells.emplace_back(static_cast<Single>(value));
      } else {
        cells.emplace_back(value);
      }
      break;
    }
    case SQLITE_NULL:
      cells.emplace_back(ado::Null{});
      break;
    default: {
      const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(field));
      cells.emplace_back(std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(field))));
    }
  }
}

}  // namespace

ResultColumns::ResultColumns(sqlite3_stmt* statement, const Rewritten& rewritten) {
  const auto count = static_cast<std::size_t>(sqlite3_column_count(statement));
  std::vector<std::string> names;
  for (std::size_t place = 0; place < count; ++place) {
    const char* const name = sqlite3_column_name(statement, static_cast<int>(place));
    const char* const declared = sqlite3_column_decltype(statement, static_cast<int>(place));
    const SelectedColumn* const selected = rewritten.selection.column(place, count);
    names.emplace_back(selected && !selected->name.empty() ? selected->name.c_str() : name ? name : "");
    types_.push_back(declared                          ? type_of_declaration(declared)
                     : selected && selected->is_amount ? ColumnType::money
                                                       : ColumnType::other);
  }
  names_ = std::make_shared<const ado::ColumnNames>(std::move(names));
}

void ResultColumns::fetch(sqlite3_stmt* statement, std::vector<ado::Value>& cells) const {
  if (cells.capacity() - cells.size() < types_.size()) cells.reserve(2 * cells.size() + types_.size());
  for (std::size_t place = 0; place < types_.size(); ++place) {
    add_value(cells, sqlite3_column_value(statement, static_cast<int>(place)), types_[place]);
  }
}

}  // namespace brunvik::sqlite
