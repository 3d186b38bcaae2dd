#include "brunvik/ado/clock.h"

#include <cstdio>
#include <ctime>
#include <utility>

namespace brunvik::ado {

namespace {

thread_local Clock the_clock;
thread_local NoticeHandler the_handler;

Date system_time() {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  return date_of({local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1), static_cast<unsigned>(local.tm_mday),
                  static_cast<unsigned>(local.tm_hour), static_cast<unsigned>(local.tm_min),
                  static_cast<unsigned>(local.tm_sec < 60 ? local.tm_sec : 59)});
}

}  // namespace

void set_clock(Clock clock) { the_clock = std::move(clock); }

Date now() { return the_clock ? the_clock() : system_time(); }

void set_notice(NoticeHandler handler) { the_handler = std::move(handler); }

void show_notice(std::string_view text) noexcept { show_notice("提示信息", text); }

void show_notice(std::string_view title, std::string_view text) noexcept {
  try {
    if (!the_handler) {
      const std::string line = std::string(title).append(": ").append(text).append("\n");
      std::fwrite(line.data(), 1, line.size(), stderr);
      return;
    }
    the_handler({std::string(title), std::string(text)});
  } catch (...) {
    // A message box that fails must not stop the bookkeeping behind it.
  }
}

}  // namespace brunvik::ado
