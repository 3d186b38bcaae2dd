#include "tests/support/apartment.h"

#include <utility>

#include "brunvik/stock/InitBrunvikVariable.h"

namespace brunvik::test {

NoticeRecorder::NoticeRecorder() {
  ado::set_notice([this](const ado::Notice& notice) { notices.push_back(notice.title + "|" + notice.text); });
}

NoticeRecorder::~NoticeRecorder() { ado::set_notice({}); }

std::vector<std::string> NoticeRecorder::take() { return std::exchange(notices, {}); }

FixedClock::FixedClock(std::string_view time) { set(time); }

FixedClock::~FixedClock() { ado::set_clock({}); }

void FixedClock::set(std::string_view time) {
  ado::set_clock([moment = ado::parse_date(time)] { return moment; });
}

Session::Session() { session() = {}; }

Session::Session(const ado::ConnectionReference& connection, std::string_view dialect) {
  InitBrunvikVariable start;
  start.ADOConn = connection;
  start.DATAType = dialect;
  start.OperatorId = "u1";
  start.InitClase_PublicVariable();
}

Session::~Session() { session() = {}; }

}  // namespace brunvik::test
