#include "brunvik/foundation/member_columns.h"

namespace brunvik {

const std::vector<std::size_t>& MemberColumns::places_of(const Members& table, const ado::Recordset& set) {
  thread_local std::vector<MemberColumns> known;
  if (known.size() <= table.number()) known.resize(table.number() + 1);
  MemberColumns& columns = known[table.number()];
  if (columns.names_ == set.column_names()) return columns.places_;
  columns.names_ = set.column_names();
  columns.places_.clear();
  for (const Member& member : table) {
    const std::string_view name = member.read_column();
    columns.places_.push_back(name.empty()    ? none
                              : set.has(name) ? static_cast<std::size_t>(set.column(name))
                                              : unknown);
  }
  return columns.places_;
}

}  // namespace brunvik
