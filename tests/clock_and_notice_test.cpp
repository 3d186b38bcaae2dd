#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "brunvik/ado/clock.h"
#include "tests/support/apartment.h"

namespace brunvik::ado {
namespace {

TEST(Clock, Says_what_the_host_makes_it_say) {
  test::FixedClock clock("2024-03-05 10:00:00");
  EXPECT_EQ(timestamp_text(now()), "2024-03-05 10:00:00");
  clock.set("2024-03-06");
  EXPECT_EQ(timestamp_text(now()), "2024-03-06 00:00:00");
}

TEST(Clock, Is_the_systems_local_time_when_the_host_sets_none) {
  set_clock({});
  std::time_t before = std::time(nullptr);
  std::tm local{};
  localtime_r(&before, &local);
  const Date start = date_of({local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1),
                              static_cast<unsigned>(local.tm_mday), static_cast<unsigned>(local.tm_hour),
                              static_cast<unsigned>(local.tm_min), static_cast<unsigned>(local.tm_sec % 60)});
  EXPECT_LT(std::fabs(now().days - start.days), 5.0 / 86'400);
}

TEST(Clock, Belongs_to_the_thread_that_set_it) {
  test::FixedClock clock("2001-01-01");
  std::string elsewhere;
  std::thread([&] { elsewhere = day_text(now()); }).join();
  EXPECT_NE(elsewhere, "2001-01-01");
  EXPECT_EQ(day_text(now()), "2001-01-01");
}

TEST(Notice, Has_the_usual_title_unless_it_is_given_one) {
  test::NoticeRecorder host;
  show_notice("Save(): 溢出");
  show_notice("错误信息", "GetKeyValue():类型不匹配");
  EXPECT_EQ(host.notices, (std::vector<std::string>{"提示信息|Save(): 溢出", "错误信息|GetKeyValue():类型不匹配"}));
}

TEST(Notice, Goes_to_standard_error_without_a_host_that_listens) {
  set_notice({});
  testing::internal::CaptureStderr();
  show_notice("Save(): 溢出");
  show_notice("错误信息", "GetKeyValue():类型不匹配");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "提示信息: Save(): 溢出\n错误信息: GetKeyValue():类型不匹配\n");
}

TEST(Notice, That_a_host_takes_does_not_go_to_standard_error) {
  test::NoticeRecorder host;
  testing::internal::CaptureStderr();
  show_notice("Save(): 溢出");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Notice, Whose_handler_fails_does_not_stop_the_work_behind_it) {
  set_notice([](const Notice&) { throw std::runtime_error("no screen"); });
  show_notice("text");
  set_notice([](const Notice&) { throw 7; });
  show_notice("text");
  set_notice({});
}

TEST(Notice, Belongs_to_the_thread_that_set_its_handler) {
  test::NoticeRecorder host;
  testing::internal::CaptureStderr();
  std::thread([] { show_notice("elsewhere"); }).join();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "提示信息: elsewhere\n");
  EXPECT_TRUE(host.notices.empty());
}

}  // namespace
}  // namespace brunvik::ado
