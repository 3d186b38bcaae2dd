#include "drivers/sqlite/engine.h"

#include <filesystem>
#include <limits>

#include "brunvik/ado/errors.h"
#include "drivers/dialects/memory.h"
#include "drivers/sqlite/collation.h"
#include "drivers/sqlite/failure.h"
#include "drivers/sqlite/functions.h"
#include "drivers/sqlite/known_tables.h"

namespace brunvik::sqlite {

namespace {

bool is_in_memory(const std::string& path) { return path == ":memory:"; }

// A path is a path, also if it looks like an address.
std::string plain_path(const std::string& path) { return path.starts_with("file:") ? "./" + path : path; }

sqlite3* open_database(const std::string& path, bool create) {
  std::error_code ignored;
  if (path.empty() || (!create && !is_in_memory(path) && !std::filesystem::exists(path, ignored))) {
    throw ado::RuntimeError(ado::error::provider_failed, "There is no database file '" + path + "'.");
  }
  // A connection belongs to one thread at a time, so it needs no lock of its own.
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE |
                    (create || is_in_memory(path) ? SQLITE_OPEN_CREATE : 0);
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(plain_path(path).c_str(), &database, flags, nullptr);
  if (code == SQLITE_OK) return database;
  const std::string text = database ? sqlite3_errmsg(database) : sqlite3_errstr(code);
  sqlite3_close_v2(database);
  raise_failure(code, Stage::running, text + ": '" + path + "'", {});
}

// The end of a text behind its one statement: blanks and semicolons.
bool is_empty(const char* text) {
  return std::string_view(text).find_first_not_of(" \t\r\n;") == std::string_view::npos;
}

}  // namespace

Engine::Engine(const std::string& path, const Options& options)
    : waiting_(options.busy_timeout),
      database_(open_database(path, options.create)),
      catalogue_(database_.get()),
      shapes_(options.cached_statements) {
  sqlite3* const database = database_.get();
  waiting_.attach(database);
  // Text in quotation marks is a name, never a value.
  sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  add_collation(database);
  add_functions(database);
  execute_as_it_stands(options.synchronous == Synchronous::full ? "pragma synchronous=full"
                                                                : "pragma synchronous=normal");
  execute_as_it_stands("pragma cache_size=-16000");
  // Also the first look into the file, which finds out whether it is a database at all.
  schema_version({});
  if (!options.known_tables.empty()) expect_known_tables(path, options);
  if (!is_in_memory(path) && sqlite3_db_readonly(database, "main") == 0) {
    execute_as_it_stands("pragma journal_mode=wal");
  }
}

void Engine::expect_known_tables(const std::string& path, const Options& options) {
  const Contents contents = contents_of(database_.get(), options.known_tables);
  if (contents.known || contents.empty) return;
  // The log that another program left beside its file is that program's to work off.
  std::error_code ignored;
  const bool has_log = std::filesystem::file_size(plain_path(path) + "-wal", ignored) > 0 && !ignored;
  sqlite3_db_config(database_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, has_log ? 1 : 0, nullptr);
  throw ado::RuntimeError(ado::error::provider_failed,
                          "There is none of the books' tables in '" + path + "', which stays as it is.");
}

ado::Recordset Engine::carry_out(std::string_view text) {
  if (text.size() > static_cast<std::size_t>(sqlite3_limit(database_.get(), SQLITE_LIMIT_SQL_LENGTH, -1))) {
    throw ado::RuntimeError(ado::error::provider_failed, "The statement is too long.");
  }
  const AtEnd let_go([this]() noexcept {
    unkept_.reset();
    cutter_.let_go();
  });
  constexpr int tries = 10;
  int code = SQLITE_SCHEMA;
  for (int time = 0; time < tries && code == SQLITE_SCHEMA; ++time) {
    ado::Recordset result;
    if (Shape* const known = shapes_.known(text, literals_)) {
      code = known->run(literals_, text, result);
    } else {
      if (!cutter_.cut(text)) return execute_as_it_stands(text);
      code = shape_of(text).run(cutter_.literals(), text, result);
    }
    if (code == SQLITE_DONE) return result;
    if (code == SQLITE_SCHEMA) {
      // What was known of the tables went into the rewriting of every shape.
      shapes_.clear();
      catalogue_.forget();
    }
  }
  raise_failure(database_.get(), code, Stage::running, text);
}

Shape& Engine::shape_of(std::string_view text) {
  if (Shape* const known = shapes_.find(cutter_.shape())) return *known;
  // A text of this length is no statement of the books, and would not come again.
  constexpr std::size_t longest_kept = 32'768;
  if (cutter_.shape().size() > longest_kept) return unkept_.emplace(prepare_shape(text));
  return shapes_.add(cutter_.shape(), prepare_shape(text));
}

Shape Engine::prepare_shape(std::string_view text) {
  for (;;) {
    const std::int64_t version = schema_version(text);
    if (version != catalogue_version_) catalogue_.forget();
    catalogue_version_ = version;
    Rewritten rewritten = rewrite(cutter_.shape(), catalogue_, text);
    sqlite3_stmt* prepared = nullptr;
    const char* rest = nullptr;
    // The first form of this call, whose statements fail with SQLITE_SCHEMA when the tables have changed. Those of the
    // later forms would prepare the same text again, which was rewritten for the columns that were.
    const int code = sqlite3_prepare(database_.get(), rewritten.text.c_str(),
                                     static_cast<int>(rewritten.text.size() + 1), &prepared, &rest);
    Statement statement(prepared);
    if (code != SQLITE_OK) raise_failure(database_.get(), code, Stage::preparing, text);
    if (!statement || !is_empty(rest)) refuse("A text holds one statement.", text);
    // The types are those of the tables that the statement was prepared for only if nobody changed them in between.
    if (schema_version(text) == version) return {std::move(statement), std::move(rewritten)};
  }
}

ado::Recordset Engine::execute_as_it_stands(std::string_view text) {
  if (text.find('\0') != std::string_view::npos) refuse("A zero byte has no place in a statement.", text);
  const std::string statement_text(text);
  sqlite3_stmt* prepared = nullptr;
  const char* rest = nullptr;
  const int code = sqlite3_prepare_v2(database_.get(), statement_text.c_str(),
                                      static_cast<int>(statement_text.size() + 1), &prepared, &rest);
  Statement statement(prepared);
  if (code != SQLITE_OK) raise_failure(database_.get(), code, Stage::preparing, text);
  if (!statement) refuse("The text holds no statement.", text);
  if (!is_empty(rest)) refuse("A text holds one statement.", text);
  ado::Recordset result;
  const int ended = Shape(std::move(statement), {}).run({}, text, result);
  if (ended != SQLITE_DONE) raise_failure(database_.get(), ended, Stage::running, text);
  return result;
}

std::int64_t Engine::schema_version(std::string_view text) {
  if (!schema_version_) {
    sqlite3_stmt* prepared = nullptr;
    const int code = sqlite3_prepare_v2(database_.get(), "pragma schema_version", -1, &prepared, nullptr);
    schema_version_.reset(prepared);
    if (code != SQLITE_OK) raise_failure(database_.get(), code, Stage::preparing, text);
  }
  const Reset reset(schema_version_.get());
  const int code = sqlite3_step(schema_version_.get());
  if (code != SQLITE_ROW) raise_failure(database_.get(), code, Stage::running, text);
  return sqlite3_column_int64(schema_version_.get(), 0);
}

}  // namespace brunvik::sqlite
