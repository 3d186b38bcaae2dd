// The last failure: what stopped the last call on this thread, or what went wrong in it on the way.
//
// A verb's result is a number alone, and a silent document tells nobody more. What the number stands for is kept here
// until the next call:
//
//   if (bill.Save() != 0) log(last_failure().text, last_failure().statement);
#pragma once

#include <cstdint>
#include <string>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/types.h"

namespace brunvik {

struct Failure {
  // 0 where nothing failed.
  Long number = 0;
  // The engine's own text, or that of the run-time error.
  std::string text;
  // The statement that failed or could not be sent, empty where none was at work.
  std::string statement;
};

// The last failure of the last call on this thread, as the session belongs to a thread. A call is a verb or a module
// procedure that a host calls; what it calls on its way belongs to it, so the failed audit of a voucher is told also
// where the bill's audit goes on and gives 0. A verb that ends with a result of its own, such as -1 for a bill without
// a number, has not failed. The reference is good until the next call on this thread.
const Failure& last_failure() noexcept;

namespace detail {

struct CallState {
  std::uint32_t depth = 0;
  bool failed = false;
};

// Known here so that a call which doesn't fail costs two additions.
inline constinit thread_local CallState call_state;

void forget_failure() noexcept;
void keep_failure(const ado::SeenError& error) noexcept;

// Stands in every verb and procedure; the outermost one begins a call.
class WithinCall {
 public:
  WithinCall() noexcept {
    if (call_state.depth++ == 0 && call_state.failed) forget_failure();
  }
  ~WithinCall() { --call_state.depth; }
  WithinCall(const WithinCall&) = delete;
  WithinCall& operator=(const WithinCall&) = delete;
};

}  // namespace detail

}  // namespace brunvik
