// Calls by name: turns dynamically typed arguments into the types of a C++ function, and what it leaves in its
// by-reference parameters back.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <span>
#include <tuple>
#include <utility>
#include <vector>

#include "brunvik/foundation/members.h"

namespace brunvik {

namespace detail {

// An argument while a call lasts: the value that the function sees, made from the caller's, and given back.
template <class Parameter>
class Argument {
  using Plain = std::remove_cvref_t<Parameter>;
  using Held = std::conditional_t<std::is_same_v<Plain, std::string_view>, std::string, Plain>;

 public:
  explicit Argument(const Value& value) {
    if (const Held* const own = held_in(value)) {
      held_ = *own;
    } else {
      convert(value);
    }
  }

  Held& get() { return held_; }

  // A value of another type comes back as what the function saw.
  void give_back(Value& value) const {
    if (is_only_read && held_in(value)) return;
    value = held_;
  }

 private:
  static constexpr bool is_only_read =
      !std::is_reference_v<Parameter> || std::is_const_v<std::remove_reference_t<Parameter>>;

  Held held_{};

  static const Held* held_in(const Value& value) noexcept {
    if constexpr (std::is_same_v<Held, Value>) {
      return &value;
    } else {
      return value.get_if<Held>();
    }
  }

  void convert([[maybe_unused]] const Value& value) {
    if constexpr (std::is_same_v<Held, std::string>) held_ = value.as_text();
    if constexpr (std::is_same_v<Held, bool>) held_ = value.as_boolean();
    if constexpr (std::is_same_v<Held, Byte>) held_ = value.as_byte();
    if constexpr (std::is_same_v<Held, Integer>) held_ = value.as_integer();
    if constexpr (std::is_same_v<Held, Long>) held_ = value.as_long();
    if constexpr (std::is_same_v<Held, Single>) held_ = value.as_single();
    if constexpr (std::is_same_v<Held, Double>) held_ = value.as_double();
    if constexpr (std::is_same_v<Held, Money>) held_ = value.as_money();
    if constexpr (std::is_same_v<Held, Date>) held_ = value.as_date();
  }
};

// An object goes by reference: the caller's own is worked on.
template <class Parameter>
requires std::is_base_of_v<ado::Object, std::remove_cvref_t<Parameter>>
class Argument<Parameter> {
  using Class = std::remove_cvref_t<Parameter>;

 public:
  explicit Argument(const Value& value) {
    const auto* reference = value.get_if<ado::ObjectReference>();
    object_ = reference ? std::dynamic_pointer_cast<Class>(*reference) : nullptr;
    if constexpr (std::is_default_constructible_v<Class>) {
      if (value.is_empty() || value.is_null()) object_ = std::make_shared<Class>();
    }
    if (!object_) ado::raise(ado::error::type_mismatch);
  }

  Class& get() { return *object_; }
  void give_back(Value&) const {}

 private:
  std::shared_ptr<Class> object_;
};

template <class Parameter>
constexpr MakeRecord record_maker() {
  using Class = std::remove_cvref_t<Parameter>;
  if constexpr (std::is_base_of_v<PublicObject, Class> && std::is_default_constructible_v<Class>) {
    return [] { return std::shared_ptr<PublicObject>(std::make_shared<Class>()); };
  }
  return nullptr;
}

template <class Parameter>
constexpr MakeRows rows_maker() {
  using Class = std::remove_cvref_t<Parameter>;
  if constexpr (std::is_base_of_v<RowCollection, Class> && std::is_default_constructible_v<Class>) {
    return [] { return std::shared_ptr<RowCollection>(std::make_shared<Class>()); };
  }
  return nullptr;
}

template <class... Parameters>
struct Call {
  static constexpr std::size_t count = sizeof...(Parameters);
  using Arguments = std::tuple<Argument<Parameters>...>;

  static std::vector<Parameter> described(std::array<Parameter, count> parameters) {
    const std::array<Type, count> types{type_of<Parameters>()...};
    const std::array<MakeRecord, count> makers{record_maker<Parameters>()...};
    const std::array<MakeRows, count> rows_makers{rows_maker<Parameters>()...};
    for (std::size_t place = 0; place < count; ++place) {
      parameters[place].type = types[place];
      parameters[place].make_record = makers[place];
      parameters[place].make_rows = rows_makers[place];
    }
    return {parameters.begin(), parameters.end()};
  }

  template <class Function>
  static Value run(Function&& function, std::span<Value> values) {
    return run(std::forward<Function>(function), values, std::index_sequence_for<Parameters...>());
  }

 private:
  template <class Function, std::size_t... places>
  static Value run(Function&& function, [[maybe_unused]] std::span<Value> values, std::index_sequence<places...>) {
    Arguments arguments{Argument<Parameters>(values[places])...};
    const auto give_back = [&] { (std::get<places>(arguments).give_back(values[places]), ...); };
    if constexpr (std::is_void_v<std::invoke_result_t<Function, Parameters...>>) {
      function(static_cast<Parameters>(std::get<places>(arguments).get())...);
      give_back();
      return {};
    } else {
      Value result(function(static_cast<Parameters>(std::get<places>(arguments).get())...));
      give_back();
      return result;
    }
  }
};

template <class Pointer>
struct VerbPointer;

template <class Owner, class Answer, class... Parameters>
struct VerbPointer<Answer (Owner::*)(Parameters...)> {
  using Class = Owner;
  using Result = Answer;
  using Invocation = Call<Parameters...>;
};
template <class Owner, class Answer, class... Parameters>
struct VerbPointer<Answer (Owner::*)(Parameters...) noexcept> : VerbPointer<Answer (Owner::*)(Parameters...)> {};

}  // namespace detail

// A verb by its member function, with as many parameters as that takes, in their order.
template <auto pointer, class... Described>
requires(sizeof...(Described) == detail::VerbPointer<decltype(pointer)>::Invocation::count) Member
    verb(std::string_view name, Described... parameters) {
  using Pointer = detail::VerbPointer<decltype(pointer)>;
  using Invocation = typename Pointer::Invocation;
  return Member::callable(
      name, type_of<typename Pointer::Result>(), Invocation::described({std::move(parameters)...}),
      [](PublicObject& object, std::span<Value> values) -> Value {
        auto& self = static_cast<typename Pointer::Class&>(object);
        return Invocation::run(
            [&](auto&&... arguments) { return (self.*pointer)(std::forward<decltype(arguments)>(arguments)...); },
            values);
      });
}

// A module procedure, callable by name.
struct Procedure {
  std::string_view name;
  Type result;
  std::vector<Parameter> parameters;
  Value (*call)(std::span<Value>);
};

namespace detail {

template <class Pointer>
struct FunctionPointer;

template <class Answer, class... Parameters>
struct FunctionPointer<Answer (*)(Parameters...)> {
  using Result = Answer;
  using Invocation = Call<Parameters...>;
};
template <class Answer, class... Parameters>
struct FunctionPointer<Answer (*)(Parameters...) noexcept> : FunctionPointer<Answer (*)(Parameters...)> {};

}  // namespace detail

template <auto pointer, class... Described>
requires(sizeof...(Described) == detail::FunctionPointer<decltype(pointer)>::Invocation::count) Procedure
    procedure(std::string_view name, Described... parameters) {
  using Function = detail::FunctionPointer<decltype(pointer)>;
  using Invocation = typename Function::Invocation;
  return {name, type_of<typename Function::Result>(), Invocation::described({std::move(parameters)...}),
          [](std::span<Value> values) -> Value { return Invocation::run(pointer, values); }};
}

}  // namespace brunvik
