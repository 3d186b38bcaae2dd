// Text in columns, each as wide as its widest cell. A Chinese character takes two places on a screen.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brunvik::host {

class Table {
 public:
  // A table without headings.
  Table() = default;

  // Headings with a rule below; a heading that begins with ">" stands, with its column, at the right.
  explicit Table(std::vector<std::string> headings);

  void add(std::vector<std::string> cells);

  // The columns get as wide as for these cells, which aren't shown.
  void make_room_for(std::vector<std::string> cells);

  // One row a line, without blanks at its end.
  std::string text() const;

 private:
  std::vector<std::size_t> widths() const;

  std::vector<std::string> headings_;
  std::vector<bool> at_right_;
  std::vector<std::vector<std::string>> rows_;
  std::vector<std::vector<std::string>> unseen_;
};

// How many places a text takes on a screen.
std::size_t display_width(std::string_view text);

}  // namespace brunvik::host
