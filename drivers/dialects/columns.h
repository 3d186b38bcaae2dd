// What a database says of its columns, as far as statements are read by it: found once for each table.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brunvik::dialects {

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
  Catalogue() = default;
  Catalogue(const Catalogue&) = delete;
  Catalogue& operator=(const Catalogue&) = delete;
  virtual ~Catalogue() = default;

  // The columns of a table or a view, empty where there is none. Good until the next forget.
  const TableDescription& table(std::string_view name);

  // To be called when the database's tables may have changed.
  void forget() noexcept { tables_.clear(); }

 private:
  // Asks the database for the columns; none where it has no table of this name.
  virtual TableDescription read(std::string_view name) = 0;

  std::map<std::string, TableDescription, std::less<>> tables_;
};

}  // namespace brunvik::dialects
