#include "drivers/dialects/host_transaction.h"

namespace brunvik::dialects {

namespace {

constexpr std::string_view as_before = ", and the books are as before its begin";

}  // namespace

void HostTransaction::lost(std::string_view reason) noexcept {
  if (state_ != State::open) return;
  state_ = State::lost;
  try {
    reason_ = reason;
  } catch (const std::bad_alloc&) {
    reason_.clear();
  }
}

void HostTransaction::expect_not_lost(std::string_view statement) const {
  if (state_ != State::lost) return;
  throw ado::RuntimeError(ado::error::provider_failed,
                          "The transaction was lost" + std::string(as_before) +
                              "; it has to be rolled back before anything else is done: " + reason_,
                          std::string(statement));
}

void HostTransaction::expect_none() const {
  expect_not_lost({});
  if (state_ == State::open) ado::raise(ado::error::transaction_open);
}

void HostTransaction::expect_to_commit() {
  if (state_ == State::none) ado::raise(ado::error::no_transaction);
  if (state_ == State::open) return;
  ended();
  throw ado::RuntimeError(ado::error::provider_failed,
                          "The transaction was lost" + std::string(as_before) + "; nothing is committed: " + reason_);
}

bool HostTransaction::expect_to_roll_back() {
  if (state_ == State::none) ado::raise(ado::error::no_transaction);
  const bool is_left = state_ == State::open;
  if (!is_left) ended();
  return is_left;
}

void HostTransaction::commit_failed(const ado::RuntimeError& failure, bool still_open) {
  if (!still_open) ended();
  throw ado::RuntimeError(failure.number(),
                          failure.description() + (still_open ? "; the transaction is still open"
                                                              : "; the transaction is over" + std::string(as_before)),
                          failure.statement());
}

}  // namespace brunvik::dialects
