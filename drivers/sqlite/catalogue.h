// What the database says of its columns: the declared types, found once for each table.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace brunvik::sqlite {

// How the values of a column are kept and returned.
enum class ColumnType {
  text,
  key,  // text with an index
  money,
  single,
  byte_number,
  integer_number,  // 16 bits
  long_number,     // 32 bits
  bit,
  other,
};

// By the words of the declaration: MONEY, REAL, INTEGER, SMALLINT, TINYINT, BIT, TEXT and their like.
ColumnType type_of_declaration(std::string_view declaration) noexcept;

// The lowest and the highest whole number that a column of a type holds; none for a type that isn't bounded so.
struct WholeRange {
  std::int64_t low;
  std::int64_t high;
};
std::optional<WholeRange> whole_range(ColumnType type) noexcept;

struct ColumnDescription {
  std::string name;
  ColumnType type;
};

using TableDescription = std::vector<ColumnDescription>;

// The type of a column by its name, without regard to case.
std::optional<ColumnType> type_of_column(const TableDescription& table, std::string_view name) noexcept;

class Catalogue {
 public:
  explicit Catalogue(sqlite3* database) : database_(database) {}

  // The columns of a table or a view, empty where there is none. Good until the next forget.
  const TableDescription& table(std::string_view name);

  // Whether the table has an index on CAST(column AS INTEGER).
  bool has_number_index(std::string_view table, std::string_view column);

  // To be called when the database's tables may have changed.
  void forget() noexcept { tables_.clear(); }

 private:
  sqlite3* database_;
  std::map<std::string, TableDescription, std::less<>> tables_;
};

}  // namespace brunvik::sqlite
