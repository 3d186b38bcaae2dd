#include "host/describe.h"

#include <fmt/format.h>

#include <array>
#include <nlohmann/json.hpp>
#include <vector>

#include "brunvik/ado/names.h"
#include "brunvik/automation/automation.h"
#include "host/json.h"
#include "host/refusals.h"
#include "host/table.h"
#include "host/values.h"

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

Json record_json(std::string_view name) {
  return {{"class", name}, {"document", ""}, {"table", ""}, {"prefix", ""}, {"code", nullptr}};
}

Json parameters_json(const std::vector<Parameter>& parameters) {
  Json all = Json::array();
  for (const Parameter& parameter : parameters) {
    Json described{{"name", parameter.name},
                   {"type", name_of(parameter.type)},
                   {"byref", parameter.by_reference},
                   {"optional", parameter.optional}};
    if (parameter.optional) described["default"] = to_json(parameter.default_value);
    all.push_back(std::move(described));
  }
  return all;
}

Json member_json(const Member& member) {
  Json described{{"name", member.name()}, {"kind", name_of(member.kind())}, {"type", name_of(member.type())}};
  described["args"] = parameters_json(member.parameters());
  if (member.kind() == MemberKind::property || member.kind() == MemberKind::read_only_property) {
    described["column"] = column_of(member);
  }
  return described;
}

// "(byref BID String, optional byref sIDQZ String = "") Long"
std::string signature_of(const std::vector<Parameter>& parameters, Type result) {
  std::string text = "(";
  for (const Parameter& parameter : parameters) {
    if (text.size() > 1) text += ", ";
    if (parameter.optional) text += "optional ";
    if (parameter.by_reference) text += "byref ";
    text.append(parameter.name).append(" ").append(name_of(parameter.type));
    if (parameter.optional) text.append(" = ").append(one_line(to_json(parameter.default_value)));
  }
  text += ')';
  if (result != Type::Nothing) text.append(" ").append(name_of(result));
  return text;
}

std::string members_text(const Members& members) {
  Table table;
  for (const Member& member : members) {
    const bool is_verb = member.kind() == MemberKind::verb;
    table.add({std::string(member.name()), std::string(name_of(member.kind())),
               is_verb ? signature_of(member.parameters(), member.type()) : std::string(name_of(member.type())),
               std::string(column_of(member))});
  }
  return table.text();
}

std::string with_members(Json described, const Members& members) {
  Json all = Json::array();
  for (const Member& member : members) all.push_back(member_json(member));
  described["members"] = std::move(all);
  return one_line(described) + '\n';
}

const automation::Class* find_class(std::string_view name) {
  for (const automation::Class& entry : automation::classes()) {
    if (ado::same_name(entry.name, name)) return &entry;
  }
  return nullptr;
}

const automation::RecordClass& record_named(std::string_view name) {
  std::vector<std::string_view> names;
  for (const automation::RecordClass& entry : automation::record_classes()) {
    if (ado::same_name(entry.name, name)) return entry;
    names.push_back(entry.name);
  }
  refuse(ado::error::no_such_class, name, there_is(names));
}

// The member table of a row record belongs to its class, not to the row.
const Members& members_of(const automation::RecordClass& record) { return record.create_rows()->add().members(); }

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
  if (const automation::Class* entry = find_class(name)) return members_text(entry->create()->members());
  return members_text(members_of(record_named(name)));
}

std::string describe_class_json(std::string_view name) {
  if (const automation::Class* entry = find_class(name)) {
    return with_members(class_json(*entry), entry->create()->members());
  }
  const automation::RecordClass& record = record_named(name);
  return with_members(record_json(record.name), members_of(record));
}

std::string describe_procedures() {
  Table table;
  for (const Procedure& procedure : automation::procedures()) {
    table.add({std::string(procedure.name), "procedure", signature_of(procedure.parameters, procedure.result)});
  }
  return table.text();
}

std::string describe_procedures_json() {
  Json all = Json::array();
  for (const Procedure& procedure : automation::procedures()) {
    all.push_back({{"name", procedure.name},
                   {"kind", "procedure"},
                   {"type", name_of(procedure.result)},
                   {"args", parameters_json(procedure.parameters)}});
  }
  return one_line(all) + '\n';
}

}  // namespace brunvik::host
