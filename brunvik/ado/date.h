// Date: a moment as days since 1899-12-30, the time of day as the fraction (in front of that day counted from its
// own midnight, so -1.25 is 06:00 on 1899-12-29).
#pragma once

#include <string>
#include <string_view>

namespace brunvik::ado {

struct Date {
  double days = 0;

  friend bool operator==(Date, Date) = default;
};

struct DateParts {
  int year = 1899;
  unsigned month = 12;
  unsigned day = 30;
  unsigned hour = 0;
  unsigned minute = 0;
  unsigned second = 0;
};

// To the second. Error 6 in front of year 100 or behind year 9999.
DateParts parts_of(Date date);

// Error 5 where the parts name no day or time.
Date date_of(const DateParts& parts);

// Reads "yyyy-MM-dd" or "yyyy/M/d", "HH:mm:ss" (also without seconds) behind it or alone; error 13 for other text.
Date parse_date(std::string_view text);

// Reads a day alone or with a time: "yyyy-M-d" or "yyyy/M/d", then a blank and "H:mm" or "H:mm:ss". Error 13 for any
// other text: blanks around it, a time or a number alone, a year of other than four digits, a day that doesn't exist.
Date parse_day(std::string_view text);

// "2024-03-05 10:00:00", "2024-03-05", "2024-03", "10:00:00", and "240305" as it stands in a bill number.
std::string timestamp_text(Date date);
std::string day_text(Date date);
std::string month_text(Date date);
std::string time_text(Date date);
std::string bill_day_text(Date date);

// "2024/3/5 9:05:00"; midnight leaves the time out, the zero day leaves the day out.
std::string default_text(Date date);

}  // namespace brunvik::ado
