// Numbers that may be null, which counts as none.
#pragma once

#include "brunvik/ado/value.h"

namespace brunvik::ado {

inline Money money_or_zero(const Value& field) { return field.is_null() ? Money() : field.as_money(); }
inline Single single_or_zero(const Value& field) { return field.is_null() ? 0 : field.as_single(); }

}  // namespace brunvik::ado
