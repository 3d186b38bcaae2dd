#include "brunvik/foundation/member_columns.h"

#include <algorithm>
#include <array>
#include <functional>
#include <type_traits>
#include <utility>

#include "brunvik/ado/errors.h"

namespace brunvik {

namespace {

// Each takes a value of the very type that the property has; false for any other.
template <class Stored>
bool take_own(Stored& property, Value& value) noexcept {
  const auto* const own = value.get_if<Stored>();
  if (own) property = *own;
  return own;
}

bool take_own(std::string& property, Value& value) noexcept {
  auto* const own = value.get_if<std::string>();
  if (!own) return false;
  // Half of a row's texts are empty.
  if (own->empty()) {
    property.clear();
  } else {
    property = std::move(*own);
  }
  return true;
}

// Some tables number their rows in 32 bits.
bool take_own(Integer& property, Value& value) noexcept {
  if (take_own<Integer>(property, value)) return true;
  const auto* const number = value.get_if<Long>();
  if (!number || !std::in_range<Integer>(*number)) return false;
  property = static_cast<Integer>(*number);
  return true;
}

bool take_own(Value&, Value&) noexcept { return false; }
bool take_own(ado::ConnectionReference&, Value&) noexcept { return false; }

}  // namespace

void MemberColumns::Fields::add(const Member& member, std::size_t column, std::size_t column_count) {
  if (column == column_count) {
    runs_.emplace_back(NoColumn());
    return;
  }
  std::visit(
      [&](auto pointer) {
        if constexpr (std::is_member_object_pointer_v<decltype(pointer)>) {
          using OwnRun = Run<std::remove_reference_t<decltype(std::declval<PublicObject&>().*pointer)>>;
          if (runs_.empty() || !std::holds_alternative<OwnRun>(runs_.back())) runs_.emplace_back(OwnRun());
          std::get<OwnRun>(runs_.back()).push_back({pointer, column, &member});
        }
      },
      member.place().pointer());
}

void MemberColumns::Fields::take(PublicObject& object, std::span<Value> record, Null null) const {
  for (const AnyRun& any_run : runs_) {
    std::visit(
        [&](const auto& run) {
          if constexpr (std::is_same_v<decltype(run), const NoColumn&>) {
            ado::raise(ado::error::no_such_field);
          } else {
            for (const auto& field : run) {
              Value& value = record[field.column];
              if (take_own(object.*field.property, value)) continue;
              if (value.is_null() && null == Null::leaves_numbers && field.member->type() != Type::Text) continue;
              field.member->read(object, value);
            }
          }
        },
        any_run);
  }
}

void MemberColumns::take(const Members& table, PublicObject& object, ado::Recordset& set, Null null) {
  thread_local std::vector<MemberColumns> known;
  if (known.size() <= table.number()) known.resize(table.number() + 1);
  MemberColumns& columns = known[table.number()];
  if (columns.table_ != &table || columns.names_ != set.column_names()) {
    const auto& names = set.column_names();
    Fields fields;
    for (const Member& member : table) {
      const std::string_view name = member.read_column();
      if (!name.empty()) fields.add(member, names->find(name), names->list().size());
    }
    columns.names_ = names;
    columns.table_ = &table;
    columns.fields_ = std::move(fields);
  }
  columns.fields_.take(object, set.record(), null);
}

std::shared_ptr<const MemberColumns::Fields> MemberColumns::fields_of(std::span<const Member* const> members,
                                                                      const ado::Recordset& set) {
  // The rows of a statement are read into the same members each time, so one list is kept for the names of each. A
  // reader shares it, since what finishes a row may read other rows.
  struct Known {
    std::shared_ptr<const ado::ColumnNames> names;
    std::vector<const Member*> members;
    std::shared_ptr<const Fields> fields;
  };
  constexpr std::size_t kept = 64;
  thread_local std::array<Known, kept> all_known;
  Known& known = all_known[std::hash<const void*>()(set.column_names().get()) / alignof(std::max_align_t) % kept];
  if (known.names != set.column_names() || !known.fields || !std::ranges::equal(known.members, members)) {
    Fields fields;
    for (const Member* member : members) {
      fields.add(*member, static_cast<std::size_t>(set.column(member->read_column())), set.names().size());
    }
    known = {set.column_names(), {members.begin(), members.end()}, std::make_shared<const Fields>(std::move(fields))};
  }
  return known.fields;
}

}  // namespace brunvik
