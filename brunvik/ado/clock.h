// The clock and the notice: the two things beside a database that the library asks of its host.
//
// Both belong to the thread on which they are set, as the session does. A thread that sets none has the system's
// local time, and its notices go to standard error.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "brunvik/ado/date.h"

namespace brunvik::ado {

using Clock = std::function<Date()>;

// An empty clock brings the system's local time back.
void set_clock(Clock clock);
Date now();

// An information message with one OK button, for the person at the host.
struct Notice {
  std::string title;
  std::string text;
};

using NoticeHandler = std::function<void(const Notice&)>;

// An empty handler brings standard error back, a line "提示信息: ..." for each notice, so that none is lost unseen. The
// handler must not throw: what it throws is dropped, since the work behind a notice carries on.
void set_notice(NoticeHandler handler);

// Under the usual title, 提示信息.
void show_notice(std::string_view text) noexcept;
void show_notice(std::string_view title, std::string_view text) noexcept;

}  // namespace brunvik::ado
