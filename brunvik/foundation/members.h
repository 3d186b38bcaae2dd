// The member table of a class: its public members in their public order, each with its name, its type and the column
// that keeps it. It is written once for a class; statements, reading a header back, late binding and the descriptions
// all read it, and nothing else lists a class's members.
//
//   static const Members table{
//       connection<&C::ADOConn>("ADOConn"), collection<&C::colBillItems>("colBillItems"),
//       property<&C::ID>("ID", "Id"),       property<&C::Status>("Status", "Status").required(),
//       verb<&C::Save>("Save"),             verb<&C::GetNewId>("GetNewId", out("BID"))};
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "brunvik/ado/connection.h"
#include "brunvik/foundation/property_place.h"
#include "brunvik/foundation/public_object.h"
#include "brunvik/foundation/statement_writer.h"

namespace brunvik {

enum class Type {
  Nothing,
  Text,
  Byte,
  Integer,
  Long,
  Single,
  Double,
  Money,
  Boolean,
  Date,
  Variant,
  Connection,
  Object,
  Rows
};

std::string_view name_of(Type type) noexcept;

enum class MemberKind { property, read_only_property, collection, verb };

std::string_view name_of(MemberKind kind) noexcept;

// Makes a record of the class that a parameter takes, for an argument that is given field by field.
using MakeRecord = std::shared_ptr<PublicObject> (*)();

// The same for a collection of records.
using MakeRows = std::shared_ptr<RowCollection> (*)();

struct Parameter {
  std::string_view name;
  bool by_reference = false;
  bool optional = false;
  // What an omitted optional argument counts as.
  Value default_value = {};
  Type type = Type::Variant;
  MakeRecord make_record = nullptr;
  MakeRows make_rows = nullptr;
  // The argument only brings something back: what it held before the call means nothing.
  bool only_out = false;

  // At the end of the arguments: an optional one then counts as its default, one that only brings something back is
  // given an empty value to fill.
  bool may_be_left_out() const noexcept { return optional || only_out; }
};

inline Parameter in(std::string_view name) { return {name}; }
inline Parameter out(std::string_view name) {
  Parameter parameter{name, true};
  parameter.only_out = true;
  return parameter;
}
inline Parameter in_out(std::string_view name) { return {name, true}; }
inline Parameter optional(Parameter parameter, Value default_value) {
  parameter.optional = true;
  parameter.default_value = std::move(default_value);
  return parameter;
}

class Member {
 public:
  using Rows = RowCollection& (*)(PublicObject&);
  using Compute = Value (*)(const PublicObject&);
  using Call = Value (*)(PublicObject&, std::span<Value>);

  static Member stored(std::string_view name, std::string_view column, Type type, PropertyPlace place);
  static Member collection(std::string_view name, Rows rows);
  static Member computed(std::string_view name, std::string_view column, Type type, Compute compute);
  static Member callable(std::string_view name, Type result, std::vector<Parameter> parameters, Call call);

  // A null in the column is error 94 when a header is read; elsewhere a null reads as nothing (empty text, 0, false).
  Member required() &&;

  // The property is filled from this column when a record is read, and no statement writes it.
  Member read_from(std::string_view column) &&;

  // Statements write the property, and it stays as it is when a record is read.
  Member not_read() &&;

  // Only the class itself fills the property: a put from outside is error 438.
  Member read_only() &&;

  std::string_view name() const noexcept { return name_; }
  MemberKind kind() const noexcept { return kind_; }
  Type type() const noexcept { return type_; }
  const std::vector<Parameter>& parameters() const noexcept { return parameters_; }

  // Where it is in the objects of its class; nowhere, where it isn't a stored property.
  const PropertyPlace& place() const noexcept { return place_; }

  // The column that the property is kept in, empty where there is none.
  std::string_view written_column() const noexcept { return written_column_; }
  std::string_view read_column() const noexcept { return read_column_; }

  // Puts the property's value into a statement, as GetSqlVal writes it; error 13 where it is no property.
  void write_to(StatementWriter& statement, const PublicObject& object) const;

  // Takes the value of the column in a record.
  void read(PublicObject& object, const Value& field) const;

  // Late binding. A value of the wrong type is error 13, a read-only property or a verb put is error 438.
  Value get(const PublicObject& object) const;
  void put(PublicObject& object, const Value& value) const;
  RowCollection& rows(PublicObject& object) const;

  // The arguments come back as the call left them. Those that may be left out may be missing at the end; error 450 for
  // another count.
  Value call(PublicObject& object, std::vector<Value>& arguments) const;

 private:
  std::string_view name_;
  MemberKind kind_ = MemberKind::property;
  Type type_ = Type::Nothing;
  bool required_ = false;
  std::string_view written_column_;
  std::string_view read_column_;
  std::vector<Parameter> parameters_;
  PropertyPlace place_;
  Rows rows_ = nullptr;
  Compute compute_ = nullptr;
  Call call_ = nullptr;
};

// Completes a list of arguments by those that may be left out; error 450 where the count is wrong.
void complete_arguments(const std::vector<Parameter>& parameters, std::vector<Value>& arguments);

// Members that stand together in several tables, or that only some classes of a family have: then the group of the
// others is empty.
using MemberGroup = std::vector<Member>;

template <class... Group>
MemberGroup only_if(bool condition, Group... members) {
  return condition ? MemberGroup{std::move(members)...} : MemberGroup();
}

class Members {
 public:
  // A member, or a group of them, in a table.
  class Entry {
   public:
    Entry(Member member) : members_{std::move(member)} {}
    Entry(MemberGroup group) : members_(std::move(group)) {}

   private:
    friend class Members;
    MemberGroup members_;
  };

  Members(std::initializer_list<Entry> entries);

  // A group of members and of other groups.
  static MemberGroup group(std::initializer_list<Entry> entries);

  // By name without regard to case; error 438 where there is none.
  const Member& named(std::string_view name) const;

  // The property that a column is written from; error 3265 where there is none.
  const Member& written_to(std::string_view column) const;

  // The stored property that is kept at this address in the object, which is of the table's class; error 438 where
  // there is none.
  const Member& kept_at(const PublicObject& object, const void* address) const;

  // Which of the process's tables it is; a copy has the same number.
  std::size_t number() const noexcept { return number_; }

  auto begin() const noexcept { return members_.begin(); }
  auto end() const noexcept { return members_.end(); }

 private:
  MemberGroup members_;
  std::size_t number_;
};

template <class Stored>
constexpr Type type_of() {
  using Plain = std::remove_cvref_t<Stored>;
  if constexpr (std::is_void_v<Plain>) return Type::Nothing;
  if constexpr (std::is_same_v<Plain, std::string> || std::is_same_v<Plain, std::string_view>) return Type::Text;
  if constexpr (std::is_same_v<Plain, Byte>) return Type::Byte;
  if constexpr (std::is_same_v<Plain, Integer>) return Type::Integer;
  if constexpr (std::is_same_v<Plain, Long>) return Type::Long;
  if constexpr (std::is_same_v<Plain, Single>) return Type::Single;
  if constexpr (std::is_same_v<Plain, Double>) return Type::Double;
  if constexpr (std::is_same_v<Plain, Money>) return Type::Money;
  if constexpr (std::is_same_v<Plain, bool>) return Type::Boolean;
  if constexpr (std::is_same_v<Plain, Date>) return Type::Date;
  if constexpr (std::is_same_v<Plain, Value>) return Type::Variant;
  if constexpr (std::is_same_v<Plain, ado::ConnectionReference>) return Type::Connection;
  if constexpr (std::is_base_of_v<RowCollection, Plain>) return Type::Rows;
  return Type::Object;
}

namespace detail {

template <class>
struct MemberPointer;
template <class Content, class Owner>
struct MemberPointer<Content Owner::*> {
  using Type = Content;
  using Class = Owner;
};

template <auto pointer>
RowCollection& rows_of(PublicObject& object) {
  return static_cast<typename MemberPointer<decltype(pointer)>::Class&>(object).*pointer;
}

}  // namespace detail

// A property that is plain storage. The column may be left out: then the property is kept nowhere.
template <auto pointer>
Member property(std::string_view name, std::string_view column = {}) {
  using Stored = typename detail::MemberPointer<decltype(pointer)>::Type;
  return Member::stored(name, column, type_of<Stored>(), PropertyPlace(pointer));
}

template <auto pointer>
Member connection(std::string_view name) {
  return property<pointer>(name);
}

template <auto pointer>
Member collection(std::string_view name) {
  return Member::collection(name, detail::rows_of<pointer>);
}

// A read-only property that a member function works out, with the column that a statement writes it to.
template <auto getter>
Member computed(std::string_view name, std::string_view column = {}) {
  using Class = typename detail::MemberPointer<decltype(getter)>::Class;
  using Result = std::invoke_result_t<decltype(getter), const Class&>;
  return Member::computed(name, column, type_of<Result>(), [](const PublicObject& object) -> Value {
    return (static_cast<const Class&>(object).*getter)();
  });
}

}  // namespace brunvik
