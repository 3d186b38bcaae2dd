// What a SELECT selects, as far as the engine can't tell it from the text that it is given.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "drivers/dialects/expression.h"
#include "drivers/dialects/tokens.h"

namespace brunvik::dialects {

// What the engine can't tell of a column that is no column of a table.
struct SelectedColumn {
  std::string name;  // as the statement writes it, where the engine got other words; else empty
  bool is_amount;
};

// The columns that a SELECT writes, counted from the first one on and from the last one back. A * among them ends both.
struct Selection {
  std::vector<SelectedColumn> from_first;
  std::vector<SelectedColumn> from_last;

  // What is written for a column of a result with so many; null where a * stands for it.
  const SelectedColumn* column(std::size_t place, std::size_t count) const noexcept;
};

// The columns of the statement whose SELECT stands in front of `first`.
Selection describe_selection(std::span<const Token> tokens, const Expressions& expressions, std::size_t first,
                             std::size_t end);

// Behind the expression of an item of a list, in front of the name that it is given.
std::size_t end_of_expression(const Expressions& expressions, std::size_t first, std::size_t end);

// Whether a * is among the items of a list.
bool selects_all(std::span<const Token> tokens, const Expressions& expressions, std::size_t first, std::size_t end);

// The words that can stand behind the list.
inline constexpr std::string_view ends_of_list[] = {"from",  "where", "group",  "having",    "order",
                                                    "limit", "union", "except", "intersect", "returning"};

}  // namespace brunvik::dialects
