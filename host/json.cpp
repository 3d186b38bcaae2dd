#include "host/json.h"

#include <limits>
#include <nlohmann/json.hpp>

#include "host/refusals.h"

namespace brunvik::host {

std::string one_line(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

const Json* find(const Json& object, std::string_view name) {
  const auto place = object.find(name);
  return place == object.end() ? nullptr : &*place;
}

const Json& needed(const Json& object, std::string_view name) {
  const Json* found = find(object, name);
  if (!found) refuse(ado::error::wrong_argument_count, name, " is missing");
  return *found;
}

const std::string& text_member(const Json& object, std::string_view name) {
  const Json& text = needed(object, name);
  if (!text.is_string()) refuse(ado::error::type_mismatch, name);
  return text.get_ref<const std::string&>();
}

std::string text_member(const Json& object, std::string_view name, std::string_view default_text) {
  return find(object, name) ? text_member(object, name) : std::string(default_text);
}

const Json& member_or(const Json& object, std::string_view name, const Json& otherwise) {
  const Json* member = find(object, name);
  return member ? *member : otherwise;
}

Long long_member(const Json& object, std::string_view name) {
  const Json& number = needed(object, name);
  if (!number.is_number_integer()) refuse(ado::error::type_mismatch, name);
  const bool too_large =
      number.is_number_unsigned() && number.get<std::uint64_t>() > std::uint64_t{std::numeric_limits<Long>::max()};
  if (too_large || number.get<std::int64_t>() < std::numeric_limits<Long>::min()) {
    refuse(ado::error::type_mismatch, name);
  }
  return number.get<Long>();
}

}  // namespace brunvik::host
