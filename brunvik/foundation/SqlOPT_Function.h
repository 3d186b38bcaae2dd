// The unit factor, read on the session connection.
#pragma once

#include <string_view>

#include "brunvik/ado/money.h"

namespace brunvik {

inline namespace SqlOPT_Function {

// How many base units one of this unit is. 1 for an unknown unit, a null and a zero, so that the factor is never zero;
// but for an error, which shows its notice and gives 0.
Money GoodsUnitConverter(std::string_view Id, std::string_view Unit);

}  // namespace SqlOPT_Function

}  // namespace brunvik
