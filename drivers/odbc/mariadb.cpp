#include "drivers/odbc/mariadb.h"

#include <algorithm>
#include <array>
#include <span>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "drivers/dialects/memory.h"
#include "drivers/dialects/pattern.h"
#include "drivers/dialects/refusal.h"
#include "drivers/odbc/failure.h"

namespace brunvik::odbc {

namespace {

using dialects::ColumnType;

ColumnType type_of(std::string_view declared, bool is_key) {
  const auto is = [declared](std::string_view name) { return ado::same_name(declared, name); };
  if (is("decimal")) return ColumnType::money;
  if (is("double") || is("float")) return ColumnType::single;
  if (is("int")) return ColumnType::long_number;
  if (is("smallint")) return ColumnType::integer_number;
  if (is("tinyint")) return ColumnType::byte_number;
  if (is("varchar") || is("char")) return is_key ? ColumnType::key : ColumnType::text;
  if (declared.ends_with("text")) return ColumnType::text;
  return ColumnType::other;
}

// They change what the driver has settled with the server, or open a transaction that the driver wouldn't know of.
constexpr std::array<std::string_view, 17> own_verbs = {
    "begin",  "commit", "rollback", "start",   "savepoint",  "release", "set",     "use", "lock",
    "unlock", "xa",     "prepare",  "execute", "deallocate", "handler", "replace", "load"};

// They only tell.
constexpr std::array<std::string_view, 4> telling_verbs = {"show", "describe", "desc", "check"};

bool is_one_of(std::string_view word, std::span<const std::string_view> verbs) {
  return std::any_of(verbs.begin(), verbs.end(), [word](std::string_view verb) { return ado::same_name(word, verb); });
}

std::string_view first_word(std::string_view statement) {
  const auto first = statement.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) dialects::refuse("The text holds no statement.", statement);
  statement.remove_prefix(first);
  return statement.substr(0, statement.find_first_of(" \t\r\n(;'"));
}

}  // namespace

dialects::TableDescription MariaDbCatalogue::read(std::string_view name) {
  dialects::TableDescription columns;
  if (name.find('\0') != std::string_view::npos) return columns;
  ado::Recordset found = link_.execute(
      "select column_name as name, data_type as type, column_key<>'' as is_key from information_schema.columns "
      "where table_schema=database() and table_name=" +
      dialects::quoted(name) + " order by ordinal_position");
  for (; !found.at_end(); found.MoveNext()) {
    columns.push_back(
        {found.value("name").as_text(), type_of(found.value("type").as_text(), found.value("is_key").as_long() != 0)});
  }
  return columns;
}

MariaDb::MariaDb(Link link, const Options& options)
    : Server(std::move(link)),
      catalogue_(link_),
      shapes_(options.cached_statements),
      direct_(link_.statement()),
      seconds_to_wait_(std::to_string(options.busy_timeout.count())) {
  expect_usable(link_);
  make_settings(link_, options);
  longest_statement_ = longest_statement(link_);
}

// In the engine's words a text with zero bytes is written in two digits for each byte.
void MariaDb::expect_not_too_long(std::string_view statement) const {
  const bool has_zeros = statement.find('\0') != std::string_view::npos;
  const std::size_t bytes = has_zeros ? 2 * statement.size() : statement.size();
  if (bytes <= longest_statement_) return;
  throw ado::RuntimeError(ado::error::provider_failed,
                          "The statement is too long for the server, whose max_allowed_packet leaves " +
                              std::to_string(longest_statement_) + " bytes for a statement.");
}

ado::Recordset MariaDb::execute(std::string_view statement) {
  expect_not_too_long(statement);
  const dialects::AtEnd let_go([this]() noexcept {
    unkept_.reset();
    cutter_.let_go();
  });
  try {
    if (MariaDbShape* const known = shapes_.known(statement, literals_)) {
      return known->run(literals_, link_, direct_, statement);
    }
    if (!cutter_.cut(statement)) return execute_as_it_stands(statement);
    return shape_of(statement).run(cutter_.literals(), link_, direct_, statement);
  } catch (const Failure& failure) {
    // A table or a column that wasn't known may be laid before the statement comes again.
    if (failure.diagnosis().state.starts_with("42")) forget_tables();
    throw;
  }
}

MariaDbShape& MariaDb::shape_of(std::string_view statement) {
  const std::string_view shape = cutter_.shape();
  if (MariaDbShape* const known = shapes_.find(shape)) return *known;
  MariaDbShape made(rewrite_for_mariadb(shape, cutter_.literals(), catalogue_, statement));
  constexpr std::size_t longest_kept = 32'768;
  if (shape.size() > longest_kept || depends_on_values(shape)) return unkept_.emplace(std::move(made));
  return shapes_.add(shape, std::move(made));
}

ado::Recordset MariaDb::execute_as_it_stands(std::string_view statement) {
  if (statement.find('\0') != std::string_view::npos) {
    dialects::refuse("A zero byte has no place in a statement.", statement);
  }
  const std::string_view verb = first_word(statement);
  if (is_one_of(verb, own_verbs)) {
    dialects::refuse("'" + std::string(verb) +
                         "' is the driver's own: it has made its settings with the server, and a transaction is begun "
                         "and ended by the connection's verbs.",
                     statement);
  }
  if (is_one_of(verb, telling_verbs)) return link_.execute(statement);
  if (in_transaction_) {
    dialects::refuse("'" + std::string(verb) + "' would commit the transaction that is open.", statement);
  }
  forget_tables();
  return link_.execute(statement);
}

// What was known of the tables went into the rewriting of every shape.
void MariaDb::forget_tables() {
  shapes_.clear();
  catalogue_.forget();
}

// Two transactions that read the same numbers would each wait for the other to write, and one would be given up. So
// they come one after the other, and the second waits at its begin.
void MariaDb::begin() {
  const ado::Recordset lock =
      link_.execute("select get_lock(left(concat('brunvik.',database()),64)," + seconds_to_wait_ + ") as got");
  if (lock.value("got").as_long() != 1) {
    throw ado::RuntimeError(ado::error::timed_out, "Another transaction is open on the database.");
  }
  try {
    link_.execute("set transaction isolation level serializable");
    link_.execute("start transaction");
    in_transaction_ = true;
  } catch (...) {
    let_others_begin();
    throw;
  }
}

void MariaDb::let_others_begin() {
  in_transaction_ = false;
  link_.execute("do release_lock(left(concat('brunvik.',database()),64))");
}

void MariaDb::commit() {
  link_.execute("commit");
  let_others_begin();
}

void MariaDb::roll_back() {
  link_.execute("rollback");
  let_others_begin();
}

ado::Recordset MariaDb::tables() {
  return link_.execute("select table_name as name from information_schema.tables where table_schema=database()");
}

}  // namespace brunvik::odbc
