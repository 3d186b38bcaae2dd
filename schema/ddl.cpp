#include "schema/ddl.h"

#include <algorithm>
#include <functional>
#include <stdexcept>

#include "schema/tables.h"

namespace brunvik::schema {

namespace {

// How an engine declares a column of a type. All that differs from engine to engine stands here.
struct Declaration {
  std::string_view words;
  std::string_view check = {};  // what a value must fulfil, {} being the column; empty: the engine sees to it
};

// SQLite stores whatever it is given, so a column of numbers must refuse the rest itself. The words are what
// the driver reads a column's type back from; their affinities turn a number in quotes into a number. The
// checks cost next to nothing, as long as no list in them is longer than two: SQLite builds a table for a
// longer one, which makes an insert three times as slow.
Declaration sqlite(Type type) {
  constexpr std::string_view whole = "{} IS NULL OR typeof({}) = 'integer'";
  constexpr std::string_view number = "typeof({}) NOT IN ('text', 'blob')";
  switch (type) {
    case Type::Text:
    case Type::Date:
      return {"TEXT COLLATE NOCASE"};
    case Type::Byte:
      return {"TINYINT", whole};
    case Type::Integer:
      return {"SMALLINT", whole};
    case Type::Long:
      return {"INTEGER", whole};
    case Type::Boolean:
      return {"BIT", whole};
    case Type::Single:
      return {"REAL", number};
    case Type::Money:
      return {"MONEY", number};
  }
  return {};
}

Declaration declaration(Engine engine, Type type) {
  switch (engine) {
    case Engine::sqlite:
      return sqlite(type);
  }
  return {};
}

std::string replaced(std::string text, std::string_view from, std::string_view to) {
  for (std::size_t place = 0; (place = text.find(from, place)) != std::string::npos; place += to.size()) {
    text.replace(place, from.size(), to);
  }
  return text;
}

std::string column_definition(Engine engine, const Table& table, const Column& column) {
  const Declaration declared = declaration(engine, column.type);
  std::string text(column.name);
  text.append(" ").append(declared.words);
  if (column.name == table.key) text.append(" NOT NULL PRIMARY KEY");
  if (!column.initial.empty()) text.append(" DEFAULT ").append(column.initial);
  if (!declared.check.empty()) {
    text.append(" CHECK (").append(replaced(std::string(declared.check), "{}", column.name)).append(")");
  }
  return text;
}

std::string create_table(Engine engine, const Table& table) {
  std::string text = "CREATE TABLE " + std::string(table.name) + " (";
  std::string_view separator = "\n  ";
  for (const Column& column : table.columns) {
    text.append(separator).append(column_definition(engine, table, column));
    separator = ",\n  ";
  }
  return text + "\n)";
}

std::string add_column(Engine engine, const Table& table, const Column& column) {
  const std::string name(table.name);
  if (column.name == table.key) {
    throw std::runtime_error("the table " + name + " lacks its key " + std::string(column.name) +
                             ", which can't be added to it");
  }
  return "ALTER TABLE " + name + " ADD COLUMN " + column_definition(engine, table, column);
}

struct IndexParts {
  std::string columns;
  std::string condition;
};

IndexParts parts_of(std::string_view index) {
  constexpr std::string_view where = " where ";
  const auto condition = index.find(where);
  if (condition == std::string_view::npos) return {std::string(index), {}};
  return {std::string(index.substr(0, condition)), std::string(index.substr(condition + where.size()))};
}

// By the columns alone: an older index over all rows answers whatever one over some of them does.
std::string index_name(const Table& table, std::string_view index) {
  std::string name = std::string(table.name) + "_" + replaced(parts_of(index).columns, ", ", "_");
  // Of an expression its words.
  std::erase(name, ')');
  std::ranges::replace_if(
      name, [](char c) { return c == '(' || c == ' '; }, '_');
  return name;
}

std::string create_index(const Table& table, std::string_view index) {
  const auto [columns, condition] = parts_of(index);
  std::string text =
      "CREATE INDEX " + index_name(table, index) + " ON " + std::string(table.name) + " (" + columns + ")";
  if (!condition.empty()) text += " WHERE " + condition;
  return text;
}

bool same_name(std::string_view left, std::string_view right) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
  return std::ranges::equal(left, right, {}, lower, lower);
}

bool has(const std::vector<std::string>& names, std::string_view name) {
  return std::ranges::any_of(names, [name](const std::string& other) { return same_name(name, other); });
}

}  // namespace

std::vector<std::string> statements(Engine engine) { return lacking_statements(engine, {}); }

std::vector<std::string> lacking_statements(Engine engine, std::span<const LaidTable> laid) {
  const LaidTable nothing;
  std::vector<std::string> list;
  for (const Table& table : tables()) {
    const auto found =
        std::ranges::find_if(laid, [&](const LaidTable& other) { return same_name(table.name, other.name); });
    const bool is_there = found != laid.end();
    const LaidTable& there = is_there ? *found : nothing;
    if (!is_there) list.push_back(create_table(engine, table));
    for (const Column& column : table.columns) {
      if (is_there && !has(there.columns, column.name)) list.push_back(add_column(engine, table, column));
    }
    for (const std::string_view index : table.indexes) {
      if (!has(there.indexes, index_name(table, index))) list.push_back(create_index(table, index));
    }
  }
  return list;
}

}  // namespace brunvik::schema
