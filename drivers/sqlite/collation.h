// The order in which the books compare text.
#pragma once

#include <string_view>

struct sqlite3;

namespace brunvik::sqlite {

// Less than, equal to or greater than zero. Case and trailing blanks don't count; otherwise characters come in the
// order of their numbers. It is one order for any bytes: those that belong to no character, as a text in another
// encoding has them, stand where they stand among the bytes of UTF-8.
int compare_texts(std::string_view left, std::string_view right) noexcept;

// Puts it in the place of the engine's own NOCASE.
void add_collation(sqlite3* database);

}  // namespace brunvik::sqlite
