// Value: a value whose type is known at run time only, as a database field or a late-bound argument is.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "brunvik/ado/date.h"
#include "brunvik/ado/money.h"
#include "brunvik/ado/types.h"

namespace brunvik::ado {

// Whatever can stand in a Value by reference: a bill, a row, a connection, a recordset.
class Object {
 public:
  virtual ~Object() = default;

 protected:
  Object() = default;
  Object(const Object&) = default;
  Object(Object&&) = default;
  Object& operator=(const Object&) = default;
  Object& operator=(Object&&) = default;
};

using ObjectReference = std::shared_ptr<Object>;

class Value;
using Array = std::vector<Value>;

struct Empty {
  friend bool operator==(Empty, Empty) = default;
};
struct Null {
  friend bool operator==(Null, Null) = default;
};

class Value {
 public:
  // Never assigned.
  Value() = default;
  Value(Null null) : content_(null) {}
  Value(Byte number) : content_(number) {}
  Value(Integer number) : content_(number) {}
  Value(Long number) : content_(number) {}
  Value(Single number) : content_(number) {}
  Value(Double number) : content_(number) {}
  Value(Money amount) : content_(amount) {}
  Value(bool flag) : content_(flag) {}
  Value(Date date) : content_(date) {}
  Value(std::string text) : content_(std::move(text)) {}
  Value(std::string_view text) : content_(std::string(text)) {}
  Value(const char* text) : content_(std::string(text)) {}
  Value(ObjectReference object) : content_(std::move(object)) {}
  Value(Array items) : content_(std::make_shared<const Array>(std::move(items))) {}

  bool is_empty() const noexcept { return std::holds_alternative<Empty>(content_); }
  bool is_null() const noexcept { return std::holds_alternative<Null>(content_); }

  // The content, or nullptr where the value is of another type.
  template <class Type>
  const Type* get_if() const noexcept {
    return std::get_if<Type>(&content_);
  }
  template <class Type>
  Type* get_if() noexcept {
    return std::get_if<Type>(&content_);
  }
  const Array* array() const noexcept {
    const auto* items = get_if<std::shared_ptr<const Array>>();
    return items ? items->get() : nullptr;
  }

  template <class Visitor>
  decltype(auto) visit(Visitor&& visitor) const {
    return std::visit(std::forward<Visitor>(visitor), content_);
  }

  // Each reads the value as the type that it names. A number is rounded to the nearest, ties to the even one, and
  // read from text where it holds text. Empty reads as zero or the empty text. Errors: 94 for null, 13 for text that
  // is no number and for an object or an array, 6 outside of the range.
  Long as_long() const;
  Integer as_integer() const;
  Byte as_byte() const;
  Single as_single() const;
  Double as_double() const;
  Money as_money() const;
  bool as_boolean() const;
  Date as_date() const;
  std::string as_text() const;

  // The value joined to the empty text: null reads as the empty text.
  std::string joined_text() const { return is_null() ? std::string() : as_text(); }

  friend bool operator==(const Value&, const Value&) = default;

 private:
  std::variant<Empty, Null, Byte, Integer, Long, Single, Double, Money, bool, Date, std::string, ObjectReference,
               std::shared_ptr<const Array>>
      content_;
};

}  // namespace brunvik::ado

namespace brunvik {
using ado::Date;
using ado::Value;
}  // namespace brunvik
