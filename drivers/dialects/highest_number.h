// The question for the next number of a ledger:
//
//   select max(convert(int,ID)) as ls_bm from ZHJYXX, or max(clng(ID))
//
// Where an index holds these numbers, it needn't read the whole ledger. The index reads any text as a number, so it is
// asked only while the column holds plain numbers; what else may be read as one, or is an error, the whole column
// tells.
#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "drivers/dialects/tokens.h"

namespace brunvik::dialects {

struct HighestNumber {
  std::size_t column;  // whose parentheses, two, close behind it
  std::size_t from;    // where FROM stands, behind the name that the number is given; the table is the last token
};

// The question in a SELECT whose verb stands at a place; empty where it is another one.
std::optional<HighestNumber> highest_number_of_ledger(std::span<const Token> tokens, std::size_t verb, std::size_t end);

}  // namespace brunvik::dialects
