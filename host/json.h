// JSON as the command reads and writes it: members stay in their order.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "brunvik/ado/errors.h"

namespace brunvik::host {

using Json = nlohmann::ordered_json;

// Reads one JSON object. Throws a std::runtime_error that says why a text is none.
Json parse_object(std::string_view text);

// On one line. What isn't UTF-8 is written as the replacement character.
std::string one_line(const Json& json);

// Members of a line. A value of another type is error 13, and so is a missing one where there is no default.
const Json* find(const Json& object, std::string_view name);
const std::string& text_member(const Json& object, std::string_view name);
std::string text_member(const Json& object, std::string_view name, std::string_view default_text);
const Json& member_or(const Json& object, std::string_view name, const Json& otherwise);
Long long_member(const Json& object, std::string_view name);

// A run-time error that names what it is about.
[[noreturn]] void refuse(Long number, std::string_view what);

// What is found by a name; where it isn't, the error says which name it was.
template <class Find>
auto named(std::string_view name, Find&& find) -> decltype(find(name)) {
  try {
    return find(name);
  } catch (const ado::RuntimeError& failure) {
    refuse(failure.number(), name);
  }
}

}  // namespace brunvik::host
