// Goods as a database answers with them.
#pragma once

#include <string>
#include <vector>

#include "brunvik/ado/recordset.h"

namespace brunvik::test {

// The columns of a goods record in the order of reading.
std::vector<std::string> goods_columns();

// A goods record that says its id and its own unit, and nothing else.
ado::Recordset goods(const std::string& id, const std::string& unit);

// The answer to a question for a unit's factor.
ado::Recordset factor(const ado::Value& factor);

}  // namespace brunvik::test
