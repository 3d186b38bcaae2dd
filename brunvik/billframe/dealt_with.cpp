#include "brunvik/billframe/dealt_with.h"

#include "brunvik/ado/or_zero.h"

namespace brunvik {

bool has_row_left(ado::Recordset rows, std::string_view quantity, std::string_view dealt_with) {
  for (; !rows.at_end(); rows.MoveNext()) {
    if (ado::single_or_zero(rows.value(quantity)) > ado::single_or_zero(rows.value(dealt_with))) return true;
  }
  return false;
}

bool has_row_dealt_with(ado::Recordset rows, std::string_view dealt_with) {
  for (; !rows.at_end(); rows.MoveNext()) {
    if (ado::single_or_zero(rows.value(dealt_with)) > 0) return true;
  }
  return false;
}

void point_to_first(const ado::Recordset& link,
                    std::initializer_list<std::pair<std::string_view, ado::Long*>> numbers) {
  for (const auto& [column, number] : numbers) {
    if (link.value(column).is_null()) *number = 1;
  }
}

}  // namespace brunvik
