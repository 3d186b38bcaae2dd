#include "drivers/sqlite/failure.h"

#include <sqlite3.h>

#include "brunvik/ado/errors.h"

namespace brunvik::sqlite {

const int number_too_large = SQLITE_CONSTRAINT_FUNCTION;

namespace {

namespace error = ado::error;

Long number_of(int code, Stage stage, std::string_view engine_text) {
  if (code == number_too_large) return error::data_overflow;
  switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return error::timed_out;
    case SQLITE_CONSTRAINT:
      return error::constraint_violated;
    case SQLITE_ERROR:
      if (stage == Stage::running) return error::provider_failed;
      // A missing table has no code of its own.
      return engine_text.starts_with("no such table") ? error::no_such_table : error::statement_refused;
    default:
      return error::provider_failed;
  }
}

}  // namespace

void raise_failure(int code, Stage stage, std::string_view engine_text, std::string_view statement) {
  throw ado::RuntimeError(number_of(code, stage, engine_text), std::string(engine_text), std::string(statement));
}

void raise_failure(sqlite3* database, int code, Stage stage, std::string_view statement) {
  raise_failure(code, stage, database ? sqlite3_errmsg(database) : sqlite3_errstr(code), statement);
}

}  // namespace brunvik::sqlite
