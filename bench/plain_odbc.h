// ODBC without the driver, as a program written by hand for the one engine would use it: each statement prepared once,
// its parameters and columns bound once, a run of it nothing but its values.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "bench/bound_text.h"
#include "drivers/odbc/handles.h"

namespace brunvik::bench {

class PlainOdbc {
 public:
  // With the settings of the engine that the driver makes, so that the same statements mean the same.
  explicit PlainOdbc(const std::string& connection_string);
  ~PlainOdbc();
  PlainOdbc(const PlainOdbc&) = delete;
  PlainOdbc& operator=(const PlainOdbc&) = delete;

  // As a text in the engine's words; what is selected is left.
  void execute(const std::string& text);

  struct Prepared;

  // A statement of the recorded texts, prepared once for all uses of it, and the values of this one.
  struct Use {
    Prepared* statement;
    std::vector<BoundValue> values;
  };
  Use prepare(std::string_view text);

  // Every row is read out.
  void execute(const Use& use);

  struct Cell {
    SQLSMALLINT form;
    std::vector<char> place;
    SQLLEN length = 0;
  };
  struct Prepared {
    odbc::Statement handle;
    std::deque<Cell> parameters, columns;
  };

 private:
  void bind_parameters(Prepared& prepared, const std::vector<BoundValue>& values) const;
  void bind_columns(Prepared& prepared) const;

  odbc::Environment environment_;
  odbc::Database database_;
  std::map<std::string, Prepared> statements_;
  // Where a value that is read out goes.
  std::string text_;
  double number_ = 0;
};

}  // namespace brunvik::bench
