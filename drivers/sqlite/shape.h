// A shape of statements, prepared: takes the values of one statement of the shape and returns what it selects.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "drivers/dialects/cutter.h"
#include "drivers/sqlite/dialects.h"
#include "drivers/sqlite/rewriting.h"
#include "drivers/sqlite/statement.h"

namespace brunvik::sqlite {

// The columns of a result: their names, and how the engine's values become ours.
class ResultColumns {
 public:
  ResultColumns(sqlite3_stmt* statement, const Rewritten& rewritten);

  bool empty() const noexcept { return types_.empty(); }
  const std::shared_ptr<const ado::ColumnNames>& names() const noexcept { return names_; }

  // Adds the values of the statement's current row.
  void fetch(sqlite3_stmt* statement, std::vector<ado::Value>& cells) const;

 private:
  std::shared_ptr<const ado::ColumnNames> names_;
  std::vector<ColumnType> types_;
};

class Shape {
 public:
  Shape(Statement statement, Rewritten rewritten);

  // How many values a statement of the shape has.
  std::size_t values() const noexcept { return targets_.size(); }

  // Steps through the statement. The result is SQLITE_DONE, or the code of the failure, whose text the database has;
  // of SQLITE_SCHEMA when the tables have changed since it was prepared, and nothing has been done. `text` is the
  // statement for the errors that are found in the values themselves.
  int run(std::span<const Literal> literals, std::string_view text, ado::Recordset& result);

  // The bytes that the prepared statement takes, with the room for its values.
  std::size_t held_bytes() const noexcept;

 private:
  void bind(std::span<const Literal> literals, std::string_view text);
  void bind_text(int place, const Literal& literal, Target target, std::string_view text);
  void bind_number(int place, std::string_view digits, bool negative, Target target, std::string_view text);

  Statement statement_;
  std::vector<Target> targets_;
  ResultColumns columns_;
  std::string plain_texts_;  // texts with each of their apostrophes once, for as long as they are bound
};

}  // namespace brunvik::sqlite
