// Writes the shape of a statement in MariaDB's words, so that it means what the books mean by it.
//
// - TOP n, convert(int, x), clng(x), #dates#, `delete *`, names in brackets, LIKE with lists in brackets and with a
//   backslash, a quotient of whole numbers.
// - A quantity that is worked out is rounded as its column keeps it: to the double nearest to the decimal of the
// single.
// - What the engine would take and neither original database does is refused.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drivers/dialects/cutter.h"
#include "drivers/dialects/selection.h"
#include "drivers/dialects/target.h"

namespace brunvik::odbc {

struct MariaDbText {
  // Its values are cut out, each with a mark in its place.
  std::string shape;
  std::vector<std::size_t> order;         // for each mark, which value of the statement it stands for
  std::vector<dialects::Target> targets;  // for each value of the statement
  dialects::Selection selection;
  bool is_selection = false;

  // A value is compared with a text in the engine's words. Bound it would have another collation than that.
  bool has_to_stand_in_the_text = false;
};

// `literals` are those that were cut out of the statement: a quotient of whole numbers is another operation than one
// of decimals. The statement is for the error statement_refused.
MariaDbText rewrite_for_mariadb(std::string_view shape, std::span<const dialects::Literal> literals,
                                dialects::Catalogue& catalogue, std::string_view statement);

// Whether what is written depends on the values: a shape with a division isn't that of statements with other numbers.
bool depends_on_values(std::string_view shape) noexcept;

}  // namespace brunvik::odbc
