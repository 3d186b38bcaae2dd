#include "drivers/sqlite/highest_number.h"

#include <string_view>

namespace brunvik::sqlite {

namespace {

// The keys of a ledger that are more or less than the digits of a 32-bit number; books keep them in an index of this
// very condition, so that it is known at once that there are none.
std::string no_plain_number(std::string_view column) {
  const std::string name(column);
  return "length(" + name + ") NOT BETWEEN 1 AND 9 OR " + name + " GLOB '*[^0-9]*'";
}

}  // namespace

std::optional<HighestNumber> highest_number_of_ledger(std::span<const Token> tokens, std::size_t verb,
                                                      std::size_t end) {
  const auto is = [&](std::size_t place, std::string_view word) {
    return place < tokens.size() && tokens[place].is(word);
  };
  const auto is_symbol = [&](std::size_t place, std::string_view symbol) {
    return place < tokens.size() && tokens[place].is_symbol(symbol);
  };
  if (!is(verb + 1, "max") || !is_symbol(verb + 2, "(")) return {};
  const bool is_convert =
      is(verb + 3, "convert") && is_symbol(verb + 4, "(") && is(verb + 5, "int") && is_symbol(verb + 6, ",");
  if (!is_convert && !(is(verb + 3, "clng") && is_symbol(verb + 4, "("))) return {};
  const std::size_t column = is_convert ? verb + 7 : verb + 5;
  std::size_t from = column + 3;
  if (!is_symbol(column + 1, ")") || !is_symbol(column + 2, ")")) return {};
  if (is(from, "as")) from += 2;
  if (!is(from, "from") || from + 2 != end || !tokens[column].is_name() || !tokens[end - 1].is_name()) return {};
  const std::string number = "CAST(" + std::string(tokens[column].text) + " AS INTEGER)";
  const std::string table(tokens[end - 1].text);
  return HighestNumber{
      column, from,
      "(CASE WHEN EXISTS(SELECT 1 FROM " + table + " WHERE " + no_plain_number(tokens[column].text) + ") THEN (SELECT ",
      "FROM " + table + ") ELSE (SELECT " + number + " FROM " + table + " ORDER BY " + number +
          " COLLATE BINARY DESC LIMIT 1) END)"};
}

}  // namespace brunvik::sqlite
