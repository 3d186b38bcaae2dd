// What a driver keeps of the host's transaction on a connection, and what follows from it for the next call. The engine
// tells how it stands, and the driver hands that on; so every driver answers alike.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/errors.h"

namespace brunvik::dialects {

class HostTransaction {
 public:
  // Lost: the engine has rolled it back by itself, and the host, who doesn't know yet, goes on with its statements.
  enum class State { none, open, lost };

  State state() const noexcept { return state_; }

  // How the transaction stands after a call that was carried out.
  void opened() noexcept { state_ = State::open; }
  void ended() noexcept { state_ = State::none; }

  // The engine gave it up; the reason is the engine's own text. Without an open transaction there is nothing to lose.
  void lost(std::string_view reason) noexcept;

  // In front of each statement: provider_failed where the transaction was lost.
  void expect_not_lost(std::string_view statement) const;

  // In front of a begin: transaction_open where one is open, provider_failed where one was lost.
  void expect_none() const;

  // In front of a commit: no_transaction where none is open; provider_failed where it was lost, which ends it.
  void expect_to_commit();

  // In front of a rollback: no_transaction where none is open. Whether there is anything left for the engine to roll
  // back; a lost transaction has ended with this call.
  bool expect_to_roll_back();

  // The engine refused the commit. Throws the failure with a text that says how the transaction stands.
  [[noreturn]] void commit_failed(const ado::RuntimeError& failure, bool still_open);

 private:
  State state_ = State::none;
  std::string reason_;
};

}  // namespace brunvik::dialects
