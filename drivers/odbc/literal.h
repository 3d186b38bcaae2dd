// The values of a statement as MariaDB reads them.
#pragma once

#include <string>
#include <string_view>

#include "drivers/dialects/cutter.h"
#include "drivers/dialects/target.h"

namespace brunvik::odbc {

// A text between apostrophes, in which each apostrophe stands twice.
std::string with_single_apostrophes(std::string_view content);

// Writes a value at the end of a text, as its column keeps it: an amount in its four places, a quantity as the decimal
// of its single. A decimal is written without an exponent, which would make a double of it. Throws a RuntimeError of
// data_overflow for a number without a place in its column.
void append_literal(std::string& text, const dialects::Literal& literal, dialects::Target target,
                    std::string_view statement);

}  // namespace brunvik::odbc
