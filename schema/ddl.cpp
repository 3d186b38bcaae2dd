#include "schema/ddl.h"

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

std::string create_table(Engine engine, const Table& table) {
  std::string text = "CREATE TABLE " + std::string(table.name) + " (";
  std::string_view separator = "\n  ";
  for (const Column& column : table.columns) {
    const Declaration declared = declaration(engine, column.type);
    text.append(separator).append(column.name).append(" ").append(declared.words);
    if (column.name == table.key) text.append(" NOT NULL PRIMARY KEY");
    if (!column.initial.empty()) text.append(" DEFAULT ").append(column.initial);
    if (!declared.check.empty()) {
      text.append(" CHECK (").append(replaced(std::string(declared.check), "{}", column.name)).append(")");
    }
    separator = ",\n  ";
  }
  return text + "\n)";
}

std::string create_index(const Table& table, std::string_view columns) {
  const std::string on(columns);
  const std::string name(table.name);
  return "CREATE INDEX " + name + "_" + replaced(on, ", ", "_") + " ON " + name + " (" + on + ")";
}

}  // namespace

std::vector<std::string> statements(Engine engine) {
  std::vector<std::string> list;
  for (const Table& table : tables()) {
    list.push_back(create_table(engine, table));
    for (const std::string_view columns : table.indexes) list.push_back(create_index(table, columns));
  }
  return list;
}

}  // namespace brunvik::schema
