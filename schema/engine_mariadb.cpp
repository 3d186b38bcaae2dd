// MariaDB 10.10 and later, and a Galera cluster of them.
#include "schema/engine_words.h"

namespace brunvik::schema {

namespace {

// An index has 3,072 bytes, 4 for a character: four keys and a number stand in one. A row's columns, those of any
// length apart, have 65,535 bytes together, as wide as they are declared. A column of more than 255 bytes may lie
// outside of its page, so that the longest row has a place.
Declaration declaration(Type type) {
  switch (type) {
    case Type::Key:
      return {"VARCHAR(190)"};
    case Type::Text:
      return {"VARCHAR(500)"};
    case Type::Memo:
      return {"LONGTEXT"};
    case Type::Date:
      return {"VARCHAR(100)"};
    case Type::Byte:
      return {"TINYINT UNSIGNED"};
    case Type::Integer:
      return {"SMALLINT"};
    case Type::Long:
      return {"INT"};
    case Type::Boolean:
      // A BIT doesn't take a 1 in quotes.
      return {"TINYINT"};
    case Type::Single:
      // The driver assigns the double nearest to the decimal in which a single is written. A FLOAT is a binary
      // fraction, and 0.1 in a statement another one.
      return {"DOUBLE"};
    case Type::Money:
      return {"DECIMAL(19,4)"};
  }
  return {};
}

std::string number_column(const Table& table) { return "NumberOf" + std::string(table.numbered); }

// A cluster wants a primary key in every table. The rows lie in its order, and every other index leads through it:
// where the rows of a bill lie together, they are found without an index of their own and without a way through the key
// for each. A number that the engine counts up wants an index for itself. One of UUID_SHORT doesn't, and rises as well;
// it has to tell apart no more than two rows of one bill and one number.
OwnColumn row_key(const Table& table) {
  const std::string type = "BIGINT UNSIGNED NOT NULL ";
  const std::string counted = type + "AUTO_INCREMENT INVISIBLE PRIMARY KEY";
  return {"RowKey", table.order.empty() ? counted : type + "DEFAULT (UUID_SHORT()) INVISIBLE", "PRIMARY", counted};
}

std::string order(const Table& table) {
  return table.order.empty() ? "" : std::string(table.order) + ", " + row_key(table).name;
}

// The engine knows no index over an expression: the number that a text stands for is kept in a column, null where the
// text is no plain number, so that one index tells the highest number and whether there is such a text. Without the
// question what the text looks like, one that is no number would refuse the update that writes it.
std::vector<OwnColumn> own_columns(const Table& table) {
  std::vector<OwnColumn> list;
  if (table.key.empty()) list.push_back(row_key(table));
  if (!table.numbered.empty()) {
    const std::string text = "`" + std::string(table.numbered) + "`";
    list.push_back({number_column(table), "INT GENERATED ALWAYS AS (CASE WHEN CHAR_LENGTH(" + text +
                                              ") BETWEEN 1 AND 9 AND " + text + " NOT REGEXP '[^0-9]' THEN CAST(" +
                                              text + " AS SIGNED) END) PERSISTENT INVISIBLE"});
  }
  return list;
}

std::vector<Index> indexes(const Table& table) {
  std::vector<Index> list = plain_indexes(table);
  if (!table.numbered.empty()) list.push_back({number_column(table)});
  return list;
}

}  // namespace

const EngineWords& mariadb_words() {
  static constexpr EngineWords words{
      .opening_quote = "`",
      .closing_quote = "`",
      .declaration = declaration,
      .table_end = " ENGINE=InnoDB ROW_FORMAT=DYNAMIC DEFAULT CHARACTER SET=utf8mb4 COLLATE=utf8mb4_uca1400_as_ci",
      .own_columns = own_columns,
      .order = order,
      .indexes = indexes,
  };
  return words;
}

}  // namespace brunvik::schema
