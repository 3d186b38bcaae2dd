// Reads the rows of a bill out of a set.
#pragma once

#include <vector>

#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/member_columns.h"
#include "brunvik/foundation/members.h"

namespace brunvik {

using RowMembers = std::vector<const Member*>;

// Empties the collection, and adds a row for each record with these members filled, in the order of the set. `finish`
// gets each row and the set at its record, for what a document reads beside them: the texts of the members stand in the
// row alone then. A null reads as nothing.
template <class Row, class Finish>
void read_rows(RowCollection& rows, ado::Recordset set, const RowMembers& members, Finish&& finish) {
  rows.clear();
  if (set.at_end()) return;
  const auto fields = MemberColumns::fields_of(members, set);
  rows.reserve(set.record_count());
  for (; !set.at_end(); set.MoveNext()) {
    auto& row = static_cast<Row&>(rows.add());
    try {
      fields->take(row, set.record());
      finish(row, set);
    } catch (...) {
      // A row counts when all of it is read: a voucher must not settle the row whose bill it could not look at.
      rows.remove(rows.Count());
      throw;
    }
  }
}

}  // namespace brunvik
