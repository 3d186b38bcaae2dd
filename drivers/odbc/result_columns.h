// The columns of a result: their names, and how the engine's values become ours.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "drivers/dialects/selection.h"
#include "drivers/odbc/handles.h"

namespace brunvik::odbc {

// An amount comes as text, since a double would not keep it. A double of a table's column is a quantity, and the single
// that was stored; one that was worked out is a double.
class ResultColumns {
 public:
  // Of a statement that was carried out or prepared, over a link that gives any column or doesn't. Throws a Failure.
  ResultColumns(const Statement& statement, const dialects::Selection& selection, bool gives_any_column);

  bool empty() const noexcept { return columns_.empty(); }
  std::size_t count() const noexcept { return columns_.size(); }

  // All rows of the statement's result, which is closed behind them. It is one statement for the life of the columns,
  // since it keeps their places. Throws a Failure.
  ado::Recordset fetch(const Statement& statement);

 private:
  enum class Kind { text, whole, amount, single, double_number };

  struct Column {
    Kind kind;
    SQLSMALLINT form;           // in which the value is fetched
    std::vector<char> place;    // the current row's value
    bool has_no_bound = false;  // a text that may be longer than its place
    bool is_bound = true;       // the value comes with its row; else it is asked for
    SQLLEN length = 0;
  };

  static Column described(const Statement& statement, SQLUSMALLINT number, std::string& name);
  void bind(const Statement& statement);
  ado::Value value(const Statement& statement, std::size_t place);

  std::shared_ptr<const ado::ColumnNames> names_;
  std::vector<Column> columns_;
  bool is_bound_ = false;
};

}  // namespace brunvik::odbc
