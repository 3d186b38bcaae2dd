// Where a stored property is in the objects of its class: as data, so that one piece of code reads the properties of
// all classes. A load reads some fifty of them, and a function of each one's own would be fetched from afar at every
// load.
#pragma once

#include <string>
#include <variant>

#include "brunvik/ado/connection.h"
#include "brunvik/foundation/public_object.h"

namespace brunvik {

class PropertyPlace {
 public:
  using Pointer =
      std::variant<std::monostate, std::string PublicObject::*, Byte PublicObject::*, Integer PublicObject::*,
                   Long PublicObject::*, Single PublicObject::*, Double PublicObject::*, Money PublicObject::*,
                   bool PublicObject::*, Value PublicObject::*, ado::ConnectionReference PublicObject::*>;

  // Nowhere: to read, put or get is then error 13.
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

 private:
  Pointer pointer_;

  template <class Object, class Visitor>
  void visit(Object& object, Visitor&& visitor) const;
};

}  // namespace brunvik
