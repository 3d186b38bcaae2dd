// Where the members of a class stand in a set.
//
// A connection makes the names of a statement's columns once for all sets that it selects, so the places of the columns
// are kept with the names that they were found in. A goods record has 28 columns and is read for each row that moves:
// to look for them by name each time was a third of all that the library did in a receipt's audit.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/members.h"

namespace brunvik {

class MemberColumns {
 public:
  struct Field {
    const Member* member;
    std::size_t place;
  };

  // Calls `read(member, value)` for each member of the table that is read from a column, in their order; the values of
  // the caller's own set are its to take. Error 3021 where there is no record; 3265 at the first member whose column
  // the set doesn't have.
  template <class Set, class Read>
  static void for_each(const Members& table, Set& set, Read&& read) {
    const std::vector<Field>& fields = fields_of(table, set);
    const auto record = set.record();
    for (const auto& [member, place] : fields) {
      if (place == record.size()) ado::raise(ado::error::no_such_field);
      read(*member, record[place]);
    }
  }

  // The places of these members, in their order; error 3265 at the first whose column the set doesn't have.
  using Fields = std::shared_ptr<const std::vector<Field>>;
  static Fields fields_of(std::span<const Member* const> members, const ado::Recordset& set);

 private:
  // Good until the next call on this thread. A column that the set doesn't have stands behind its last one.
  static const std::vector<Field>& fields_of(const Members& table, const ado::Recordset& set);

  std::shared_ptr<const ado::ColumnNames> names_;
  const Members* table_ = nullptr;
  std::vector<Field> fields_;
};

}  // namespace brunvik
