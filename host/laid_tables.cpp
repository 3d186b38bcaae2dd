#include "host/laid_tables.h"

#include <algorithm>
#include <utility>

#include "schema/ddl.h"

namespace brunvik::host {

namespace {

using Laid = std::vector<schema::LaidTable>;

// A table without columns isn't there.
Laid laid_in_a_file(ado::Connection& database) {
  Laid tables;
  for (const std::string& name : names_of_tables()) {
    schema::LaidTable table{name, {}, {}};
    ado::Recordset columns = database.Execute("pragma table_info(" + name + ")");
    for (; !columns.at_end(); columns.MoveNext()) table.columns.push_back(columns.value("name").as_text());
    if (table.columns.empty()) continue;
    ado::Recordset indexes = database.Execute("pragma index_list(" + name + ")");
    for (; !indexes.at_end(); indexes.MoveNext()) table.indexes.push_back(indexes.value("name").as_text());
    tables.push_back(std::move(table));
  }
  return tables;
}

std::string_view names_of_indexes(schema::Engine engine) {
  return engine == schema::Engine::mariadb
             ? "select distinct table_name as t, index_name as name from information_schema.statistics "
               "where table_schema=database()"
             : "select object_name(object_id) as t, name from sys.indexes where name is not null";
}

std::string_view names_of_columns(schema::Engine engine) {
  return engine == schema::Engine::mariadb
             ? "select table_name as t, column_name as name from information_schema.columns "
               "where table_schema=database() order by table_name, ordinal_position"
             : "select table_name as t, column_name as name from information_schema.columns "
               "where table_schema=schema_name() order by table_name, ordinal_position";
}

// In their order.
constexpr std::string_view columns_of_mariadb_keys =
    "select table_name as t, column_name as name from information_schema.statistics where table_schema=database() and "
    "index_name='PRIMARY' order by table_name, seq_in_index";

// Puts each name into a list of the table that it belongs to.
void put_names(Laid& tables, ado::Recordset names, std::vector<std::string> schema::LaidTable::*list) {
  for (; !names.at_end(); names.MoveNext()) {
    const std::string name = names.value("t").as_text();
    const auto table =
        std::find_if(tables.begin(), tables.end(), [&name](const auto& laid) { return laid.name == name; });
    if (table != tables.end()) ((*table).*list).push_back(names.value("name").as_text());
  }
}

Laid laid_on_a_server(ado::Connection& database, schema::Engine engine) {
  Laid tables;
  ado::Recordset columns = database.Execute(names_of_columns(engine));
  for (; !columns.at_end(); columns.MoveNext()) {
    const std::string name = columns.value("t").as_text();
    if (tables.empty() || tables.back().name != name) tables.push_back({name, {}, {}});
    tables.back().columns.push_back(columns.value("name").as_text());
  }
  put_names(tables, database.Execute(names_of_indexes(engine)), &schema::LaidTable::indexes);
  if (engine == schema::Engine::mariadb) {
    put_names(tables, database.Execute(columns_of_mariadb_keys), &schema::LaidTable::key);
  }
  return tables;
}

Laid laid_tables(const Database& database) {
  if (database.engine == schema::Engine::sqlite) return laid_in_a_file(*database.connection);
  return laid_on_a_server(*database.connection, database.engine);
}

void lay(const Database& database, const std::vector<std::string>& statements) {
  for (const std::string& statement : statements) database.connection->Execute(statement);
}

}  // namespace

std::vector<std::string> lacking_statements(const Database& database) {
  return schema::lacking_statements(database.engine, laid_tables(database));
}

std::vector<std::string> add_what_is_lacking(const Database& database) {
  std::vector<std::string> statements;
  const auto add = [&] {
    statements = lacking_statements(database);
    lay(database, statements);
  };
  if (database.engine == schema::Engine::sqlite) {
    all_or_nothing(*database.connection, add);
  } else {
    add();
  }
  return statements;
}

}  // namespace brunvik::host
