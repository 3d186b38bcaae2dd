// What SQLite reports, as our run-time errors: with their number, the engine's own text, and the statement.
#pragma once

#include <string_view>

#include "brunvik/ado/types.h"
#include "drivers/dialects/refusal.h"
#include "drivers/sqlite/dialects.h"

struct sqlite3;

namespace brunvik::sqlite {

// SQLite has one code for a text that it doesn't understand and for a function that fails while it runs.
enum class Stage { preparing, running };

// The result code of a function of the driver that meets a number without a place where it has to go. The engine itself
// has no use for it.
extern const int number_too_large;

// The error of a result code (also an extended one) with its text.
[[noreturn]] void raise_failure(int code, Stage stage, std::string_view engine_text, std::string_view statement);

// The error that a database met last.
[[noreturn]] void raise_failure(sqlite3* database, int code, Stage stage, std::string_view statement);

}  // namespace brunvik::sqlite
