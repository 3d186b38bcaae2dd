// The session, the connections, and what goes wrong on purpose.
#include <nlohmann/json.hpp>

#include "brunvik/ado/errors.h"
#include "brunvik/automation/automation.h"
#include "host/interpreter.h"
#include "host/refusals.h"
#include "host/values.h"

namespace brunvik::host {

namespace {

namespace error = ado::error;

}  // namespace

void Interpreter::run_statement(const Json& line, Json& answer) {
  ado::Recordset set = database_->Execute(text_member(line, "text"));
  Json rows = Json::array();
  for (; set.State() != 0 && !set.at_end(); set.MoveNext()) {
    Json row = Json::array();
    for (std::size_t column = 0; column < set.names().size(); ++column) {
      row.push_back(to_json(set.value(ado::Column{column})));
    }
    rows.push_back(std::move(row));
  }
  answer["columns"] = set.names();
  answer["rows"] = std::move(rows);
}

void Interpreter::start_session(const Json& line, Json& answer) {
  auto session = automation::create(session_class);
  put_properties(*session, properties_of(*session_));
  if (const Json* values = find(line, "values")) put_properties(*session, *values);
  start(std::move(session));
  answer["ok"] = true;
}

void Interpreter::set_connection(const Json& line, Json& answer) {
  const std::string& of = text_member(line, "of");
  const std::string& is = text_member(line, "is");
  if (of != name_of(ado::Road::bill) && of != name_of(ado::Road::session)) refuse(error::type_mismatch, of);
  if (is != "open" && is != "closed" && is != "unset") refuse(error::type_mismatch, is);
  Way& way = of == name_of(ado::Road::session) ? sessions_ : bills_;
  way.connection->set_closed(is == "closed");
  way.set = is != "unset";
  for (const auto& [name, object] : objects_) {
    if (&way_of(*object) == &way) connect(*object);
  }
  if (&way == &sessions_) start(session_);
  answer["ok"] = true;
}

void Interpreter::run_transaction(const Json& line, Json& answer) {
  const std::string& is = text_member(line, "is");
  if (is == "begin") {
    database_->BeginTrans();
  } else if (is == "commit") {
    database_->CommitTrans();
  } else if (is == "rollback") {
    database_->RollbackTrans();
  } else {
    refuse(error::type_mismatch, is);
  }
  answer["ok"] = true;
}

bool Interpreter::roll_back_open_transaction() {
  try {
    database_->RollbackTrans();
    return true;
  } catch (const ado::RuntimeError& failure) {
    // Where the rollback failed, the connection takes it back when it goes.
    return failure.number() != error::no_transaction;
  }
}

void Interpreter::rehearse_failure(const Json& line, Json& answer) {
  Rehearsal rehearsal;
  if (find(line, "at")) rehearsal.at = long_member(line, "at");
  if (rehearsal.at < 1) refuse(error::type_mismatch, "at");
  const std::string of = text_member(line, "of", "any");
  if (of == name_of(ado::Road::bill)) {
    rehearsal.of = ado::Road::bill;
  } else if (of == name_of(ado::Road::session)) {
    rehearsal.of = ado::Road::session;
  } else if (of != "any") {
    refuse(error::type_mismatch, of);
  }
  rehearsal.number = long_member(line, "number");
  rehearsal.text = text_member(line, "text", ado::error_text(rehearsal.number));
  trace_->rehearse(std::move(rehearsal));
  answer["ok"] = true;
}

}  // namespace brunvik::host
