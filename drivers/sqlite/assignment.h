// How a value that is assigned becomes one that the column keeps.
#pragma once

#include <string_view>

#include "drivers/sqlite/catalogue.h"
#include "drivers/sqlite/dialects.h"

namespace brunvik::sqlite {

// The function that an expression goes through. That of whole numbers takes the lowest and the highest one, too.
std::string_view function_of(ColumnType type) noexcept;

// Whether a column takes the negative of whatever it takes, so that a literal can be looked at without its sign.
bool is_symmetric(ColumnType type) noexcept;

}  // namespace brunvik::sqlite
