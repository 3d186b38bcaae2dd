// The books as the demo shows them: stock, average cost, bills and vouchers, as tables with headings.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "host/interpreter.h"

namespace brunvik::host {

class DemoBooks {
 public:
  DemoBooks(Interpreter& interpreter, std::ostream& out) : interpreter_(interpreter), out_(out) {}

  // The tables that aren't what they were when they were shown last.
  void show_changes();

 private:
  std::string table_of(const std::string& statement, const std::vector<std::string>& headings);

  Interpreter& interpreter_;
  std::ostream& out_;
  std::map<std::string_view, std::string> shown_;
};

// The answer to a line. Throws a RuntimeError where the line was refused.
Json ask(Interpreter& interpreter, const Json& line);

}  // namespace brunvik::host
