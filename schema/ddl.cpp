#include "schema/ddl.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "schema/engine_words.h"
#include "schema/tables.h"

namespace brunvik::schema {

namespace {

std::string replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t place = 0; (place = text.find(from, place)) != std::string::npos; place += to.size()) {
    text.replace(place, from.size(), to);
  }
  return text;
}

bool same_name(std::string_view left, std::string_view right) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
  return std::ranges::equal(left, right, {}, lower, lower);
}

bool has(const std::vector<std::string>& names, std::string_view name) {
  return std::ranges::any_of(names, [name](const std::string& other) { return same_name(name, other); });
}

// One name, or several separated by ", ".
std::vector<std::string> names_of(std::string_view text) {
  constexpr std::string_view between = ", ";
  std::vector<std::string> names;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(between), text.size());
    names.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + between.size(), text.size()));
  }
  return names;
}

// Each of such names in its quotes.
std::string quoted(const EngineWords& words, std::string_view names) {
  const std::string between = std::string(words.closing_quote) + ", " + std::string(words.opening_quote);
  return std::string(words.opening_quote) + replaced(std::string(names), ", ", between) +
         std::string(words.closing_quote);
}

std::string column_definition(const EngineWords& words, const Table& table, const Column& column) {
  const Declaration declared = words.declaration(column.type);
  const std::string name = quoted(words, column.name);
  std::string text = name + " " + std::string(declared.words);
  text.append(column.name == table.key ? words.key : words.no_key);
  if (!column.initial.empty()) text.append(" DEFAULT ").append(column.initial);
  if (!declared.check.empty()) text += " CHECK (" + replaced(std::string(declared.check), "{}", name) + ")";
  return text;
}

std::string own_column_definition(const EngineWords& words, const OwnColumn& column) {
  return quoted(words, column.name) + " " + column.definition;
}

// That of a column by which the rows of a new table are in order.
std::string ordered_column_definition(const EngineWords& words, const Table& table, const Column& column) {
  return column_definition(words, table, column) + " NOT NULL DEFAULT " + (column.type == Type::Key ? "''" : "0");
}

std::string create_table(const EngineWords& words, const Table& table) {
  std::string text = "CREATE TABLE " + quoted(words, table.name) + " (";
  std::string_view separator = "\n  ";
  const auto put = [&](const std::string& definition) {
    text.append(separator).append(definition);
    separator = ",\n  ";
  };
  const std::string order = words.order(table);
  const std::vector<std::string> in_order = names_of(order);
  for (const Column& column : table.columns) {
    put(has(in_order, column.name) ? ordered_column_definition(words, table, column)
                                   : column_definition(words, table, column));
  }
  for (const OwnColumn& column : words.own_columns(table)) put(own_column_definition(words, column));
  if (!order.empty()) put("PRIMARY KEY (" + quoted(words, order) + ")");
  return text + "\n)" + std::string(words.table_end);
}

std::string add_column(const EngineWords& words, const Table& table, const std::string& definition) {
  return "ALTER TABLE " + quoted(words, table.name) + " " + std::string(words.add) + definition;
}

// Whether the rows lie in the order of an index, and are found without it.
bool begins_with(const std::vector<std::string>& key, const Index& index) {
  const std::vector<std::string> columns = names_of(index.columns);
  return columns.size() <= key.size() && std::ranges::equal(columns, std::span(key).first(columns.size()), same_name);
}

// By the columns alone: an older index over all rows answers whatever one over some of them does.
std::string index_name(const Table& table, const Index& index) {
  std::string name = std::string(table.name) + "_" + replaced(index.columns, ", ", "_");
  // Of an expression its words.
  std::erase(name, ')');
  std::ranges::replace_if(
      name, [](char c) { return c == '(' || c == ' '; }, '_');
  return name;
}

std::string create_index(const EngineWords& words, const Table& table, const Index& index) {
  std::string text = "CREATE INDEX " + quoted(words, index_name(table, index)) + " ON " + quoted(words, table.name) +
                     " (" + quoted(words, index.columns) + ")";
  if (!index.condition.empty()) text += " WHERE " + index.condition;
  return text;
}

// Appends what adds the columns that a table lacks.
void add_columns(const EngineWords& words, const Table& table, const LaidTable& there, std::vector<std::string>& list) {
  for (const Column& column : table.columns) {
    if (has(there.columns, column.name)) continue;
    if (column.name == table.key) {
      throw std::runtime_error("the table " + std::string(table.name) + " lacks its key " + std::string(column.name) +
                               ", which can't be added to it");
    }
    std::string definition = column_definition(words, table, column);
    if (!column.initial.empty()) definition += words.initial_for_rows;
    list.push_back(add_column(words, table, definition));
    if (words.updates_rows && !column.initial.empty()) {
      list.push_back("UPDATE " + quoted(words, table.name) + " SET " + quoted(words, column.name) + " = " +
                     std::string(column.initial));
    }
  }
  for (const OwnColumn& column : words.own_columns(table)) {
    if (has(there.columns, column.name) || has(there.indexes, column.needless_with)) continue;
    const OwnColumn added{column.name, column.added.empty() ? column.definition : column.added};
    list.push_back(add_column(words, table, own_column_definition(words, added)));
  }
}

}  // namespace

std::span<const NamedEngine> engines() {
  static constexpr NamedEngine all[] = {{"sqlite", Engine::sqlite},
                                        {"mariadb", Engine::mariadb},
                                        {"sqlserver", Engine::sqlserver},
                                        {"access", Engine::access}};
  return all;
}

namespace {

std::vector<std::string> lacking(Engine engine, std::span<const Table> tables, std::span<const LaidTable> laid) {
  const EngineWords& words = words_of(engine);
  const LaidTable nothing;
  std::vector<std::string> list;
  for (const Table& table : tables) {
    const auto found =
        std::ranges::find_if(laid, [&](const LaidTable& other) { return same_name(table.name, other.name); });
    const bool is_there = found != laid.end();
    const LaidTable& there = is_there ? *found : nothing;
    if (is_there) {
      add_columns(words, table, there, list);
    } else {
      list.push_back(create_table(words, table));
    }
    const std::vector<std::string> key = is_there ? there.key : names_of(words.order(table));
    for (const Index& index : words.indexes(table)) {
      if (begins_with(key, index)) continue;
      if (!has(there.indexes, index_name(table, index))) list.push_back(create_index(words, table, index));
    }
  }
  return list;
}

}  // namespace

std::vector<std::string> statements(Engine engine) { return statements(engine, tables()); }

std::vector<std::string> statements(Engine engine, std::span<const Table> tables) {
  return lacking(engine, tables, {});
}

std::vector<std::string> lacking_statements(Engine engine, std::span<const LaidTable> laid) {
  return lacking(engine, tables(), laid);
}

}  // namespace brunvik::schema
