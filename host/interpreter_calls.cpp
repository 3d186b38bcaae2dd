// Calls of verbs and procedures, and what happened in them.
#include <nlohmann/json.hpp>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/automation/automation.h"
#include "brunvik/foundation/last_failure.h"
#include "host/interpreter.h"
#include "host/refusals.h"
#include "host/values.h"

namespace brunvik::host {

namespace {

const Json& arguments_in(const Json& line) {
  static const Json no_arguments = Json::array();
  return member_or(line, "args", no_arguments);
}

const Procedure& procedure_by(std::string_view name) {
  std::vector<std::string_view> names;
  for (const Procedure& procedure : automation::procedures()) {
    if (ado::same_name(procedure.name, name)) return procedure;
    names.push_back(procedure.name);
  }
  refuse(ado::error::no_such_member, name, there_is(names));
}

}  // namespace

void Interpreter::call(const Json& line, Json& answer) {
  PublicObject& object = object_of(line);
  const std::string& verb = text_member(line, "verb");
  const Member& member = member_for(Use::call, object, verb);
  const Json& given = arguments_in(line);
  std::vector<Value> arguments = to_arguments(member.name(), given, member.parameters());
  ++calls_;
  const Value result = automation::call(object, verb, arguments);
  // The verb was a start of the session.
  if (&way_of(object) == &sessions_) put_properties(*session_, properties_of(object));
  answer["result"] = member.type() == Type::Nothing ? Json(nullptr) : to_json(result);
  answer["args"] = left_arguments(given, member.parameters(), arguments);
  add_what_happened(answer);
}

void Interpreter::call_procedure(const Json& line, Json& answer) {
  const std::string& name = text_member(line, "name");
  const Procedure& procedure = procedure_by(name);
  const Json& given = arguments_in(line);
  std::vector<Value> arguments = to_arguments(procedure.name, given, procedure.parameters);
  ++calls_;
  const Value result = automation::call_procedure(name, arguments);
  answer["result"] = procedure.result == Type::Nothing ? Json(nullptr) : to_json(result);
  answer["args"] = left_arguments(given, procedure.parameters, arguments);
  add_what_happened(answer);
}

void Interpreter::add_what_happened(Json& answer) {
  if (!notices_.empty()) {
    Json notices = Json::array();
    for (const ado::Notice& notice : notices_) notices.push_back({{"title", notice.title}, {"text", notice.text}});
    answer["notices"] = std::move(notices);
  }
  if (const Failure& failure = last_failure(); failure.number != 0) {
    answer["failure"] = {{"number", failure.number}, {"text", failure.text}, {"statement", failure.statement}};
  }
  if (!tracing_) return;
  Json statements = Json::array();
  for (const TracedStatement& statement : trace_->take()) {
    Json entry{name_of(statement.road), statement.text};
    if (statement.failure) entry.push_back(*statement.failure);
    statements.push_back(std::move(entry));
  }
  answer["trace"] = std::move(statements);
}

}  // namespace brunvik::host
