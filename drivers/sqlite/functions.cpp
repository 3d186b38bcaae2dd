#include "drivers/sqlite/functions.h"

#include <sqlite3.h>

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/money.h"
#include "brunvik/ado/numbers.h"
#include "drivers/dialects/rounding.h"
#include "drivers/sqlite/failure.h"
#include "drivers/sqlite/pattern.h"

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
  fail(context, "The amount is too large to be kept exactly.", number_too_large);
}

void total(sqlite3_context* context, int count, sqlite3_value** arguments) {
  AmountTotal total;
  for (int place = 0; place < count; ++place) {
    if (sqlite3_value_type(arguments[place]) == SQLITE_NULL) return;
    total.add(sqlite3_value_double(arguments[place]));
  }
  if (const Amount amount = total.amount()) return give_amount(context, *amount);
  fail(context, "The amount is too large to be kept exactly.", number_too_large);
}

// within(x, low, high)
void within(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_value* const value = arguments[0];
  const std::int64_t low = sqlite3_value_int64(arguments[1]);
  const std::int64_t high = sqlite3_value_int64(arguments[2]);
  bool fits = true;
  // What is no number stays as it is, and the column refuses it.
  switch (sqlite3_value_numeric_type(value)) {
    case SQLITE_INTEGER: {
      const std::int64_t number = sqlite3_value_int64(value);
      fits = low <= number && number <= high;
      break;
    }
    case SQLITE_FLOAT: {
      const double number = sqlite3_value_double(value);
      fits = static_cast<double>(low) <= number && number <= static_cast<double>(high);
      break;
    }
    default:
      break;
  }
  if (fits) return sqlite3_result_value(context, value);
  fail(context, "The column can't keep a whole number as large as that.", number_too_large);
}

void single(sqlite3_context* context, int, sqlite3_value** arguments) {
  sqlite3_value* const value = arguments[0];
  const int type = sqlite3_value_numeric_type(value);
  if (type != SQLITE_INTEGER && type != SQLITE_FLOAT) return sqlite3_result_value(context, value);
  const double rounded = single_of(sqlite3_value_double(value));
  if (std::isfinite(rounded)) return sqlite3_result_double(context, rounded);
  fail(context, "The number is too large for a single.", number_too_large);
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
  fail(context, "The number has no place in 32 bits.", number_too_large);
}

void whole(sqlite3_context* context, int, sqlite3_value** arguments) {
  // The dialect that has this conversion reads a text of blanks as zero.
  const bool is_text = sqlite3_value_type(arguments[0]) == SQLITE_TEXT;
  if (is_text && ado::trimmed_number(text_of(arguments[0])).empty()) return give_long(context, 0);
  const auto value = number(context, arguments[0]);
  if (!value) return;
  if (is_text && std::trunc(*value) != *value) {
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
  if (sum->too_large || !is_kept(sum->count)) return fail(context, "The sum is too large for money.", number_too_large);
  give_amount(context, sum->count);
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
  add(money_function, 1, money);
  add(total_function, -1, total);
  add(single_function, 1, single);
  add(within_function, 3, within);
  add(whole_function, 1, whole);
  add(long_function, 1, rounded_long);
  add("regexp", 2, regexp);
  check(sqlite3_create_function_v2(database, sum_function.data(), 1, flags, nullptr, nullptr, add_to_sum, give_sum,
                                   nullptr));
}

}  // namespace brunvik::sqlite
