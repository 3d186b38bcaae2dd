// How a value that is assigned becomes one that the column keeps.
#pragma once

#include <optional>
#include <string_view>

#include "drivers/sqlite/catalogue.h"
#include "drivers/sqlite/rewriting.h"

namespace brunvik::sqlite {

// What a literal becomes when it is bound.
Target target_of(ColumnType type) noexcept;

// The function that an expression goes through. That of whole numbers takes the lowest and the highest one, too.
std::string_view function_of(ColumnType type) noexcept;

// Whether a column takes the negative of whatever it takes, so that a literal can be looked at without its sign.
bool is_symmetric(ColumnType type) noexcept;

// The whole numbers that the column of a target holds; none for a column that isn't bounded so.
std::optional<WholeRange> whole_range(Target target) noexcept;

}  // namespace brunvik::sqlite
