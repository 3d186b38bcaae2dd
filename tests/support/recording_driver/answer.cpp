#include "tests/support/recording_driver/answer.h"

#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace brunvik::test {

namespace {

constexpr int rows = 3;

struct Column {
  const char* name;
  SQLSMALLINT type;
  SQLULEN size;
};

constexpr std::array<Column, Answer::columns> described{Column{"Id", SQL_WVARCHAR, 190},
                                                        {"Remarks", SQL_WVARCHAR, 0},
                                                        {"Number", SQL_INTEGER, 10},
                                                        {"WName", SQL_WVARCHAR, 500}};

}  // namespace

std::string text_in(int row, SQLUSMALLINT column) {
  const std::string number = std::to_string(row);
  if (column == 1) return "B" + number;
  if (column == 3) return number;
  if (column == 4) return "东仓" + number;
  std::string remarks = number;
  for (int time = 1; time < row; ++time) remarks.append(3'000, 'x');
  return remarks;
}

void Answer::describe(SQLUSMALLINT number, std::string& name, SQLSMALLINT& type, SQLULEN& size) const {
  const Column& column = described.at(number - 1U);
  name = column.name;
  type = column.type;
  size = column.size;
}

void Answer::bind(SQLUSMALLINT number, SQLSMALLINT form, SQLPOINTER place, SQLLEN room, SQLLEN* length) {
  places_.at(number - 1U) = {form, place, room, length};
}

void Answer::close() {
  row_ = 0;
  asked_ = 0;
}

SQLUSMALLINT Answer::last_bound() const {
  SQLUSMALLINT last = 0;
  for (SQLUSMALLINT number = 1; number <= columns; ++number) {
    if (places_.at(number - 1U).place) last = number;
  }
  return last;
}

SQLRETURN Answer::put(std::string_view text, const Place& into) const {
  *into.length = static_cast<SQLLEN>(text.size());
  if (into.form == SQL_C_SBIGINT) {
    const std::int64_t number = std::stoll(std::string(text));
    std::memcpy(into.place, &number, sizeof number);
    return SQL_SUCCESS;
  }
  const std::size_t got = std::min(text.size(), static_cast<std::size_t>(into.room) - 1);
  std::memcpy(into.place, text.data(), got);
  static_cast<char*>(into.place)[got] = '\0';
  return got < text.size() ? SQL_SUCCESS_WITH_INFO : SQL_SUCCESS;
}

SQLRETURN Answer::fetch() {
  if (row_ == rows) return SQL_NO_DATA;
  ++row_;
  asked_ = 0;
  for (SQLUSMALLINT number = 1; number <= columns; ++number) {
    const Place& place = places_.at(number - 1U);
    if (place.place) put(text_in(row_, number), place);
  }
  return SQL_SUCCESS;
}

SQLRETURN Answer::value(SQLUSMALLINT number, SQLSMALLINT form, SQLPOINTER place, SQLLEN room, SQLLEN* length) {
  if (number <= last_bound() || number < asked_) return SQL_ERROR;
  if (number > asked_) given_ = 0;
  asked_ = number;
  const std::string text = text_in(row_, number);
  if (given_ > 0 && given_ == text.size()) return SQL_NO_DATA;
  const SQLRETURN result = put(std::string_view(text).substr(given_), {form, place, room, length});
  given_ += std::min(text.size() - given_, static_cast<std::size_t>(room) - 1);
  return result;
}

}  // namespace brunvik::test
