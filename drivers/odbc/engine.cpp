#include "drivers/odbc/engine.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "drivers/odbc/address.h"

namespace brunvik::odbc {

namespace {

constexpr int times_after_a_deadlock = 5;

using Clock = std::chrono::steady_clock;
using State = dialects::HostTransaction::State;

}  // namespace

Engine::Engine(const std::string& address, Options options)
    : servers_(servers_of(address)), options_(std::move(options)) {
  if (servers_.empty()) {
    throw ado::RuntimeError(ado::error::provider_failed, "There is no connection string.");
  }
  std::string reason;
  // All servers together have the time of one, so that several silent ones are not waited for one after the other.
  const auto count = static_cast<std::chrono::seconds::rep>(servers_.size());
  server_ = first_that_answers(reason, std::max(options_.answer_timeout / count, std::chrono::seconds(1)));
  if (!server_) throw ado::RuntimeError(ado::error::provider_failed, reason);
  engine_name_ = server_->name();
}

std::unique_ptr<Server> Engine::first_that_answers(std::string& reason, std::chrono::seconds time_to_open) const {
  reason.clear();
  for (const std::string& connection_string : servers_) {
    const auto shown = [&](const std::string& text) {
      return without_password_of(with_password(connection_string, options_.password), text);
    };
    try {
      auto server = connect(connection_string, options_, time_to_open);
      if (!options_.known_tables.empty()) expect_known_tables(*server);
      return server;
    } catch (const Failure& failure) {
      if (reason.empty()) reason = shown(failure.diagnosis().text);
    } catch (const ado::RuntimeError& failure) {
      throw ado::RuntimeError(failure.number(), shown(failure.description()), failure.statement());
    }
  }
  return nullptr;
}

void Engine::expect_known_tables(Server& server) const {
  ado::Recordset tables = server.tables();
  if (tables.at_end()) return;
  for (; !tables.at_end(); tables.MoveNext()) {
    const std::string name = tables.value("name").as_text();
    if (std::any_of(options_.known_tables.begin(), options_.known_tables.end(),
                    [&name](const std::string& known) { return ado::same_name(known, name); })) {
      return;
    }
  }
  throw ado::RuntimeError(ado::error::provider_failed,
                          "There is none of the books' tables in the database, which stays as it is.");
}

Server& Engine::server(std::string_view statement) {
  const auto end = Clock::now() + options_.reopen_timeout;
  std::string reason;
  while (!server_) {
    constexpr std::chrono::seconds time_to_open{2};
    server_ = first_that_answers(reason, time_to_open);
    if (server_) break;
    if (Clock::now() >= end) throw ado::RuntimeError(ado::error::provider_failed, reason, std::string(statement));
    constexpr std::chrono::milliseconds between_two_rounds{100};
    std::this_thread::sleep_for(between_two_rounds);
  }
  return *server_;
}

void Engine::failed(const Diagnosis& diagnosis, std::string_view statement) {
  if (diagnosis.may_be_cut_off() && server_->is_cut_off()) {
    failed(cut_off("The server is a node that has lost its cluster; " + diagnosis.text), statement);
  }
  if (diagnosis.is_lost()) server_.reset();
  if (diagnosis.did_nothing() && transaction_.state() == State::open) let_others_begin();
  if (diagnosis.is_lost() || diagnosis.did_nothing()) transaction_.lost(diagnosis.text);
  raise_failure(diagnosis, statement);
}

// The engine has rolled the transaction back; what it held for others to wait for goes with this.
void Engine::let_others_begin() {
  try {
    server_->roll_back();
  } catch (const Failure&) {
    server_.reset();
  }
}

void Engine::wait_a_moment(int time) {
  std::uniform_int_distribution<int> milliseconds(1, 10 * (time + 1));
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds(random_)));
}

ado::Recordset Engine::execute(std::string_view statement) {
  transaction_.expect_not_lost(statement);
  const bool is_alone = transaction_.state() == State::none;
  for (int time = 0;; ++time) {
    try {
      return server(statement).execute(statement);
    } catch (const Failure& failure) {
      const bool again = failure.diagnosis().did_nothing() && is_alone && time < times_after_a_deadlock;
      if (!again) failed(failure.diagnosis(), statement);
    }
    wait_a_moment(time);
  }
}

void Engine::begin() {
  transaction_.expect_none();
  try {
    server({}).begin();
    transaction_.opened();
  } catch (const Failure& failure) {
    failed(failure.diagnosis(), {});
  }
}

void Engine::commit() {
  transaction_.expect_to_commit();
  try {
    server({}).commit();
    transaction_.ended();
  } catch (const Failure& failure) {
    const Diagnosis& diagnosis = failure.diagnosis();
    if (diagnosis.is_lost()) {
      server_.reset();
      transaction_.ended();
      throw ado::RuntimeError(ado::error::provider_failed,
                              diagnosis.text +
                                  "; the connection was lost in the commit, and nobody knows whether the "
                                  "transaction is in the books");
    }
    if (diagnosis.did_nothing()) let_others_begin();
    try {
      raise_failure(diagnosis, {});
    } catch (const ado::RuntimeError& refused) {
      transaction_.commit_failed(refused, !diagnosis.did_nothing());
    }
  }
}

void Engine::roll_back() {
  if (!transaction_.expect_to_roll_back()) return;
  try {
    server({}).roll_back();
    transaction_.ended();
  } catch (const Failure& failure) {
    // A server that has lost the connection rolls back by itself.
    transaction_.ended();
    if (failure.diagnosis().is_lost()) {
      server_.reset();
      return;
    }
    raise_failure(failure.diagnosis(), {});
  }
}

bool Engine::has_tables() {
  try {
    return !server({}).tables().at_end();
  } catch (const Failure& failure) {
    failed(failure.diagnosis(), {});
  }
}

}  // namespace brunvik::odbc
