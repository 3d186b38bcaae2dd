#include "drivers/sqlite/neighbour.h"

#include <string_view>

#include "drivers/dialects/pattern.h"

namespace brunvik::sqlite {

std::optional<Neighbour> neighbour_in_series(std::span<const Token> tokens, std::size_t verb) {
  const auto is = [&](std::size_t place, std::string_view word) {
    return place < tokens.size() && tokens[place].is(word);
  };
  const auto is_symbol = [&](std::size_t place, std::string_view symbol) {
    return place < tokens.size() && tokens[place].is_symbol(symbol);
  };
  const auto is_column = [&](std::size_t place, std::string_view name) {
    return place < tokens.size() && tokens[place].is_name() && ado::same_name(bare_name(tokens[place]), name);
  };
  const bool next = is(verb + 1, "min");
  if ((!next && !is(verb + 1, "max")) || !is_symbol(verb + 2, "(") || !is_symbol(verb + 4, ")")) return {};
  if (!tokens[verb + 3].is_name()) return {};
  const std::string_view column = bare_name(tokens[verb + 3]);

  std::size_t where = verb + 5;
  while (where < tokens.size() && !is(where, "where")) ++where;
  const std::size_t compared = where + 1;
  const std::size_t value = compared + 2;
  const std::size_t matched = value + 2;
  const std::size_t pattern = matched + 2;
  if (pattern >= tokens.size() || !is_column(compared, column) || !is_symbol(compared + 1, next ? ">" : "<") ||
      tokens[value].kind != TokenKind::parameter || tokens[value].literal != LiteralKind::text ||
      !is(value + 1, "and") || !is_column(matched, column) || !is(matched + 1, "like") ||
      tokens[pattern].kind != TokenKind::text) {
    return {};
  }
  // An OR behind it, or a pattern that goes on, would make another sense of what is added.
  for (std::size_t place = pattern + 1; place < tokens.size(); ++place) {
    if (tokens[place].is("or") || tokens[place].is("escape")) return {};
  }
  const std::string_view beginning = dialects::plain_beginning(tokens[pattern].text);
  if (beginning.empty()) return {};

  const std::string behind = dialects::behind_all_that_begin(beginning);
  const std::string name(tokens[compared].text);
  const std::string number = "?" + std::to_string(tokens[value].parameter + 1) + " COLLATE NOCASE";
  const std::string from = "'" + std::string(beginning) + "'";
  const std::string until = "'" + behind + "'";
  std::string range = next ? "AND " + name + ">=max(" + number + "," + from + ") AND " + name + "<" + until
                           : "AND " + name + ">=" + from + " AND " + name + "<=min(" + number + "," + until + ")";
  return Neighbour{compared, matched, std::move(range)};
}

}  // namespace brunvik::sqlite
