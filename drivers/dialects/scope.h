// The tables that a statement names, and through them the types of the columns that it names.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "drivers/dialects/columns.h"
#include "drivers/dialects/tokens.h"

namespace brunvik::dialects {

class Scope {
 public:
  Scope(std::span<const Token> tokens, Catalogue& catalogue);

  // Of a column behind the name of a table or its alias, which is empty for a column that stands alone. A column that
  // several tables have counts as money if it is money in one of them.
  ColumnType type_of(std::string_view table, std::string_view column) const;

  // Whether one of the tables has a column of this name.
  bool has_column(std::string_view name) const;

 private:
  struct Source {
    std::string_view name;
    std::string_view alias;
    const TableDescription* columns;
  };

  std::vector<Source> sources_;
};

}  // namespace brunvik::dialects
