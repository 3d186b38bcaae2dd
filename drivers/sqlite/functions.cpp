#include "drivers/sqlite/functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

#include "brunvik/ado/characters.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/money.h"
#include "brunvik/ado/names.h"
#include "brunvik/ado/numbers.h"
#include "drivers/sqlite/failure.h"
#include "drivers/sqlite/pattern.h"
#include "drivers/sqlite/rounding.h"

namespace brunvik::sqlite {

namespace {

std::string_view text_of(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

void fail(sqlite3_context* context, const char* text, int code) {
  sqlite3_result_error(context, text, -1);
  sqlite3_result_error_code(context, code);
}

void give_amount(sqlite3_context* context, std::int64_t count) {
  if (count % ado::Money::scale == 0) {
    sqlite3_result_int64(context, count / ado::Money::scale);
  } else {
    sqlite3_result_double(context, double_of_amount(count));
  }
}

void money(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_value* const value = arguments[0];
  // What is no number stays as it is, and the column refuses it.
  const int type = sqlite3_value_numeric_type(value);
  if (type != SQLITE_INTEGER && type != SQLITE_FLOAT) return sqlite3_result_value(context, value);
  if (const Amount amount = amount_of(sqlite3_value_double(value))) return give_amount(context, *amount);
  fail(context, "The amount is too large to be kept exactly.", SQLITE_CONSTRAINT_FUNCTION);
}

void single(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_value* const value = arguments[0];
  const int type = sqlite3_value_numeric_type(value);
  if (type != SQLITE_INTEGER && type != SQLITE_FLOAT) return sqlite3_result_value(context, value);
  const double rounded = single_of(sqlite3_value_double(value));
  if (std::isfinite(rounded)) return sqlite3_result_double(context, rounded);
  fail(context, "The number is too large for a single.", SQLITE_CONSTRAINT_FUNCTION);
}

// The number that a value is or that its text names; empty after an error or for null.
std::optional<double> number(sqlite3_context* context, sqlite3_value* value) {
  if (sqlite3_value_type(value) == SQLITE_NULL) return {};
  if (sqlite3_value_type(value) != SQLITE_TEXT) return sqlite3_value_double(value);
  try {
    return ado::parse_double(text_of(value));
  } catch (const ado::RuntimeError&) {
    const std::string text = "The text '" + std::string(text_of(value)) + "' is no number.";
    fail(context, text.c_str(), SQLITE_MISMATCH);
    return {};
  }
}

void give_long(sqlite3_context* context, double value) {
  if (std::fabs(value) < 0x1p31 || value == -0x1p31) {
    return sqlite3_result_int64(context, static_cast<std::int64_t>(value));
  }
  fail(context, "The number has no place in 32 bits.", SQLITE_MISMATCH);
}

void whole(sqlite3_context* context, int, sqlite3_value** arguments) {
  const auto value = number(context, arguments[0]);
  if (!value) return;
  if (sqlite3_value_type(arguments[0]) == SQLITE_TEXT && std::trunc(*value) != *value) {
    return fail(context, "The text is no whole number.", SQLITE_MISMATCH);
  }
  give_long(context, std::trunc(*value));
}

void rounded_long(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (const auto value = number(context, arguments[0])) give_long(context, std::nearbyint(*value));
}

void regexp(sqlite3_context* context, int, sqlite3_value** arguments) {
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL) return;
  sqlite3_result_int(context, matches(text_of(arguments[0]), text_of(arguments[1])) ? 1 : 0);
}

// The engine lends the space for it, cleared.
struct Sum {
  bool any;
  bool too_large;
  std::int64_t count;
};

void add_to_sum(sqlite3_context* context, int, sqlite3_value** arguments) {
  auto* const sum = static_cast<Sum*>(sqlite3_aggregate_context(context, sizeof(Sum)));
  if (!sum) return sqlite3_result_error_nomem(context);
  if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) return;
  sum->any = true;
  const Amount amount = amount_of(sqlite3_value_double(arguments[0]));
  if (!amount || __builtin_add_overflow(sum->count, *amount, &sum->count)) sum->too_large = true;
}

void give_sum(sqlite3_context* context) {
  const auto* const sum = static_cast<const Sum*>(sqlite3_aggregate_context(context, 0));
  if (!sum || !sum->any) return;
  if (sum->too_large) return fail(context, "The sum is too large for money.", SQLITE_CONSTRAINT_FUNCTION);
  give_amount(context, sum->count);
}

std::size_t without_trailing_blanks(const char* text, std::size_t length) noexcept {
  while (length != 0 && text[length - 1] == ' ') --length;
  return length;
}

// Letters of ASCII in the order of the small ones, as the engine has them; all others in that of the capital ones.
char32_t without_case(char32_t character) noexcept {
  const char32_t capital = ado::upper_case(character);
  return capital < 0x80 ? static_cast<char32_t>(ado::lower(static_cast<char>(capital))) : capital;
}

int compare_characters(std::string_view left, std::string_view right) noexcept {
  while (!left.empty() && !right.empty()) {
    const char32_t left_character = without_case(ado::take_character(left));
    const char32_t right_character = without_case(ado::take_character(right));
    if (left_character != right_character) return left_character < right_character ? -1 : 1;
  }
  return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

// The engine's own NOCASE, but for trailing blanks and for letters beyond ASCII: statements that the library puts in
// upper case must find the keys that hold such letters. An index is in the same order for both as long as no key ends
// in a blank or holds a small letter beyond ASCII; Chinese characters have no case.
int compare(void*, int left_length, const void* left_text, int right_length, const void* right_text) noexcept {
  const auto* const left = static_cast<const char*>(left_text);
  const auto* const right = static_cast<const char*>(right_text);
  const std::size_t left_size = without_trailing_blanks(left, static_cast<std::size_t>(left_length));
  const std::size_t right_size = without_trailing_blanks(right, static_cast<std::size_t>(right_length));
  const std::size_t common = std::min(left_size, right_size);
  std::size_t place = 0;
  // Keys of one kind and day begin alike.
  for (; place + 8 <= common; place += 8) {
    if (std::memcmp(left + place, right + place, 8) != 0) break;
  }
  for (; place < common; ++place) {
    if (((static_cast<unsigned char>(left[place]) | static_cast<unsigned char>(right[place])) & 0x80U) != 0) {
      if (left[place] == right[place]) continue;
      // Up to here both are alike, so they begin this character at the same place.
      while (place > 0 && (static_cast<unsigned char>(left[place]) & 0xC0U) == 0x80U) --place;
      return compare_characters({left + place, left_size - place}, {right + place, right_size - place});
    }
    const int difference =
        static_cast<unsigned char>(ado::lower(left[place])) - static_cast<unsigned char>(ado::lower(right[place]));
    if (difference != 0) return difference;
  }
  return static_cast<int>(left_size) - static_cast<int>(right_size);
}

}  // namespace

void add_functions(sqlite3* database) {
  constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
  const auto check = [database](int code) {
    if (code != SQLITE_OK) raise_failure(database, code, Stage::running, {});
  };
  const auto add = [&](std::string_view name, int arguments, auto function) {
    check(sqlite3_create_function_v2(database, name.data(), arguments, flags, nullptr, function, nullptr, nullptr,
                                     nullptr));
  };
  check(sqlite3_create_collation_v2(database, "NOCASE", SQLITE_UTF8, nullptr, compare, nullptr));
  add(money_function, 1, money);
  add(single_function, 1, single);
  add(whole_function, 1, whole);
  add(long_function, 1, rounded_long);
  add("regexp", 2, regexp);
  check(sqlite3_create_function_v2(database, sum_function.data(), 1, flags, nullptr, nullptr, add_to_sum, give_sum,
                                   nullptr));
}

}  // namespace brunvik::sqlite
