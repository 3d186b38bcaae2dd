#include "host/interpreter.h"

#include <array>
#include <nlohmann/json.hpp>
#include <utility>

#include "brunvik/ado/errors.h"
#include "brunvik/automation/automation.h"
#include "host/refusals.h"
#include "host/values.h"

namespace brunvik::host {

namespace {

namespace error = ado::error;

Json error_json(Long number, std::string_view description) {
  return {{"number", number}, {"description", description}};
}

}  // namespace

Value Interpreter::Way::reference() const { return set ? Value(ado::ObjectReference(connection)) : Value(ado::Null()); }

Interpreter::Interpreter(ado::ConnectionReference database, const Settings& settings)
    : database_(std::move(database)), tracing_(settings.trace), trace_(std::make_shared<Trace>()) {
  bills_.connection = std::make_shared<TracedConnection>(database_, ado::Road::bill, trace_);
  sessions_.connection = std::make_shared<TracedConnection>(database_, ado::Road::session, trace_);
  ado::set_notice([this](const ado::Notice& notice) { notices_.push_back(notice); });
  ado::set_statement_hook({});
  if (tracing_) ado::set_statement_hook([this](const ado::SentStatement& sent) { trace_->record(sent); });
  auto session = automation::create(session_class);
  automation::put(*session, "DATAType", settings.dialect);
  automation::put(*session, "OperatorId", settings.operator_id);
  start(std::move(session));
}

Interpreter::~Interpreter() {
  ado::set_notice({});
  ado::set_statement_hook({});
}

std::string Interpreter::answer(std::string_view text) {
  ++lines_;
  Json line;
  try {
    line = parse_object(text);
  } catch (const std::runtime_error& reason) {
    throw UnreadableLine(lines_, reason.what());
  }

  Json answer{{"line", lines_}};
  const auto refused = [&](Long number, std::string_view description) {
    ++refused_;
    answer = {{"line", lines_}, {"error", error_json(number, description)}};
  };
  trace_->take();
  notices_.clear();
  try {
    const Command command = command_named(text_member(line, "do"));
    (this->*command)(line, answer);
  } catch (const ado::RuntimeError& failure) {
    refused(failure.number(), failure.description());
  } catch (const std::bad_alloc&) {
    refused(error::out_of_memory, ado::error_text(error::out_of_memory));
  } catch (const std::exception& failure) {
    refused(error::internal, failure.what());
  }
  return one_line(answer);
}

Interpreter::Command Interpreter::command_named(std::string_view name) {
  struct Entry {
    std::string_view name;
    Command command;
  };
  static constexpr std::array commands{
      Entry{"new", &Interpreter::make_object},
      Entry{"put", &Interpreter::put},
      Entry{"get", &Interpreter::get},
      Entry{"add", &Interpreter::add},
      Entry{"edit", &Interpreter::edit},
      Entry{"remove", &Interpreter::remove},
      Entry{"clear", &Interpreter::clear},
      Entry{"rows", &Interpreter::show_rows},
      Entry{"call", &Interpreter::call},
      Entry{"proc", &Interpreter::call_procedure},
      Entry{"sql", &Interpreter::run_statement},
      Entry{"session", &Interpreter::start_session},
      Entry{"connection", &Interpreter::set_connection},
      Entry{"fail", &Interpreter::rehearse_failure},
      Entry{"transaction", &Interpreter::run_transaction},
  };
  std::vector<std::string_view> names;
  for (const Entry& entry : commands) {
    if (entry.name == name) return entry.command;
    names.push_back(entry.name);
  }
  refuse(error::no_such_member, name, there_is(names));
}

// The start of a session is handed the session's connection, every document the bills'.
Interpreter::Way& Interpreter::way_of(const PublicObject& object) {
  static const Members& session_members = session_->members();
  return &object.members() == &session_members ? sessions_ : bills_;
}

void Interpreter::connect(PublicObject& object) { automation::put(object, "ADOConn", way_of(object).reference()); }

void Interpreter::start(std::shared_ptr<PublicObject> session) {
  session_ = std::move(session);
  automation::put(*session_, "ADOConn", sessions_.reference());
  std::vector<Value> none;
  automation::call(*session_, "InitClase_PublicVariable", none);
}

}  // namespace brunvik::host
