// The question for the next or the previous number of a series:
//
//   select min(Id) as Id from StockBill where id > 'XSC5' and id like 'XSC%'  and type=5
//
// Both conditions bound the number, and the engine takes one of them for its range: that of the pattern, from whose end
// it then walks through the whole series to the number. The rewriting gives it one range that both have made.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "drivers/dialects/tokens.h"
#include "drivers/sqlite/dialects.h"

namespace brunvik::sqlite {

struct Neighbour {
  // Where the column stands in either condition. There it must not count as a bound.
  std::size_t compared, matched;
  // What both say of the column together, to stand behind the pattern.
  std::string range;
};

// The question in a SELECT whose verb stands at a place; empty where it is another one, or where its pattern is more
// than a beginning of ASCII letters and digits. `tokens` ends with the statement.
std::optional<Neighbour> neighbour_in_series(std::span<const Token> tokens, std::size_t verb);

}  // namespace brunvik::sqlite
