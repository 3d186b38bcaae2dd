// The books as the demo shows them: what a verb changed in a story's tables.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "host/interpreter.h"
#include "host/story.h"

namespace brunvik::host {

class DemoBooks {
 public:
  DemoBooks(Interpreter& interpreter, std::ostream& out, const std::vector<StoryTable>& tables);

  // Takes the tables as they are for known.
  void look();

  // Shows the rows that are new or other than they were when they were known last, and which are gone.
  void show_changes();

 private:
  using Row = std::vector<std::string>;

  struct Known {
    StoryTable table;
    std::vector<Row> rows;
  };

  std::vector<Row> rows_of(const StoryTable& table);

  Interpreter& interpreter_;
  std::ostream& out_;
  std::vector<Known> known_;
};

// The answer to a line. Throws a RuntimeError where the line was refused.
Json ask(Interpreter& interpreter, const Json& line);

}  // namespace brunvik::host
