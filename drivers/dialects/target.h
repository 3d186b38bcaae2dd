// What a value in a statement becomes for the column that it goes into.
#pragma once

#include <optional>

#include "drivers/dialects/columns.h"

namespace brunvik::dialects {

enum class Target : unsigned char { plain, key, money, single, byte_number, integer_number, long_number };

// What a column of a type makes of a value; one that keeps the value as it stands is plain.
Target target_of(ColumnType type) noexcept;

// Whether the column of a target keeps amounts or quantities.
constexpr bool has_decimals(Target target) noexcept { return target == Target::money || target == Target::single; }

// The whole numbers that the column of a target holds; none for a column that isn't bounded so.
std::optional<WholeRange> whole_range(Target target) noexcept;

}  // namespace brunvik::dialects
