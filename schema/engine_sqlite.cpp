#include "schema/engine_words.h"

namespace brunvik::schema {

namespace {

// SQLite stores whatever it is given, so a column of numbers must refuse the rest itself. The words are what
// the driver reads a column's type back from; their affinities turn a number in quotes into a number. The
// checks cost next to nothing, as long as no list in them is longer than two: SQLite builds a table for a
// longer one, which makes an insert three times as slow.
Declaration declaration(Type type) {
  constexpr std::string_view whole = "{} IS NULL OR typeof({}) = 'integer'";
  constexpr std::string_view number = "typeof({}) NOT IN ('text', 'blob')";
  switch (type) {
    case Type::Key:
    case Type::Text:
    case Type::Memo:
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

// Where the numbers of a column of texts are asked for, one index holds them, and another the texts that are no plain
// numbers: none, as long as nobody enters one by hand.
std::vector<Index> indexes(const Table& table) {
  std::vector<Index> list;
  for (const std::string_view text : table.indexes) list.push_back(described_index(text));
  if (!table.numbered.empty()) {
    const std::string column(table.numbered);
    list.push_back({"CAST(" + column + " AS INTEGER)"});
    list.push_back({column, "length(" + column + ") NOT BETWEEN 1 AND 9 OR " + column + " GLOB '*[^0-9]*'"});
  }
  return list;
}

}  // namespace

const EngineWords& sqlite_words() {
  static constexpr EngineWords words{
      .declaration = declaration,
      .indexes = indexes,
  };
  return words;
}

}  // namespace brunvik::schema
