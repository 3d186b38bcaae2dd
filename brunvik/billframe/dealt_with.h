// What the documents share whose rows are dealt with piece by piece, through links to the rows of other bills.
#pragma once

#include <initializer_list>
#include <string_view>
#include <utility>

#include "brunvik/ado/recordset.h"
#include "brunvik/ado/types.h"

namespace brunvik {

// Whether a row of the set has more of the one quantity than of the other. A null counts as none.
bool has_row_left(ado::Recordset rows, std::string_view quantity, std::string_view dealt_with);

// Whether anything has been dealt with of a row of the set.
bool has_row_dealt_with(ado::Recordset rows, std::string_view dealt_with);

// Each number becomes 1 whose column is null in the record: a link that names no kind or no row points to the first.
void point_to_first(const ado::Recordset& link, std::initializer_list<std::pair<std::string_view, ado::Long*>> numbers);

}  // namespace brunvik
