// LIKE patterns in SQLite's words.
#pragma once

#include <string>
#include <string_view>

#include "drivers/sqlite/dialects.h"

namespace brunvik::sqlite {

// A pattern in the engine's words: what stands behind the column, LIKE or NOT LIKE left in front of it.
struct TranslatedPattern {
  bool has_lists;       // or letters beyond ASCII: only the driver's own matching knows them
  std::string literal;  // with its apostrophes, and with an ESCAPE where it needs one
};

// `literal` is a text with its apostrophes, as it stands in the statement. Throws std::invalid_argument for a bracket
// without an end.
TranslatedPattern translate_pattern(std::string_view literal);

bool matches(std::string_view pattern, std::string_view text) noexcept;

}  // namespace brunvik::sqlite
