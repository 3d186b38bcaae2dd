#include "brunvik/ado/wire.h"

#include <chrono>
#include <utility>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"

namespace brunvik::ado {

namespace {

constinit thread_local bool watched = false;

StatementHook& the_hook() {
  thread_local StatementHook hook;
  return hook;
}

// Tells the hook of a statement when it is over, however it ends.
class Watch {
 public:
  Watch(Road road, std::string_view text) : road_(road), text_(text), start_(std::chrono::steady_clock::now()) {}

  void over(Long outcome) const noexcept {
    const auto time = std::chrono::steady_clock::now() - start_;
    try {
      the_hook()({road_, text_, std::chrono::duration_cast<std::chrono::microseconds>(time).count(), outcome});
    } catch (...) {
      // A log that fails must not stop the bookkeeping that it watches.
    }
  }

 private:
  Road road_;
  std::string_view text_;
  std::chrono::steady_clock::time_point start_;
};

Recordset send_watched(Connection& connection, std::string_view statement, Road road) {
  const Watch watch(road, statement);
  try {
    Recordset set = connection.Execute(statement);
    watch.over(0);
    return set;
  } catch (...) {
    see_current_error([&](const SeenError& error) { watch.over(error.number); });
    throw;
  }
}

}  // namespace

std::string_view name_of(Road road) noexcept { return road == Road::bill ? "bill" : "session"; }

void set_statement_hook(StatementHook hook) {
  watched = hook != nullptr;
  the_hook() = std::move(hook);
}

Recordset send(Connection& connection, std::string_view statement, Road road) {
  try {
    return watched ? send_watched(connection, statement, road) : connection.Execute(statement);
  } catch (const RuntimeError& failure) {
    // A connection that is closed, and many a host's own, don't say which statement it was.
    if (!failure.statement().empty()) throw;
    throw RuntimeError(failure.number(), failure.description(), std::string(statement));
  }
}

}  // namespace brunvik::ado
