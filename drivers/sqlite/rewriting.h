// Writes the shape of a statement in SQLite's words, so that it means what the books mean by it.
//
// - TOP n, convert(int, x), clng(x), #dates#, `delete *`, LIKE with lists in brackets.
// - What is assigned to a column is rounded as the column keeps it: a literal when it is bound, an expression by a
//   function of the driver. Text keys lose their trailing blanks.
// - Arithmetic and sums on money come out exact to four places, wherever they stand.
// - What the engine would take and neither original database does is refused.
// - Two minus signs are two minus signs (there are no comments): a negative value behind a minus takes nothing away.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drivers/dialects/selection.h"
#include "drivers/dialects/target.h"
#include "drivers/sqlite/catalogue.h"
#include "drivers/sqlite/dialects.h"

namespace brunvik::sqlite {

struct Rewritten {
  std::string text;
  std::vector<Target> targets;  // one for each cut-out value; the text calls them ?1, ?2 and so on
  Selection selection;
};

// `statement` is the text that the shape was cut from, for the error statement_refused.
Rewritten rewrite(std::string_view shape, Catalogue& catalogue, std::string_view statement);

}  // namespace brunvik::sqlite
