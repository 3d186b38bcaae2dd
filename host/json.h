// JSON as the command reads and writes it: members stay in their order.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "brunvik/ado/types.h"

namespace brunvik::host {

using Json = nlohmann::ordered_json;

// Reads one JSON object; a member that comes twice has its last value. Throws a std::runtime_error that says why a text
// is none, in a few words however long the text is.
Json parse_object(std::string_view text);

// On one line. What isn't UTF-8 is written as the replacement character.
std::string one_line(const Json& json);

// Members of a line. A missing one is error 450 where there is no default, a value of another type error 13.
const Json* find(const Json& object, std::string_view name);
const Json& needed(const Json& object, std::string_view name);
const std::string& text_member(const Json& object, std::string_view name);
std::string text_member(const Json& object, std::string_view name, std::string_view default_text);
const Json& member_or(const Json& object, std::string_view name, const Json& otherwise);
Long long_member(const Json& object, std::string_view name);

}  // namespace brunvik::host
