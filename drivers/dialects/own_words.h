// What the engine would take and neither of the original databases does: words of its own, and columns named twice.
#pragma once

#include <span>

#include "drivers/dialects/expression.h"
#include "drivers/dialects/scope.h"
#include "drivers/dialects/tokens.h"

namespace brunvik::dialects {

// Throws std::invalid_argument with the reason, where a statement holds one of SQLite's own words: REPLACE and INSERT
// OR in front of a table, ON CONFLICT, RETURNING, ==, GLOB, ISNULL, the row's number, MAX and MIN of several arguments.
// Names in brackets, and words that a table of the statement has as columns, are names.
void refuse_own_words(std::span<const Token> tokens, const Expressions& expressions, const Scope& scope);

// The same for a column that an insert or an update names twice.
void refuse_repeated_columns(std::span<const Token> tokens, const Expressions& expressions);

}  // namespace brunvik::dialects
