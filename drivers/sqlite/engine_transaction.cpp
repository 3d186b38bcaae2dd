// The host's transaction on an open SQLite database.
#include <string>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "drivers/sqlite/engine.h"

namespace brunvik::sqlite {

namespace {

// The text that ends a transaction from outside, and not one of its savepoints.
bool is_rollback(std::string_view text) {
  constexpr std::string_view around = " \t\r\n;";
  const auto first = text.find_first_not_of(around);
  if (first == std::string_view::npos) return false;
  const std::string_view words = text.substr(first, text.find_last_not_of(around) - first + 1);
  return ado::same_name(words, "rollback") || ado::same_name(words, "rollback transaction");
}

}  // namespace

ado::Recordset Engine::execute(std::string_view text) {
  using State = dialects::HostTransaction::State;
  if (transaction_.state() == State::lost) {
    if (!is_rollback(text)) transaction_.expect_not_lost(text);
    transaction_.ended();
    return {};
  }
  try {
    ado::Recordset result = carry_out(text);
    if (in_transaction()) {
      transaction_.opened();
    } else {
      transaction_.ended();
    }
    return result;
  } catch (...) {
    see_what_failed();
    throw;
  }
}

// A statement that failed and took the transaction with it: whether it was the host's insert or its own text `commit`,
// nothing of the transaction is in the books.
void Engine::see_what_failed() noexcept {
  if (in_transaction()) return;
  ado::see_current_error([this](const ado::SeenError& failure) { transaction_.lost(failure.text); });
}

void Engine::begin() {
  transaction_.expect_none();
  execute("begin immediate");
}

void Engine::commit() {
  transaction_.expect_to_commit();
  try {
    execute_as_it_stands("commit");
    transaction_.ended();
  } catch (const ado::RuntimeError& failure) {
    transaction_.commit_failed(failure, in_transaction());
  }
}

void Engine::roll_back() {
  if (!transaction_.expect_to_roll_back()) return;
  try {
    execute_as_it_stands("rollback");
    transaction_.ended();
  } catch (const ado::RuntimeError&) {
    if (!in_transaction()) transaction_.ended();
    throw;
  }
}

}  // namespace brunvik::sqlite
