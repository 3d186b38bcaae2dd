#include "drivers/sqlite/catalogue.h"

#include <sqlite3.h>

#include "brunvik/ado/names.h"
#include "drivers/sqlite/failure.h"
#include "drivers/sqlite/statement.h"

namespace brunvik::sqlite {

namespace {

constexpr std::string_view columns_of = "select name, type from pragma_table_info(?)";

constexpr std::string_view keys_of =
    "select part.name from pragma_index_list(?) as list, pragma_index_info(list.name) as part "
    "where part.name is not null";

constexpr std::string_view indexes_of = "select sql from sqlite_master where type='index' and lower(tbl_name)=lower(?)";

std::string_view column_text(sqlite3_stmt* statement, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)))
              : std::string_view();
}

std::string without_blanks_and_case(std::string_view text) {
  std::string letters;
  for (const char c : text) {
    if (c != ' ' && c != '\n' && c != '\t') letters += ado::lower(c);
  }
  return letters;
}

template <class Visitor>
void for_each_row(sqlite3* database, std::string_view query, std::string_view table, Visitor visit) {
  sqlite3_stmt* prepared = nullptr;
  int code = sqlite3_prepare_v2(database, query.data(), static_cast<int>(query.size()), &prepared, nullptr);
  const Statement statement(prepared);
  if (code == SQLITE_OK) {
    sqlite3_bind_text(prepared, 1, table.data(), static_cast<int>(table.size()), SQLITE_STATIC);
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) visit(prepared);
  }
  if (code != SQLITE_DONE) raise_failure(database, code, Stage::running, query);
}

}  // namespace

ColumnType type_of_declaration(std::string_view declaration) noexcept {
  std::string_view word = declaration.substr(0, declaration.find('('));
  while (word.ends_with(' ')) word.remove_suffix(1);
  const auto is = [word](std::string_view name) { return ado::same_name(word, name); };
  if (is("MONEY")) return ColumnType::money;
  if (is("REAL")) return ColumnType::single;
  if (is("INTEGER") || is("INT")) return ColumnType::long_number;
  if (is("SMALLINT")) return ColumnType::integer_number;
  if (is("TINYINT")) return ColumnType::byte_number;
  if (is("BIT")) return ColumnType::bit;
  if (is("TEXT") || is("CHAR") || is("VARCHAR") || is("NCHAR") || is("NVARCHAR")) return ColumnType::text;
  return ColumnType::other;
}

TableDescription Catalogue::read(std::string_view name) {
  TableDescription columns;
  for_each_row(database_, columns_of, name, [&columns](sqlite3_stmt* row) {
    columns.push_back({std::string(column_text(row, 0)), type_of_declaration(column_text(row, 1))});
  });
  for_each_row(database_, keys_of, name, [&columns](sqlite3_stmt* row) {
    for (ColumnDescription& column : columns) {
      if (column.type == ColumnType::text && column.name == column_text(row, 0)) column.type = ColumnType::key;
    }
  });
  return columns;
}

bool Catalogue::has_number_index(std::string_view table, std::string_view column) {
  const std::string wanted = without_blanks_and_case("(CAST(" + std::string(column) + " AS INTEGER))");
  bool found = false;
  for_each_row(database_, indexes_of, table, [&](sqlite3_stmt* row) {
    found = found || without_blanks_and_case(column_text(row, 0)).ends_with(wanted);
  });
  return found;
}

}  // namespace brunvik::sqlite
