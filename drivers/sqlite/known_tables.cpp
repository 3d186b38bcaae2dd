#include "drivers/sqlite/known_tables.h"

#include <algorithm>

#include "brunvik/ado/names.h"
#include "drivers/sqlite/failure.h"
#include "drivers/sqlite/statement.h"

namespace brunvik::sqlite {

Contents contents_of(sqlite3* database, const std::vector<std::string>& known_tables) {
  constexpr std::string_view query = "select name from sqlite_master";
  sqlite3_stmt* prepared = nullptr;
  int code = sqlite3_prepare_v2(database, query.data(), static_cast<int>(query.size()), &prepared, nullptr);
  const Statement statement(prepared);
  Contents contents;
  while (code == SQLITE_OK || code == SQLITE_ROW) {
    code = sqlite3_step(prepared);
    if (code != SQLITE_ROW) break;
    contents.empty = false;
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(prepared, 0));
    const std::string_view name(text ? text : "");
    contents.known = contents.known || std::any_of(known_tables.begin(), known_tables.end(),
                                                   [name](const auto& known) { return ado::same_name(known, name); });
  }
  if (code != SQLITE_DONE) raise_failure(database, code, Stage::running, {});
  return contents;
}

}  // namespace brunvik::sqlite
