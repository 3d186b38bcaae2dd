#include "drivers/dialects/selection.h"

#include <algorithm>
#include <string>
#include <vector>

namespace brunvik::dialects {

namespace {

bool is_star(std::span<const Token> item) { return !item.empty() && item.back().is_symbol("*"); }

}  // namespace

std::size_t end_of_expression(const Expressions& expressions, std::size_t first, std::size_t end) {
  static constexpr std::string_view as[] = {"as"};
  const std::size_t named = expressions.find(first, end, as);
  if (named < end) return named;
  return expressions.run_at(first, end).end == end - 1 ? end - 1 : end;
}

namespace {

SelectedColumn described(std::span<const Token> tokens, const Expressions& expressions, std::size_t first,
                         std::size_t end) {
  if (first == end) return {{}, false};
  const std::size_t expression_end = end_of_expression(expressions, first, end);
  const bool is_amount = expressions.kind_of(first, expression_end) == Arithmetic::money;
  const bool is_unnamed_expression =
      expression_end == end && expressions.end_of_path(first, end) != end && expressions.run_at(first, end).end == end;
  const auto is_parameter = [](const Token& token) { return token.kind == TokenKind::parameter; };
  const std::span<const Token> item = tokens.subspan(first, end - first);
  if (!is_unnamed_expression || std::any_of(item.begin(), item.end(), is_parameter)) return {{}, is_amount};
  const char* const last = item.back().text.data() + item.back().text.size();
  return {std::string(item.front().text.data(), last), is_amount};
}

}  // namespace

const SelectedColumn* Selection::column(std::size_t place, std::size_t count) const noexcept {
  if (place < from_first.size()) return &from_first[place];
  const std::size_t back = count - 1 - place;
  return back < from_last.size() ? &from_last[back] : nullptr;
}

Selection describe_selection(std::span<const Token> tokens, const Expressions& expressions, std::size_t first,
                             std::size_t end) {
  Selection selection;
  const auto is = [&](std::size_t place, std::string_view word) { return place < end && tokens[place].is(word); };
  if (is(first, "distinct") || is(first, "all")) ++first;
  if (is(first, "top")) first += first + 1 < end && tokens[first + 1].is_symbol("(") ? 4 : 2;
  const std::size_t list_end = expressions.find(first, end, ends_of_list);
  std::vector<SelectedColumn> columns;
  bool star = false;
  while (first < list_end) {
    const std::size_t item_end = expressions.end_of_item(first, list_end);
    if (is_star(tokens.subspan(first, item_end - first))) {
      if (!star) selection.from_first = columns;
      star = true;
      columns.clear();
    } else {
      columns.push_back(described(tokens, expressions, first, item_end));
    }
    first = item_end + 1;
  }
  if (!star) selection.from_first = columns;
  selection.from_last.assign(columns.rbegin(), columns.rend());
  return selection;
}

bool selects_all(std::span<const Token> tokens, const Expressions& expressions, std::size_t first, std::size_t end) {
  while (first < end) {
    const std::size_t item_end = expressions.end_of_item(first, end);
    if (is_star(tokens.subspan(first, item_end - first))) return true;
    first = item_end + 1;
  }
  return false;
}

}  // namespace brunvik::dialects
