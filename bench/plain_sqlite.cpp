#include "bench/plain_sqlite.h"

#include <stdexcept>
#include <utility>

namespace brunvik::bench {

PlainSqlite::PlainSqlite(const std::string& path) {
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(path.c_str(), &database,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  database_.reset(database);
  check(code);
}

PlainSqlite::PlainSqlite(const std::string& path, sqlite::Synchronous synchronous) : PlainSqlite(path) {
  execute(synchronous == sqlite::Synchronous::full ? "pragma synchronous=full" : "pragma synchronous=normal");
  execute("pragma cache_size=-16000");
  if (path != ":memory:") execute("pragma journal_mode=wal");
}

void PlainSqlite::check(int code) const {
  if (code != SQLITE_OK && code != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(database_.get()));
}

int PlainSqlite::read_out(void* self, int count, char** values, char**) {
  std::string& text = static_cast<PlainSqlite*>(self)->text_;
  for (int column = 0; column < count; ++column) {
    if (values[column]) text.assign(values[column]);
  }
  return 0;
}

void PlainSqlite::execute(const std::string& text) {
  check(sqlite3_exec(database_.get(), text.c_str(), read_out, this, nullptr));
}

PreparedText PlainSqlite::prepare(std::string_view text) {
  BoundText bound = with_bound_values(text);
  auto& statement = statements_[bound.words];
  if (!statement) {
    sqlite3_stmt* made = nullptr;
    check(sqlite3_prepare_v3(database_.get(), bound.words.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &made, nullptr));
    statement.reset(made);
  }
  return {statement.get(), std::move(bound.values)};
}

void PlainSqlite::execute(const PreparedText& text) {
  sqlite3_stmt* const statement = text.statement;
  int place = 1;
  for (const auto& value : text.values) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
      sqlite3_bind_int64(statement, place, *whole);
    } else if (const auto* real = std::get_if<double>(&value)) {
      sqlite3_bind_double(statement, place, *real);
    } else {
      const auto& bytes = std::get<std::string>(value);
      sqlite3_bind_text(statement, place, bytes.data(), static_cast<int>(bytes.size()), SQLITE_STATIC);
    }
    ++place;
  }
  while (sqlite3_step(statement) == SQLITE_ROW) {
    const int columns = sqlite3_data_count(statement);
    for (int column = 0; column < columns; ++column) {
      switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
          number_ = static_cast<double>(sqlite3_column_int64(statement, column));
          break;
        case SQLITE_FLOAT:
          number_ = sqlite3_column_double(statement, column);
          break;
        case SQLITE_TEXT:
          text_.assign(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                       static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
          break;
        default:
          break;
      }
    }
  }
  check(sqlite3_reset(statement));
}

}  // namespace brunvik::bench
