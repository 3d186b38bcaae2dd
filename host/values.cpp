#include "host/values.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <type_traits>

#include "brunvik/ado/date.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/ado/numbers.h"
#include "brunvik/automation/automation.h"
#include "host/refusals.h"

namespace brunvik::host {

namespace {

namespace error = ado::error;

// From here on a double has no digit for every whole number.
constexpr double exact_whole = 0x1p53;

Json number_json(double value) {
  if (value == std::trunc(value) && std::fabs(value) < exact_whole) return static_cast<std::int64_t>(value);
  return value;
}

Json number_json(float value) {
  // The double of the shortest text of the single, so that 0.1 is written as 0.1.
  std::string text;
  ado::append_number(text, value);
  return std::isfinite(value) ? number_json(std::strtod(text.c_str(), nullptr)) : Json(nullptr);
}

Value number_value(const Json& json, Type wanted) {
  if (wanted == Type::Money) return Money::parse(json.dump());
  if (json.is_number_float()) return json.get<double>();
  const bool unsigned_number = json.is_number_unsigned();
  const bool fits = unsigned_number ? json.get<std::uint64_t>() <= std::uint64_t{std::numeric_limits<Long>::max()}
                                    : json.get<std::int64_t>() >= std::numeric_limits<Long>::min();
  return fits ? Value(json.get<Long>()) : Value(json.get<double>());
}

Value array_value(const Json& json) {
  if (!json.is_array()) ado::raise(error::type_mismatch);
  ado::Array items;
  for (const Json& item : json) items.push_back(to_value(item));
  return items;
}

std::shared_ptr<RowCollection> rows_of_class(const Json& json) {
  return named(text_member(json, "class", "StockRow"), automation::create_rows);
}

// A row that a new collection of its class holds.
ado::ObjectReference row_value(const Json& json, const Json& values) {
  const std::shared_ptr<RowCollection> rows = rows_of_class(json);
  PublicObject& row = rows->add();
  put_properties(row, values);
  return std::shared_ptr<PublicObject>(rows, &row);
}

ado::ObjectReference filled(std::shared_ptr<RowCollection> rows, const Json& all_values) {
  if (!all_values.is_array()) ado::raise(error::type_mismatch);
  for (const Json& values : all_values) put_properties(rows->add(), values);
  return rows;
}

ado::ObjectReference rows_value(const Json& json, const Json& all_values) {
  return filled(rows_of_class(json), all_values);
}

// {"money":"1.5"} and its like: one member that says the type, and a record's class beside it.
Value typed_value(const Json& json) {
  const bool has_class = find(json, "class");
  if (json.size() != (has_class ? 2 : 1)) ado::raise(error::type_mismatch);
  if (const Json* values = find(json, "row")) return row_value(json, *values);
  if (const Json* values = find(json, "rows")) return rows_value(json, *values);
  if (has_class) ado::raise(error::type_mismatch);
  const std::string& type = json.begin().key();
  const Json& content = json.begin().value();
  if (type == "empty") return {};
  if (type == "array") return array_value(content);
  if (type == "money") return to_value(content, Type::Money).as_money();
  const Value value = to_value(content);
  if (type == "date") return value.as_date();
  if (type == "double") return value.as_double();
  if (type == "single") return value.as_single();
  if (type == "long") return value.as_long();
  if (type == "integer") return value.as_integer();
  if (type == "byte") return value.as_byte();
  if (type == "boolean") return value.as_boolean();
  ado::raise(error::type_mismatch);
}

bool is_plain(const Member& member) {
  const bool property = member.kind() == MemberKind::property || member.kind() == MemberKind::read_only_property;
  return property && member.type() != Type::Connection && member.type() != Type::Object;
}

Json object_json(const ado::ObjectReference& reference) {
  if (const auto* record = dynamic_cast<const PublicObject*>(reference.get())) {
    return {{"row", properties_of(*record)}};
  }
  if (const auto* rows = dynamic_cast<const RowCollection*>(reference.get())) {
    Json all = Json::array();
    for (std::size_t place = 1; place <= rows->Count(); ++place) all.push_back(properties_of(rows->at(place)));
    return {{"rows", std::move(all)}};
  }
  // A connection or a recordset has no form outside of the process.
  return nullptr;
}

Value to_argument(const Json& json, const Parameter& parameter) {
  if (!json.is_object() || find(json, "class")) return to_value(json, parameter.type);
  const Json* rows = find(json, "rows");
  if (rows && parameter.make_rows) return filled(parameter.make_rows(), *rows);
  const Json* values = find(json, "row");
  if (!values || !parameter.make_record) return to_value(json, parameter.type);
  const std::shared_ptr<PublicObject> record = parameter.make_record();
  put_properties(*record, *values);
  return ado::ObjectReference(record);
}

}  // namespace

Value to_value(const Json& json, Type wanted) {
  switch (json.type()) {
    case Json::value_t::null:
      return ado::Null();
    case Json::value_t::boolean:
      return json.get<bool>();
    case Json::value_t::string:
      return json.get_ref<const std::string&>();
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
    case Json::value_t::number_float:
      return number_value(json, wanted);
    case Json::value_t::object:
      return typed_value(json);
    default:
      ado::raise(error::type_mismatch);
  }
}

Json to_json(const Value& value) {
  return value.visit([](const auto& content) -> Json {
    using Content = std::decay_t<decltype(content)>;
    if constexpr (std::is_same_v<Content, ado::Empty>) {
      return {{"empty", true}};
    } else if constexpr (std::is_same_v<Content, ado::Null>) {
      return nullptr;
    } else if constexpr (std::is_floating_point_v<Content>) {
      return number_json(content);
    } else if constexpr (std::is_same_v<Content, Money>) {
      return content.text();
    } else if constexpr (std::is_same_v<Content, Date>) {
      return {{"date", ado::timestamp_text(content)}};
    } else if constexpr (std::is_same_v<Content, ado::ObjectReference>) {
      return object_json(content);
    } else if constexpr (std::is_same_v<Content, std::shared_ptr<const ado::Array>>) {
      Json items = Json::array();
      for (const Value& item : *content) items.push_back(to_json(item));
      return {{"array", std::move(items)}};
    } else {
      return content;
    }
  });
}

Json properties_of(const PublicObject& object) {
  Json properties = Json::object();
  for (const Member& member : object.members()) {
    if (is_plain(member)) properties.emplace(std::string(member.name()), to_json(member.get(object)));
  }
  return properties;
}

void put_properties(PublicObject& object, const Json& values) {
  if (!values.is_object()) ado::raise(error::type_mismatch);
  std::vector<std::pair<const Member*, Value>> before;
  try {
    for (const auto& [key, json] : values.items()) {
      const Member& member = member_for(Use::put, object, key);
      Value present = member.get(object);
      try {
        member.put(object, to_value(json, member.type()));
      } catch (const ado::RuntimeError& failure) {
        throw ado::RuntimeError(failure.number(), failure.description() + ": " + key);
      }
      before.emplace_back(&member, std::move(present));
    }
  } catch (const ado::RuntimeError&) {
    for (; !before.empty(); before.pop_back()) before.back().first->put(object, before.back().second);
    throw;
  }
}

void add_row(RowCollection& rows, std::size_t position, const Json& values) {
  PublicObject& row = rows.insert(position);
  try {
    put_properties(row, values);
  } catch (const ado::RuntimeError&) {
    rows.remove(position);
    throw;
  }
}

std::vector<Value> to_arguments(std::string_view name, const Json& given, const std::vector<Parameter>& parameters) {
  if (!given.is_array()) refuse(error::type_mismatch, "args");
  if (given.size() > parameters.size()) {
    std::vector<std::string_view> names;
    names.reserve(parameters.size());
    for (const Parameter& parameter : parameters) names.push_back(parameter.name);
    refuse(error::wrong_argument_count, name,
           fmt::format(" takes ({}), {} given", fmt::join(names, ", "), given.size()));
  }
  std::vector<Value> arguments;
  for (std::size_t place = 0; place < parameters.size(); ++place) {
    const Parameter& parameter = parameters[place];
    if (place < given.size()) {
      try {
        arguments.push_back(to_argument(given[place], parameter));
      } catch (const ado::RuntimeError& failure) {
        throw ado::RuntimeError(failure.number(),
                                fmt::format("{}: {}: {}", failure.description(), name, parameter.name));
      }
    } else if (!parameter.may_be_left_out()) {
      refuse(error::wrong_argument_count, name, fmt::format(": {} is missing", parameter.name));
    }
  }
  return arguments;
}

Json left_arguments(const Json& given, const std::vector<Parameter>& parameters, std::span<const Value> arguments) {
  Json left = Json::array();
  for (std::size_t place = 0; place < arguments.size(); ++place) {
    const bool as_given = place < given.size() && !parameters[place].by_reference;
    left.push_back(as_given ? given[place] : to_json(arguments[place]));
  }
  return left;
}

}  // namespace brunvik::host
