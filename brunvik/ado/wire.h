// The wire: each statement on its way to a database, for a host that wants to watch.
//
//   ado::set_statement_hook([](const ado::SentStatement& sent) {
//     if (sent.microseconds > 100'000) std::clog << name_of(sent.road) << ": " << sent.text << '\n';
//   });
//
// The hook belongs to the thread on which it is set, as the clock and the notice do.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "brunvik/ado/types.h"

namespace brunvik::ado {

// A bill's own statements go over the bill's connection, those of the module procedures and of the stock poster over
// the session's. The two may be one connection, and still are two roads.
enum class Road { bill, session };

// "bill", "session".
std::string_view name_of(Road road) noexcept;

struct SentStatement {
  Road road;
  // Exactly as it was handed to the connection; good while the hook is at work.
  std::string_view text;
  // From handing it over to having its answer.
  std::int64_t microseconds;
  // 0, or the number of the error with which the connection refused it.
  Long outcome;
};

using StatementHook = std::function<void(const SentStatement&)>;

// Calls the hook behind each statement that the library hands to a connection, in their order. What a host sends
// itself isn't seen, nor what finds no connection to be handed to. An empty hook ends the watch, and then no clock is
// read. The hook must not throw: what it throws is dropped, since the statement has been carried out.
void set_statement_hook(StatementHook hook);

}  // namespace brunvik::ado
