#include "brunvik/ado/date.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "tests/support/error_number.h"

namespace brunvik::ado {
namespace {

using test::error_number;

TEST(Day, Is_read_with_either_separator_alone_or_with_a_time) {
  EXPECT_EQ(timestamp_text(parse_day("2024-03-05")), "2024-03-05 00:00:00");
  EXPECT_EQ(timestamp_text(parse_day("2024/3/5")), "2024-03-05 00:00:00");
  EXPECT_EQ(timestamp_text(parse_day("2024-3-05 9:05")), "2024-03-05 09:05:00");
  EXPECT_EQ(timestamp_text(parse_day("2024/12/31 23:59:59")), "2024-12-31 23:59:59");
}

TEST(Day, Is_nothing_but_a_whole_date_that_exists) {
  for (const char* text : {"", " ", "10:00", "45356", "24-03-05", "02024-03-05", "2024-03", "2024-03-05 ",
                           " 2024-03-05", "2024-03/05", "2024.03.05", "2024-003-05", "2024-02-30", "2024-03-05 24:00",
                           "2024-03-05 9:5", "2024-03-05  9:05", "2024-03-05T09:05", "2024-03-05 9", "二〇二四"}) {
    EXPECT_EQ(error_number([&] { parse_day(text); }), 13) << '"' << text << '"';
  }
}

TEST(Date, Counts_days_from_the_30th_of_December_1899) {
  EXPECT_EQ(date_of({1899, 12, 30}).days, 0);
  EXPECT_EQ(date_of({1899, 12, 31}).days, 1);
  EXPECT_EQ(date_of({1900, 1, 1}).days, 2);
  EXPECT_EQ(date_of({1900, 3, 1}).days, 61);
  EXPECT_EQ(date_of({2024, 3, 5}).days, 45356);
  EXPECT_EQ(date_of({2024, 3, 5, 12, 0, 0}).days, 45356.5);
  EXPECT_EQ(date_of({2024, 3, 5, 18, 0, 0}).days, 45356.75);
}

TEST(Date, In_front_of_the_zero_day_the_time_counts_away_from_midnight) {
  EXPECT_EQ(date_of({1899, 12, 29, 6, 0, 0}).days, -1.25);
  const DateParts parts = parts_of({-1.25});
  EXPECT_EQ(parts.day, 29U);
  EXPECT_EQ(parts.hour, 6U);
}

TEST(Date, Every_second_of_a_day_comes_back) {
  for (unsigned second = 0; second < 86'400; second += 7) {
    const DateParts parts{2024, 2, 29, second / 3600, second / 60 % 60, second % 60};
    const DateParts back = parts_of(date_of(parts));
    ASSERT_EQ(back.day, 29U);
    ASSERT_EQ(back.hour * 3600 + back.minute * 60 + back.second, second);
  }
}

TEST(Date, A_moment_just_before_midnight_is_the_next_day) {
  const DateParts parts = parts_of({45355.999999999});
  EXPECT_EQ(parts.day, 5U);
  EXPECT_EQ(parts.hour, 0U);
  EXPECT_EQ(parts.second, 0U);
}

TEST(Date, Has_the_years_100_to_9999) {
  EXPECT_EQ(parts_of(date_of({100, 1, 1})).year, 100);
  EXPECT_EQ(parts_of(date_of({9999, 12, 31, 23, 59, 59})).year, 9999);
  EXPECT_EQ(error_number([] { parts_of({-657'500}); }), 6);
  EXPECT_EQ(error_number([] { parts_of({2'958'466}); }), 6);
  EXPECT_EQ(error_number([] { parts_of({std::nan("")}); }), 6);
}

TEST(Date, A_moment_that_rounds_out_of_the_last_day_is_outside_of_the_calendar) {
  EXPECT_EQ(error_number([] { parts_of({2'958'465.9999999}); }), 6);
}

TEST(Date, Parts_that_name_no_moment_are_error_5) {
  EXPECT_EQ(error_number([] { date_of({2023, 2, 29}); }), 5);
  EXPECT_EQ(error_number([] { date_of({2024, 13, 1}); }), 5);
  EXPECT_EQ(error_number([] { date_of({2024, 0, 1}); }), 5);
  EXPECT_EQ(error_number([] { date_of({99, 1, 1}); }), 5);
  EXPECT_EQ(error_number([] { date_of({10000, 1, 1}); }), 5);
  EXPECT_EQ(error_number([] { date_of({2024, 1, 1, 24, 0, 0}); }), 5);
  EXPECT_EQ(error_number([] { date_of({2024, 1, 1, 0, 60, 0}); }), 5);
  EXPECT_EQ(error_number([] { date_of({2024, 1, 1, 0, 0, 60}); }), 5);
}

TEST(Date, Is_read_in_the_forms_that_people_write) {
  const Date morning = date_of({2024, 3, 5, 9, 5, 0});
  EXPECT_EQ(parse_date("2024-03-05 09:05:00"), morning);
  EXPECT_EQ(parse_date("2024/3/5 9:05:00"), morning);
  EXPECT_EQ(parse_date("2024-3-5 9:05"), morning);
  EXPECT_EQ(parse_date(" 2024-03-05 09:05:00 "), morning);
  EXPECT_EQ(parse_date("2024-03-05"), date_of({2024, 3, 5}));
  EXPECT_EQ(parse_date("18:00").days, 0.75);
  EXPECT_EQ(parse_date("0:00:00").days, 0);
}

TEST(Date, Text_that_is_no_date_is_error_13) {
  for (const char* text :
       {"", " ", "x", "2024", "2024-03", "2024-13-01", "2023-02-29", "2024-03-05x", "2024-03/05", "2024-03-05 10",
        "2024-03-05 25:00", "10:60", "5.3.2024", "2024-03-05T10:00:00", "99999-01-01", "0099-01-01"}) {
    EXPECT_EQ(error_number([&] { parse_date(text); }), 13) << text;
  }
}

TEST(Date, Is_written_in_the_fixed_forms) {
  const Date morning = date_of({2024, 3, 5, 9, 5, 7});
  EXPECT_EQ(timestamp_text(morning), "2024-03-05 09:05:07");
  EXPECT_EQ(day_text(morning), "2024-03-05");
  EXPECT_EQ(month_text(morning), "2024-03");
  EXPECT_EQ(time_text(morning), "09:05:07");
  EXPECT_EQ(time_text(date_of({2024, 3, 5, 21, 0, 0})), "21:00:00");
  EXPECT_EQ(bill_day_text(morning), "240305");
  EXPECT_EQ(bill_day_text(date_of({2009, 12, 31})), "091231");
}

TEST(Date, Has_a_default_text_without_leading_zeros) {
  EXPECT_EQ(default_text(date_of({2024, 3, 5, 9, 5, 7})), "2024/3/5 9:05:07");
  EXPECT_EQ(default_text(date_of({1900, 12, 31, 23, 0, 0})), "1900/12/31 23:00:00");
}

TEST(Date, Its_default_text_leaves_out_midnight_and_the_zero_day) {
  EXPECT_EQ(default_text(date_of({2024, 3, 5})), "2024/3/5");
  EXPECT_EQ(default_text({0.75}), "18:00:00");
  EXPECT_EQ(default_text({0}), "0:00:00");
  EXPECT_EQ(default_text({1}), "1899/12/31");
}

}  // namespace
}  // namespace brunvik::ado
