#include "host/laid_tables.h"

#include <utility>

#include "host/database.h"
#include "schema/ddl.h"
#include "schema/tables.h"

namespace brunvik::host {

namespace {

// SQLite's own way to tell what is there; another engine has another. A table without columns isn't there.
std::vector<schema::LaidTable> laid_tables(ado::Connection& database) {
  std::vector<schema::LaidTable> tables;
  for (const schema::Table& described : schema::tables()) {
    schema::LaidTable table{std::string(described.name), {}, {}};
    ado::Recordset columns = database.Execute("pragma table_info(" + table.name + ")");
    for (; !columns.at_end(); columns.MoveNext()) table.columns.push_back(columns.value("name").as_text());
    if (table.columns.empty()) continue;
    ado::Recordset indexes = database.Execute("pragma index_list(" + table.name + ")");
    for (; !indexes.at_end(); indexes.MoveNext()) table.indexes.push_back(indexes.value("name").as_text());
    tables.push_back(std::move(table));
  }
  return tables;
}

}  // namespace

std::vector<std::string> lacking_statements(ado::Connection& database) {
  return schema::lacking_statements(schema::Engine::sqlite, laid_tables(database));
}

std::vector<std::string> add_what_is_lacking(ado::Connection& database) {
  std::vector<std::string> statements;
  all_or_nothing(database, [&] {
    statements = lacking_statements(database);
    for (const std::string& statement : statements) database.Execute(statement);
  });
  return statements;
}

}  // namespace brunvik::host
