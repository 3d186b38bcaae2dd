#include "host/progress.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>

namespace brunvik::host {

namespace {

// Often enough to be seen moving, seldom enough to cost nothing.
constexpr std::chrono::milliseconds interval{200};

}  // namespace

Progress::Progress() : on_terminal_(isatty(STDERR_FILENO) == 1), shares_terminal_(isatty(STDOUT_FILENO) == 1) {}

Progress::~Progress() {
  if (!on_terminal_) return;
  write(Clock::now());
  fmt::print(stderr, "\n");
}

void Progress::advance(std::size_t verbs) {
  ++lines_;
  verbs_ = verbs;
  if (!on_terminal_) return;
  if (const auto now = Clock::now(); now - last_ >= interval) write(now);
}

void Progress::make_room() {
  if (on_terminal_ && shares_terminal_) fmt::print(stderr, "\r\x1b[K");
}

void Progress::write(Clock::time_point now) {
  last_ = now;
  const double seconds = std::chrono::duration<double>(now - start_).count();
  fmt::print(stderr, "\r\x1b[K{} lines, {:.0f} verbs/s", lines_, static_cast<double>(verbs_) / seconds);
  std::fflush(stderr);
}

}  // namespace brunvik::host
