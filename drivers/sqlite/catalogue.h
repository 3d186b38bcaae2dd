// What SQLite says of its columns.
#pragma once

#include <string_view>

#include "drivers/dialects/columns.h"
#include "drivers/sqlite/dialects.h"

struct sqlite3;

namespace brunvik::sqlite {

// By the words of the declaration: MONEY, REAL, INTEGER, SMALLINT, TINYINT, BIT, TEXT and their like.
ColumnType type_of_declaration(std::string_view declaration) noexcept;

class Catalogue final : public dialects::Catalogue {
 public:
  explicit Catalogue(sqlite3* database) : database_(database) {}

  // Whether the table has an index on CAST(column AS INTEGER).
  bool has_number_index(std::string_view table, std::string_view column);

 private:
  TableDescription read(std::string_view name) override;

  sqlite3* database_;
};

}  // namespace brunvik::sqlite
