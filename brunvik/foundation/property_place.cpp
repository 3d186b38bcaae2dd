#include "brunvik/foundation/property_place.h"

#include <type_traits>
#include <utility>

#include "brunvik/ado/errors.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

namespace {

void assign(std::string& property, const Value& value) {
  if (const auto* text = value.get_if<std::string>()) {
    property = *text;
  } else {
    property = value.as_text();
  }
}
void assign(Byte& property, const Value& value) { property = value.as_byte(); }
void assign(Integer& property, const Value& value) { property = value.as_integer(); }
void assign(Long& property, const Value& value) { property = value.as_long(); }
void assign(Single& property, const Value& value) { property = value.as_single(); }
void assign(Double& property, const Value& value) { property = value.as_double(); }
void assign(Money& property, const Value& value) { property = value.as_money(); }
void assign(bool& property, const Value& value) { property = value.as_boolean(); }
void assign(Value& property, const Value& value) { property = value; }

void assign(ado::ConnectionReference& property, const Value& value) {
  const auto* object = value.get_if<ado::ObjectReference>();
  const bool is_nothing = value.is_empty() || value.is_null() || (object && !*object);
  auto connection = object ? std::dynamic_pointer_cast<ado::Connection>(*object) : nullptr;
  if (!connection && !is_nothing) ado::raise(ado::error::type_mismatch);
  property = std::move(connection);
}

}  // namespace

template <class Object, class Visitor>
void PropertyPlace::visit(Object& object, Visitor&& visitor) const {
  std::visit(
      [&](auto pointer) {
        if constexpr (std::is_member_object_pointer_v<decltype(pointer)>) {
          visitor(object.*pointer);
        } else {
          ado::raise(ado::error::type_mismatch);
        }
      },
      pointer_);
}

bool PropertyPlace::is_at(const PublicObject& object, const void* address) const {
  if (is_nowhere()) return false;
  bool is_there = false;
  visit(object, [&](const auto& property) { is_there = &property == address; });
  return is_there;
}

void PropertyPlace::read(PublicObject& object, const Value& value) const {
  visit(object, [&](auto& property) {
    if (value.is_null()) {
      property = {};
    } else {
      assign(property, value);
    }
  });
}

void PropertyPlace::put(PublicObject& object, const Value& value) const {
  visit(object, [&](auto& property) { assign(property, value); });
}

Value PropertyPlace::get(const PublicObject& object) const {
  Value value;
  visit(object, [&](const auto& property) {
    if constexpr (std::is_same_v<decltype(property), const ado::ConnectionReference&>) {
      value = ado::ObjectReference(property);
    } else {
      value = property;
    }
  });
  return value;
}

void PropertyPlace::write_to(StatementWriter& statement, const PublicObject& object) const {
  visit(object, [&](const auto& property) { write_property(statement, property); });
}

void write_property(StatementWriter& statement, Double number) { SqlValue(number).write_to(statement); }
void write_property(StatementWriter& statement, const Value& value) { SqlValue(value).write_to(statement); }
void write_property(StatementWriter&, const ado::ConnectionReference&) { ado::raise(ado::error::type_mismatch); }

}  // namespace brunvik
