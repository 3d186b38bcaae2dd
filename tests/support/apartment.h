// The surroundings of a test: a session of its own, a clock that stands still, and a host that notes every notice.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/clock.h"
#include "brunvik/ado/connection.h"
#include "brunvik/foundation/Brunvik_Variable.h"

namespace brunvik::test {

// Notes the notices as long as it lives.
class NoticeRecorder {
 public:
  NoticeRecorder();
  ~NoticeRecorder();
  NoticeRecorder(const NoticeRecorder&) = delete;
  NoticeRecorder& operator=(const NoticeRecorder&) = delete;

  // Each as "title|text".
  std::vector<std::string> notices;

  // What was noted since it was taken last.
  std::vector<std::string> take();
};

// The clock stands at this time as long as it lives.
class FixedClock {
 public:
  explicit FixedClock(std::string_view time = "2024-03-05 10:00:00");
  ~FixedClock();
  FixedClock(const FixedClock&) = delete;
  FixedClock& operator=(const FixedClock&) = delete;

  void set(std::string_view time);
};

// The session of the thread is this one as long as it lives, and empty before and after.
class Session {
 public:
  Session();
  Session(const ado::ConnectionReference& connection, std::string_view dialect = sql_server_dialect);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
};

}  // namespace brunvik::test
