#include "brunvik/ado/date.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <initializer_list>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/numbers.h"

namespace brunvik::ado {

namespace {

constexpr std::chrono::sys_days zero_day{std::chrono::year{1899} / 12 / 30};
constexpr double seconds_in_day = 86'400;
constexpr double first_day = -657'434;  // 0100-01-01
constexpr double last_day = 2'958'465;  // 9999-12-31

template <class... Numbers>
std::string formatted(const char* format, Numbers... numbers) {
  std::array<char, 32> buffer{};
  const int length = std::snprintf(buffer.data(), buffer.size(), format, numbers...);
  return std::string(buffer.data(), static_cast<std::size_t>(length));
}

class DateText {
 public:
  explicit DateText(std::string_view text) : rest_(text) {}

  bool at_end() const { return rest_.empty(); }
  char next() const { return rest_.empty() ? '\0' : rest_.front(); }

  bool take(char c) {
    if (next() != c) return false;
    rest_.remove_prefix(1);
    return true;
  }

  unsigned number() {
    unsigned value = 0;
    const auto [end, failure] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
    if (failure != std::errc{}) raise(error::type_mismatch);
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }

 private:
  std::string_view rest_;
};

}  // namespace

DateParts parts_of(Date date) {
  if (!(date.days > first_day - 1 && date.days < last_day + 1)) raise(error::overflow);
  double day = std::trunc(date.days);
  double seconds = std::round(std::fabs(date.days - day) * seconds_in_day);
  if (seconds >= seconds_in_day) {
    seconds -= seconds_in_day;
    day += 1;
  }
  if (day > last_day) raise(error::overflow);
  const std::chrono::year_month_day civil{zero_day + std::chrono::days{static_cast<int>(day)}};
  const auto second_of_day = static_cast<unsigned>(seconds);
  return {static_cast<int>(civil.year()),
          static_cast<unsigned>(civil.month()),
          static_cast<unsigned>(civil.day()),
          second_of_day / 3'600,
          second_of_day / 60 % 60,
          second_of_day % 60};
}

Date date_of(const DateParts& parts) {
  const std::chrono::year_month_day civil{std::chrono::year{parts.year}, std::chrono::month{parts.month},
                                          std::chrono::day{parts.day}};
  if (parts.year < 100 || parts.year > 9999 || !civil.ok() || parts.hour > 23 || parts.minute > 59 ||
      parts.second > 59) {
    raise(error::invalid_call);
  }
  const auto day = static_cast<double>((std::chrono::sys_days{civil} - zero_day).count());
  const double time = (parts.hour * 3'600 + parts.minute * 60 + parts.second) / seconds_in_day;
  return {day < 0 ? day - time : day + time};
}

Date parse_date(std::string_view text) {
  DateText rest(trimmed_number(text));
  DateParts parts;
  const auto read_time = [&](unsigned hour) {
    parts.hour = hour;
    if (!rest.take(':')) raise(error::type_mismatch);
    parts.minute = rest.number();
    if (rest.take(':')) parts.second = rest.number();
  };
  const unsigned first = rest.number();
  if (rest.next() == ':') {
    read_time(first);
  } else {
    const char separator = rest.next();
    if ((separator != '-' && separator != '/') || !rest.take(separator)) raise(error::type_mismatch);
    if (first > 9999) raise(error::type_mismatch);
    parts.year = static_cast<int>(first);
    parts.month = rest.number();
    if (!rest.take(separator)) raise(error::type_mismatch);
    parts.day = rest.number();
    if (rest.take(' ')) read_time(rest.number());
  }
  if (!rest.at_end()) raise(error::type_mismatch);
  try {
    return date_of(parts);
  } catch (const RuntimeError&) {
    raise(error::type_mismatch);
  }
}

Date parse_day(std::string_view text) {
  // The text with every run of digits as its length, and / as -: what is allowed is then a short list.
  std::string shape;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t end = std::min(text.find_first_not_of("0123456789", at), text.size());
    if (end > at) {
      shape += std::to_string(end - at);
      at = end - 1;
    } else {
      shape += text[at] == '/' && text.find('-') == std::string_view::npos ? '-' : text[at];
    }
  }
  const std::string_view day = std::string_view(shape).substr(0, shape.find(' '));
  const std::string_view time = std::string_view(shape).substr(day.size());
  const auto is_one_of = [](std::string_view part, std::initializer_list<std::string_view> forms) {
    return std::find(forms.begin(), forms.end(), part) != forms.end();
  };
  if (!is_one_of(day, {"4-1-1", "4-1-2", "4-2-1", "4-2-2"}) ||
      !is_one_of(time, {"", " 1:2", " 2:2", " 1:2:2", " 2:2:2"})) {
    raise(error::type_mismatch);
  }
  return parse_date(text);
}

std::string timestamp_text(Date date) { return day_text(date) + ' ' + time_text(date); }

std::string day_text(Date date) {
  const DateParts parts = parts_of(date);
  return formatted("%04d-%02u-%02u", parts.year, parts.month, parts.day);
}

std::string month_text(Date date) {
  const DateParts parts = parts_of(date);
  return formatted("%04d-%02u", parts.year, parts.month);
}

std::string time_text(Date date) {
  const DateParts parts = parts_of(date);
  return formatted("%02u:%02u:%02u", parts.hour, parts.minute, parts.second);
}

std::string bill_day_text(Date date) {
  const DateParts parts = parts_of(date);
  return formatted("%02d%02u%02u", parts.year % 100, parts.month, parts.day);
}

std::string default_text(Date date) {
  const DateParts parts = parts_of(date);
  const bool zero = std::trunc(date.days) == 0;
  const bool midnight = parts.hour == 0 && parts.minute == 0 && parts.second == 0;
  std::string text;
  if (!zero) text = formatted("%d/%u/%u", parts.year, parts.month, parts.day);
  if (!midnight || zero) {
    if (!text.empty()) text += ' ';
    text += formatted("%u:%02u:%02u", parts.hour, parts.minute, parts.second);
  }
  return text;
}

}  // namespace brunvik::ado
