#include "brunvik/ado/value.h"

#include <type_traits>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/numbers.h"

namespace brunvik::ado {

namespace {

template <class Type, class... Types>
constexpr bool is_one_of = (std::is_same_v<Type, Types> || ...);

// In a number, True has always been -1.
constexpr double number_of(bool flag) { return flag ? -1 : 0; }

}  // namespace

Double Value::as_double() const {
  return visit([](const auto& content) -> Double {
    using Type = std::decay_t<decltype(content)>;
    if constexpr (std::is_same_v<Type, Empty>) {
      return 0;
    } else if constexpr (std::is_same_v<Type, bool>) {
      return number_of(content);
    } else if constexpr (std::is_arithmetic_v<Type>) {
      return content;
    } else if constexpr (std::is_same_v<Type, Money>) {
      return content.to_double();
    } else if constexpr (std::is_same_v<Type, Date>) {
      return content.days;
    } else if constexpr (std::is_same_v<Type, std::string>) {
      return parse_double(content);
    } else {
      raise(std::is_same_v<Type, Null> ? error::invalid_use_of_null : error::type_mismatch);
    }
  });
}

Long Value::as_long() const {
  if (const auto* number = get_if<Long>()) return *number;
  return to_long(as_double());
}

Integer Value::as_integer() const {
  if (const auto* number = get_if<Integer>()) return *number;
  return to_integer(as_double());
}

Byte Value::as_byte() const { return to_byte(as_double()); }

Single Value::as_single() const {
  if (const auto* number = get_if<Single>()) return *number;
  return to_single(as_double());
}

Money Value::as_money() const {
  return visit([this](const auto& content) -> Money {
    using Type = std::decay_t<decltype(content)>;
    if constexpr (std::is_same_v<Type, Money>) {
      return content;
    } else if constexpr (is_one_of<Type, Byte, Integer, Long>) {
      return Money::from_whole(content);
    } else if constexpr (std::is_same_v<Type, std::string>) {
      return Money::parse(content);
    } else {
      return Money::from_double(as_double());
    }
  });
}

bool Value::as_boolean() const {
  if (const auto* flag = get_if<bool>()) return *flag;
  return as_double() != 0;
}

Date Value::as_date() const {
  if (const auto* text = get_if<std::string>()) return parse_date(*text);
  return {as_double()};
}

std::string Value::as_text() const {
  return visit([](const auto& content) -> std::string {
    using Type = std::decay_t<decltype(content)>;
    std::string text;
    if constexpr (std::is_same_v<Type, std::string>) {
      text = content;
    } else if constexpr (std::is_same_v<Type, bool>) {
      text = content ? "True" : "False";
    } else if constexpr (is_one_of<Type, Byte, Integer, Long>) {
      append_number(text, std::int64_t{content});
    } else if constexpr (is_one_of<Type, Single, Double>) {
      append_number(text, content);
    } else if constexpr (std::is_same_v<Type, Money>) {
      content.append_to(text);
    } else if constexpr (std::is_same_v<Type, Date>) {
      text = default_text(content);
    } else if constexpr (!std::is_same_v<Type, Empty>) {
      raise(std::is_same_v<Type, Null> ? error::invalid_use_of_null : error::type_mismatch);
    }
    return text;
  });
}

}  // namespace brunvik::ado
