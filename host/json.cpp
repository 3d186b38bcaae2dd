#include "host/json.h"

#include <limits>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace brunvik::host {

namespace {

// Far deeper than any line has to be, and far from what would exhaust the stack where JSON is walked.
constexpr int deepest = 64;

// "[json.exception.parse_error.101] parse error at line 1, column 5: ..." without what isn't about the text: its line
// is always the first.
std::string reason_in(std::string_view message) {
  for (const std::string_view end : {"] ", "parse error at line 1, ", "parse error: "}) {
    if (const auto place = message.find(end); place != std::string_view::npos)
      message.remove_prefix(place + end.size());
  }
  return std::string(message);
}

}  // namespace

Json parse_object(std::string_view text) {
  const auto check_depth = [](int depth, Json::parse_event_t, Json&) {
    if (depth > deepest) throw std::runtime_error("it is nested too deeply");
    return true;
  };
  Json parsed;
  try {
    parsed = Json::parse(text, check_depth);
  } catch (const Json::exception& failure) {
    throw std::runtime_error("it is no JSON: " + reason_in(failure.what()));
  }
  if (!parsed.is_object()) throw std::runtime_error("it is no JSON object");
  return parsed;
}

std::string one_line(const Json& json) { return json.dump(-1, ' ', false, Json::error_handler_t::replace); }

const Json* find(const Json& object, std::string_view name) {
  const auto place = object.find(name);
  return place == object.end() ? nullptr : &*place;
}

const std::string& text_member(const Json& object, std::string_view name) {
  const Json* member = find(object, name);
  if (!member || !member->is_string()) refuse(ado::error::type_mismatch, name);
  return member->get_ref<const std::string&>();
}

std::string text_member(const Json& object, std::string_view name, std::string_view default_text) {
  return find(object, name) ? text_member(object, name) : std::string(default_text);
}

const Json& member_or(const Json& object, std::string_view name, const Json& otherwise) {
  const Json* member = find(object, name);
  return member ? *member : otherwise;
}

Long long_member(const Json& object, std::string_view name) {
  const Json* member = find(object, name);
  if (!member || !member->is_number_integer()) refuse(ado::error::type_mismatch, name);
  const bool too_large =
      member->is_number_unsigned() && member->get<std::uint64_t>() > std::uint64_t{std::numeric_limits<Long>::max()};
  if (too_large || member->get<std::int64_t>() < std::numeric_limits<Long>::min()) {
    refuse(ado::error::type_mismatch, name);
  }
  return member->get<Long>();
}

void refuse(Long number, std::string_view what) {
  throw ado::RuntimeError(number, std::string(ado::error_text(number)).append(": ").append(what));
}

}  // namespace brunvik::host
