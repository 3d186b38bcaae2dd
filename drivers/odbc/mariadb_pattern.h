// LIKE patterns in MariaDB's words.
#pragma once

#include <string>
#include <string_view>

namespace brunvik::odbc {

struct MariaDbPattern {
  bool is_expression;   // a list in brackets takes a regular expression
  std::string literal;  // with its apostrophes, and with an ESCAPE where it needs one
};

// `literal` is a text with its apostrophes, as it stands in the statement. Throws std::invalid_argument for a bracket
// without an end.
MariaDbPattern translate_pattern(std::string_view literal);

}  // namespace brunvik::odbc
