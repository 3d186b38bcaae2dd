// Where a stored property is in the objects of its class, as data.
// One piece of code reads and writes the properties of all classes: a load reads some fifty of them, and a function for
// each would be fetched from afar every time.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <variant>

#include "brunvik/ado/connection.h"
#include "brunvik/foundation/public_object.h"
#include "brunvik/foundation/statement_writer.h"

namespace brunvik {

// Puts what a property holds into a statement, as GetSqlVal writes it, a flag as 1 or 0; a connection is error 13.
inline void write_property(StatementWriter& statement, const std::string& text) { statement.add_quoted(text); }
inline void write_property(StatementWriter& statement, Money amount) { statement.add(amount); }
inline void write_property(StatementWriter& statement, Single number) { statement.add(number); }
template <std::integral Whole>
void write_property(StatementWriter& statement, Whole number) {
  statement.add(std::int64_t{number});
}
void write_property(StatementWriter& statement, Double number);
void write_property(StatementWriter& statement, const Value& value);
[[noreturn]] void write_property(StatementWriter& statement, const ado::ConnectionReference& connection);

class PropertyPlace {
 public:
  using Pointer =
      std::variant<std::monostate, std::string PublicObject::*, Byte PublicObject::*, Integer PublicObject::*,
                   Long PublicObject::*, Single PublicObject::*, Double PublicObject::*, Money PublicObject::*,
                   bool PublicObject::*, Value PublicObject::*, ado::ConnectionReference PublicObject::*>;

  // Nowhere: to read, put, get or write is then error 13.
  PropertyPlace() = default;

  template <class Stored, class Owner>
  explicit PropertyPlace(Stored Owner::*pointer) : pointer_(static_cast<Stored PublicObject::*>(pointer)) {}

  const Pointer& pointer() const noexcept { return pointer_; }
  bool is_nowhere() const noexcept { return std::holds_alternative<std::monostate>(pointer_); }

  // Whether the property is at this address, in the object.
  bool is_at(const PublicObject& object, const void* address) const;

  // Takes the value as what the property is; errors as those of Value. A null is nothing: the empty text, 0, false.
  void read(PublicObject& object, const Value& value) const;

  // The same but for a null, which is an error where the property doesn't hold one.
  void put(PublicObject& object, const Value& value) const;

  Value get(const PublicObject& object) const;

  // As write_property.
  void write_to(StatementWriter& statement, const PublicObject& object) const;

 private:
  Pointer pointer_;

  template <class Object, class Visitor>
  void visit(Object& object, Visitor&& visitor) const;
};

}  // namespace brunvik
