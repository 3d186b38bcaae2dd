#include "brunvik/foundation/members.h"

#include <atomic>
#include <utility>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/foundation/last_failure.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

namespace {

std::size_t next_number() noexcept {
  static std::atomic<std::size_t> tables{0};
  return tables++;
}

}  // namespace

std::string_view name_of(Type type) noexcept {
  switch (type) {
    case Type::Nothing:
      return "Nothing";
    case Type::Text:
      return "String";
    case Type::Byte:
      return "Byte";
    case Type::Integer:
      return "Integer";
    case Type::Long:
      return "Long";
    case Type::Single:
      return "Single";
    case Type::Double:
      return "Double";
    case Type::Money:
      return "Money";
    case Type::Boolean:
      return "Boolean";
    case Type::Date:
      return "Date";
    case Type::Variant:
      return "Variant";
    case Type::Connection:
      return "Connection";
    case Type::Object:
      return "Object";
    case Type::Rows:
      return "Collection";
  }
  return {};
}

std::string_view name_of(MemberKind kind) noexcept {
  switch (kind) {
    case MemberKind::property:
      return "property";
    case MemberKind::read_only_property:
      return "read-only property";
    case MemberKind::collection:
      return "collection";
    case MemberKind::verb:
      return "verb";
  }
  return {};
}

Member Member::stored(std::string_view name, std::string_view column, Type type, PropertyPlace place) {
  Member member;
  member.name_ = name;
  member.type_ = type;
  member.written_column_ = member.read_column_ = column;
  member.place_ = place;
  return member;
}

Member Member::collection(std::string_view name, Rows rows) {
  Member member;
  member.name_ = name;
  member.kind_ = MemberKind::collection;
  member.type_ = Type::Rows;
  member.rows_ = rows;
  return member;
}

Member Member::computed(std::string_view name, std::string_view column, Type type, Compute compute) {
  Member member;
  member.name_ = name;
  member.kind_ = MemberKind::read_only_property;
  member.type_ = type;
  member.written_column_ = column;
  member.compute_ = compute;
  return member;
}

Member Member::callable(std::string_view name, Type result, std::vector<Parameter> parameters, Call call) {
  Member member;
  member.name_ = name;
  member.kind_ = MemberKind::verb;
  member.type_ = result;
  member.parameters_ = std::move(parameters);
  member.call_ = call;
  return member;
}

Member Member::required() && {
  required_ = true;
  return std::move(*this);
}

Member Member::read_from(std::string_view column) && {
  read_column_ = column;
  written_column_ = {};
  return std::move(*this);
}

Member Member::not_read() && {
  read_column_ = {};
  return std::move(*this);
}

Member Member::read_only() && {
  kind_ = MemberKind::read_only_property;
  return std::move(*this);
}

void Member::write_to(StatementWriter& statement, const PublicObject& object) const {
  if (!compute_) return place_.write_to(statement, object);
  const Value value = compute_(object);
  SqlValue(value).write_to(statement);
}

void Member::read(PublicObject& object, const Value& field) const {
  if (field.is_null() && required_) ado::raise(ado::error::invalid_use_of_null);
  place_.read(object, field);
}

Value Member::get(const PublicObject& object) const {
  if (compute_) return compute_(object);
  // The collection stays the bill's: the reference lives no longer than the bill.
  if (rows_) return ado::ObjectReference(ado::ObjectReference(), &rows_(const_cast<PublicObject&>(object)));
  if (place_.is_nowhere()) ado::raise(ado::error::no_such_member);
  return place_.get(object);
}

void Member::put(PublicObject& object, const Value& value) const {
  if (rows_) {
    const auto* reference = value.get_if<ado::ObjectReference>();
    const auto* rows = reference ? dynamic_cast<const RowCollection*>(reference->get()) : nullptr;
    if (!rows) ado::raise(ado::error::type_mismatch);
    return rows_(object).assign(*rows);
  }
  if (place_.is_nowhere() || kind_ == MemberKind::read_only_property) ado::raise(ado::error::no_such_member);
  place_.put(object, value);
}

RowCollection& Member::rows(PublicObject& object) const {
  if (!rows_) ado::raise(ado::error::no_such_member);
  return rows_(object);
}

Value Member::call(PublicObject& object, std::vector<Value>& arguments) const {
  if (!call_) ado::raise(ado::error::no_such_member);
  const detail::WithinCall this_call;
  complete_arguments(parameters_, arguments);
  return call_(object, arguments);
}

void complete_arguments(const std::vector<Parameter>& parameters, std::vector<Value>& arguments) {
  if (arguments.size() > parameters.size()) ado::raise(ado::error::wrong_argument_count);
  while (arguments.size() < parameters.size()) {
    const Parameter& parameter = parameters[arguments.size()];
    if (!parameter.may_be_left_out()) ado::raise(ado::error::wrong_argument_count);
    arguments.push_back(parameter.default_value);
  }
}

Members::Members(std::initializer_list<Entry> entries) : members_(group(entries)), number_(next_number()) {}

MemberGroup Members::group(std::initializer_list<Entry> entries) {
  MemberGroup members;
  for (const Entry& entry : entries) members.insert(members.end(), entry.members_.begin(), entry.members_.end());
  return members;
}

const Member& Members::named(std::string_view name) const {
  for (const Member& member : members_) {
    if (ado::same_name(member.name(), name)) return member;
  }
  throw ado::RuntimeError(ado::error::no_such_member,
                          std::string(ado::error_text(ado::error::no_such_member)).append(": ").append(name));
}

const Member& Members::written_to(std::string_view column) const {
  for (const Member& member : members_) {
    if (!column.empty() && ado::same_name(member.written_column(), column)) return member;
  }
  throw ado::RuntimeError(ado::error::no_such_field, "no property is written to column " + std::string(column));
}

const Member& Members::kept_at(const PublicObject& object, const void* address) const {
  for (const Member& member : members_) {
    if (member.place().is_at(object, address)) return member;
  }
  ado::raise(ado::error::no_such_member);
}

}  // namespace brunvik
