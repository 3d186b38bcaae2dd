#include "brunvik/foundation/member_columns.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace brunvik {

const std::vector<MemberColumns::Field>& MemberColumns::fields_of(const Members& table, const ado::Recordset& set) {
  thread_local std::vector<MemberColumns> known;
  if (known.size() <= table.number()) known.resize(table.number() + 1);
  MemberColumns& columns = known[table.number()];
  if (columns.table_ == &table && columns.names_ == set.column_names()) return columns.fields_;
  columns.table_ = &table;
  columns.names_ = set.column_names();
  columns.fields_.clear();
  for (const Member& member : table) {
    const std::string_view name = member.read_column();
    if (!name.empty()) columns.fields_.push_back({&member, columns.names_->find(name)});
  }
  return columns.fields_;
}

MemberColumns::Fields MemberColumns::fields_of(std::span<const Member* const> members, const ado::Recordset& set) {
  // The rows of a statement are read into the same members each time, so one list is kept for the names of each. A
  // reader shares it, since what finishes a row may read other rows.
  struct Known {
    std::shared_ptr<const ado::ColumnNames> names;
    Fields fields;
  };
  constexpr std::size_t kept = 64;
  thread_local std::array<Known, kept> all_known;
  Known& known = all_known[std::hash<const void*>()(set.column_names().get()) / alignof(std::max_align_t) % kept];
  if (known.names != set.column_names() || !known.fields ||
      !std::ranges::equal(*known.fields, members, {}, &Field::member)) {
    std::vector<Field> fields;
    for (const Member* member : members) {
      fields.push_back({member, static_cast<std::size_t>(set.column(member->read_column()))});
    }
    known = {set.column_names(), std::make_shared<const std::vector<Field>>(std::move(fields))};
  }
  return known.fields;
}

}  // namespace brunvik
