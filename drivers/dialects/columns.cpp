#include "drivers/dialects/columns.h"

#include <algorithm>
#include <limits>

#include "brunvik/ado/names.h"
#include "brunvik/ado/types.h"

namespace brunvik::dialects {

std::optional<WholeRange> whole_range(ColumnType type) noexcept {
  const auto range_of = [](auto number) {
    using Limits = std::numeric_limits<decltype(number)>;
    return WholeRange{Limits::min(), Limits::max()};
  };
  switch (type) {
    case ColumnType::byte_number:
      return range_of(Byte{});
    case ColumnType::integer_number:
      return range_of(Integer{});
    case ColumnType::long_number:
      return range_of(Long{});
    default:
      return {};
  }
}

std::optional<ColumnType> type_of_column(const TableDescription& table, std::string_view name) noexcept {
  const auto column = std::find_if(table.begin(), table.end(), [name](const ColumnDescription& description) {
    return ado::same_name(description.name, name);
  });
  if (column == table.end()) return {};
  return column->type;
}

const TableDescription& Catalogue::table(std::string_view name) {
  std::string key(name);
  std::transform(key.begin(), key.end(), key.begin(), ado::lower);
  const auto known = tables_.find(key);
  if (known != tables_.end()) return known->second;

  TableDescription columns = read(name);
  static const TableDescription none;
  // Names that are no tables come from texts, and there is no end to them.
  if (columns.empty()) return none;
  return tables_.emplace(std::move(key), std::move(columns)).first->second;
}

}  // namespace brunvik::dialects
