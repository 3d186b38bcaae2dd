// Numbers as the database tells them.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/recordset.h"

namespace brunvik {

// The next free number of today in a table: the prefix, the day, the running number. `column` keeps the numbers. One
// that can't be worked out shows its own notice and ends in 00000.
std::string proposed_number(std::string_view table, std::string_view column, std::string_view prefix);

// The only value of an aggregate as text, under the name that its statement gives it; null reads as the empty text, and
// so does a set without a record.
std::string aggregated_number(const ado::Recordset& set, std::string_view name);

}  // namespace brunvik
