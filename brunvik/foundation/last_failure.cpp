#include "brunvik/foundation/last_failure.h"

#include <exception>

namespace brunvik {

namespace {

Failure& kept() noexcept {
  thread_local Failure failure;
  return failure;
}

}  // namespace

const Failure& last_failure() noexcept { return kept(); }

namespace detail {

void forget_failure() noexcept {
  // The room of a long statement goes too.
  kept() = {};
  call_state.failed = false;
}

void keep_failure(const ado::SeenError& error) noexcept {
  Failure& failure = kept();
  failure = {};
  failure.number = error.number;
  call_state.failed = true;
  try {
    failure.text = error.text;
    failure.statement = error.statement;
  } catch (const std::exception&) {
    // Without memory for the words, the number has to do.
  }
}

}  // namespace detail

}  // namespace brunvik
