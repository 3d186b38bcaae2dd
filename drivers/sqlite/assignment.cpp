#include "drivers/sqlite/assignment.h"

#include "drivers/sqlite/functions.h"

namespace brunvik::sqlite {

bool is_symmetric(ColumnType type) noexcept { return type == ColumnType::money || type == ColumnType::single; }

std::string_view function_of(ColumnType type) noexcept {
  switch (type) {
    case ColumnType::key:
      return "rtrim";
    case ColumnType::money:
      return money_function;
    case ColumnType::single:
      return single_function;
    default:
      return within_function;
  }
}

}  // namespace brunvik::sqlite
