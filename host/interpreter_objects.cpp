// Objects, their properties and their rows.
#include <nlohmann/json.hpp>

#include "brunvik/ado/errors.h"
#include "brunvik/automation/automation.h"
#include "host/interpreter.h"
#include "host/refusals.h"
#include "host/values.h"

namespace brunvik::host {

namespace {

namespace error = ado::error;

const Json& row_in(const Json& line) {
  static const Json no_values = Json::object();
  return member_or(line, "row", no_values);
}

// Where a line is about, from 1 to a last place; error 9 for any other.
std::size_t place_in(const Json& line, std::size_t last) {
  const Long place = long_member(line, "at");
  if (place < 1 || static_cast<std::size_t>(place) > last) refuse(error::subscript, std::to_string(place));
  return static_cast<std::size_t>(place);
}

}  // namespace

PublicObject& Interpreter::object_of(const Json& line) {
  const std::string& name = text_member(line, "on");
  const auto found = objects_.find(name);
  if (found == objects_.end()) refuse(error::no_such_object, name);
  return *found->second;
}

RowCollection& Interpreter::rows_of(const Json& line) {
  PublicObject& object = object_of(line);
  return member_for(Use::rows, object, text_member(line, "rows")).rows(object);
}

void Interpreter::make_object(const Json& line, Json& answer) {
  const std::string& name = text_member(line, "as");
  auto object =
      named(text_member(line, "class"), [](std::string_view class_name) { return automation::create(class_name); });
  connect(*object);
  objects_.insert_or_assign(name, std::move(object));
  answer["ok"] = true;
}

void Interpreter::put(const Json& line, Json& answer) {
  PublicObject& object = object_of(line);
  put_properties(object, needed(line, "values"));
  answer["ok"] = true;
}

void Interpreter::get(const Json& line, Json& answer) {
  const PublicObject& object = object_of(line);
  const Json* names = find(line, "names");
  if (!names) {
    answer["values"] = properties_of(object);
    return;
  }
  if (!names->is_array()) refuse(error::type_mismatch, "names");
  Json values = Json::object();
  for (const Json& name : *names) {
    if (!name.is_string()) refuse(error::type_mismatch, "names");
    const auto& text = name.get_ref<const std::string&>();
    values[text] = to_json(member_for(Use::get, object, text).get(object));
  }
  answer["values"] = std::move(values);
}

void Interpreter::add(const Json& line, Json& answer) {
  RowCollection& rows = rows_of(line);
  add_row(rows, find(line, "at") ? place_in(line, rows.Count() + 1) : rows.Count() + 1, row_in(line));
  answer["count"] = rows.Count();
}

void Interpreter::edit(const Json& line, Json& answer) {
  RowCollection& rows = rows_of(line);
  put_properties(rows.at(place_in(line, rows.Count())), needed(line, "row"));
  answer["count"] = rows.Count();
}

void Interpreter::remove(const Json& line, Json& answer) {
  RowCollection& rows = rows_of(line);
  rows.remove(place_in(line, rows.Count()));
  answer["count"] = rows.Count();
}

void Interpreter::clear(const Json& line, Json& answer) {
  RowCollection& rows = rows_of(line);
  rows.clear();
  answer["count"] = rows.Count();
}

void Interpreter::show_rows(const Json& line, Json& answer) {
  const RowCollection& rows = rows_of(line);
  Json all = Json::array();
  for (std::size_t place = 1; place <= rows.Count(); ++place) all.push_back(properties_of(rows.at(place)));
  answer["rows"] = std::move(all);
}

}  // namespace brunvik::host
