// What a SELECT may name where: the engine gives any row's value, or an alias's, where the original databases refuse.
#pragma once

#include <span>

#include "drivers/dialects/columns.h"
#include "drivers/dialects/expression.h"
#include "drivers/dialects/tokens.h"

namespace brunvik::dialects {

// Throws std::invalid_argument with the reason for each SELECT of a statement, also for one in parentheses,
// - that selects a column beside an aggregate, and doesn't group by it;
// - that is grouped, or an aggregate, and is ordered by a column outside of the group;
// - whose condition names an item of the list by its alias.
void refuse_what_has_no_group(std::span<const Token> tokens, const Expressions& expressions, Catalogue& catalogue);

}  // namespace brunvik::dialects
