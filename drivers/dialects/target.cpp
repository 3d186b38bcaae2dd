#include "drivers/dialects/target.h"

namespace brunvik::dialects {

Target target_of(ColumnType type) noexcept {
  switch (type) {
    case ColumnType::key:
      return Target::key;
    case ColumnType::money:
      return Target::money;
    case ColumnType::single:
      return Target::single;
    case ColumnType::byte_number:
      return Target::byte_number;
    case ColumnType::integer_number:
      return Target::integer_number;
    case ColumnType::long_number:
      return Target::long_number;
    default:
      return Target::plain;
  }
}

std::optional<WholeRange> whole_range(Target target) noexcept {
  switch (target) {
    case Target::byte_number:
      return whole_range(ColumnType::byte_number);
    case Target::integer_number:
      return whole_range(ColumnType::integer_number);
    case Target::long_number:
      return whole_range(ColumnType::long_number);
    default:
      return {};
  }
}

}  // namespace brunvik::dialects
