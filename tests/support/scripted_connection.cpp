#include "tests/support/scripted_connection.h"

#include <algorithm>
#include <utility>

namespace brunvik::test {

ado::Recordset table(std::vector<std::string> names, std::initializer_list<std::vector<ado::Value>> records) {
  std::vector<ado::Value> cells;
  for (const auto& record : records) {
    if (record.size() != names.size()) throw std::logic_error("a record has another count of values than of names");
    cells.insert(cells.end(), record.begin(), record.end());
  }
  return {std::move(names), std::move(cells)};
}

void ScriptedConnection::answer(std::string_view text, ado::Recordset set) {
  answers_.push_back({std::string(text), std::move(set), 0, {}});
}

void ScriptedConnection::fail(std::string_view text, Long number, std::string_view description) {
  answers_.push_back({std::string(text), {}, number, std::string(description)});
}

ado::Recordset ScriptedConnection::Execute(std::string_view CommandText) {
  if (closed) ado::raise(ado::error::object_closed);
  statements.emplace_back(CommandText);
  const auto fitting = std::find_if(answers_.begin(), answers_.end(), [&](const Answer& answer) {
    return CommandText.find(answer.text) != std::string_view::npos;
  });
  if (fitting == answers_.end()) {
    return CommandText.starts_with("select") || CommandText.starts_with("Select") ? table({}) : ado::Recordset();
  }
  const Answer answer = std::move(*fitting);
  answers_.erase(fitting);
  if (answer.failure != 0) throw ado::RuntimeError(answer.failure, answer.description, std::string(CommandText));
  return answer.set;
}

}  // namespace brunvik::test
