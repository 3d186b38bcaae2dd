// Reads the members of a table out of a set's current record.
//
// A connection makes the names of a statement's columns once for all sets that it selects, so for each table the places
// of the columns are kept with the names that they were found in. A goods record has 28 columns and is read for each
// row that moves: to look for them by name each time was a third of all that the library did in a receipt's audit.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/members.h"

namespace brunvik {

class MemberColumns {
 public:
  // Calls `read(member, value)` for each member of the table that is read from a column, in their order. Error 3021
  // where there is no record; 3265 at the first member whose column the set doesn't have.
  template <class Read>
  static void for_each(const Members& table, const ado::Recordset& set, Read&& read) {
    const std::vector<std::size_t>& places = places_of(table, set);
    const std::span<const ado::Value> record = set.record();
    auto place = places.begin();
    for (const Member& member : table) {
      if (*place < record.size()) {
        read(member, record[*place]);
      } else if (*place == unknown) {
        read(member, set.value(member.read_column()));
      }
      ++place;
    }
  }

 private:
  static constexpr std::size_t none = ~std::size_t{0};  // of a member that no column fills
  static constexpr std::size_t unknown = none - 1;

  // Good until the next call on this thread.
  static const std::vector<std::size_t>& places_of(const Members& table, const ado::Recordset& set);

  std::shared_ptr<const ado::ColumnNames> names_;
  std::vector<std::size_t> places_;
};

}  // namespace brunvik
