#include "host/describe.h"

#include <fmt/format.h>

#include <array>
#include <nlohmann/json.hpp>
#include <vector>

#include "brunvik/automation/automation.h"
#include "host/json.h"
#include "host/table.h"

namespace brunvik::host {

namespace {

Json code_json(const automation::Class& entry) {
  return entry.kind && entry.kind->code ? Json(*entry.kind->code) : Json(nullptr);
}

Json class_json(const automation::Class& entry) {
  const Kind* kind = entry.kind;
  return {{"class", entry.name},
          {"document", kind ? kind->document : ""},
          {"table", kind ? kind->header_table() : ""},
          {"prefix", kind ? kind->prefix : ""},
          {"code", code_json(entry)}};
}

std::string_view column_of(const Member& member) {
  return member.written_column().empty() ? member.read_column() : member.written_column();
}

Json parameter_json(const Parameter& parameter) {
  return {{"name", parameter.name},
          {"type", name_of(parameter.type)},
          {"byref", parameter.by_reference},
          {"optional", parameter.optional}};
}

Json member_json(const Member& member) {
  Json described{{"name", member.name()}, {"kind", name_of(member.kind())}, {"type", name_of(member.type())}};
  Json parameters = Json::array();
  for (const Parameter& parameter : member.parameters()) parameters.push_back(parameter_json(parameter));
  described["args"] = std::move(parameters);
  if (member.kind() == MemberKind::property || member.kind() == MemberKind::read_only_property) {
    described["column"] = column_of(member);
  }
  return described;
}

// "(byref BID String, optional sIDQZ String) Long"
std::string signature_of(const Member& member) {
  std::string text = "(";
  for (const Parameter& parameter : member.parameters()) {
    if (text.size() > 1) text += ", ";
    if (parameter.optional) text += "optional ";
    if (parameter.by_reference) text += "byref ";
    text.append(parameter.name).append(" ").append(name_of(parameter.type));
  }
  text += ')';
  if (member.type() != Type::Nothing) text.append(" ").append(name_of(member.type()));
  return text;
}

}  // namespace

std::string describe_classes() {
  Table table;
  for (const automation::Class& entry : automation::classes()) {
    const Kind* kind = entry.kind;
    table.add({std::string(entry.name), std::string(kind ? kind->document : ""),
               kind ? fmt::format("{}", fmt::join(kind->tables, ", ")) : "", std::string(kind ? kind->prefix : ""),
               kind && kind->code ? std::to_string(*kind->code) : ""});
  }
  return table.text();
}

std::string describe_classes_json() {
  Json all = Json::array();
  for (const automation::Class& entry : automation::classes()) all.push_back(class_json(entry));
  return one_line(all) + '\n';
}

std::string describe_class(std::string_view name) {
  const auto object = automation::create(name);
  Table table;
  for (const Member& member : object->members()) {
    const bool is_verb = member.kind() == MemberKind::verb;
    table.add({std::string(member.name()), std::string(name_of(member.kind())),
               is_verb ? signature_of(member) : std::string(name_of(member.type())), std::string(column_of(member))});
  }
  return table.text();
}

std::string describe_class_json(std::string_view name) {
  const automation::Class& entry = automation::class_named(name);
  Json described = class_json(entry);
  Json members = Json::array();
  const auto object = entry.create();
  for (const Member& member : object->members()) members.push_back(member_json(member));
  described["members"] = std::move(members);
  return one_line(described) + '\n';
}

}  // namespace brunvik::host
