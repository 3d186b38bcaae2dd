// What a SELECT selects, as far as the engine can't tell it from the text that it is given.
#pragma once

#include <cstddef>
#include <span>

#include "drivers/sqlite/expression.h"
#include "drivers/sqlite/rewriting.h"
#include "drivers/sqlite/tokens.h"

namespace brunvik::sqlite {

// Fills in the columns of the statement whose SELECT stands in front of `first`.
void describe_selection(std::span<const Token> tokens, const Expressions& expressions, std::size_t first,
                        std::size_t end, Rewritten& rewritten);

// Behind the expression of an item of a list, in front of the name that it is given.
std::size_t end_of_expression(const Expressions& expressions, std::size_t first, std::size_t end);

// Whether a * is among the items of a list.
bool selects_all(std::span<const Token> tokens, const Expressions& expressions, std::size_t first, std::size_t end);

// The words that can stand behind the list.
inline constexpr std::string_view ends_of_list[] = {"from",  "where", "group",  "having",    "order",
                                                    "limit", "union", "except", "intersect", "returning"};

}  // namespace brunvik::sqlite
