#include "drivers/dialects/highest_number.h"

#include <string_view>

namespace brunvik::dialects {

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
  return HighestNumber{column, from};
}

}  // namespace brunvik::dialects
