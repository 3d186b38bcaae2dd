// What the driver adds to the engine: the functions that the rewriting calls.
#pragma once

#include <string_view>

struct sqlite3;

namespace brunvik::sqlite {

// An amount rounded to four places.
inline constexpr std::string_view money_function = "brunvik_money";

// The exact total of its arguments, as an amount. Null where one of them is null.
inline constexpr std::string_view total_function = "brunvik_total";

// The shortest decimal that names the single nearest to a number.
inline constexpr std::string_view single_function = "brunvik_single";

// A number between a lowest and a highest value, as it is.
inline constexpr std::string_view within_function = "brunvik_within";

// The exact sum of amounts.
inline constexpr std::string_view sum_function = "brunvik_sum";

// convert(int, x): text must be a whole number, or blank for zero; a fraction is cut off. clng(x): rounded, ties to the
// even number.
inline constexpr std::string_view whole_function = "brunvik_whole";
inline constexpr std::string_view long_function = "brunvik_long";

// To be called once, before the first statement.
void add_functions(sqlite3* database);

}  // namespace brunvik::sqlite
