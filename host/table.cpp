#include "host/table.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace brunvik::host {

namespace {

constexpr std::string_view gap = "  ";

std::string cell_text(std::string_view cell, std::size_t width, bool at_right) {
  return at_right ? fmt::format("{:>{}}", cell, width) : fmt::format("{:<{}}", cell, width);
}

}  // namespace

Table::Table(std::vector<std::string> headings) : headings_(std::move(headings)) {
  for (std::string& heading : headings_) {
    at_right_.push_back(heading.starts_with('>'));
    if (at_right_.back()) heading.erase(0, 1);
  }
}

void Table::add(std::vector<std::string> cells) {
  at_right_.resize(std::max(at_right_.size(), cells.size()));
  rows_.push_back(std::move(cells));
}

void Table::make_room_for(std::vector<std::string> cells) {
  at_right_.resize(std::max(at_right_.size(), cells.size()));
  unseen_.push_back(std::move(cells));
}

std::vector<std::size_t> Table::widths() const {
  std::vector<std::size_t> widths(at_right_.size());
  const auto widen = [&](const std::vector<std::string>& cells) {
    for (std::size_t place = 0; place < cells.size(); ++place) {
      widths[place] = std::max(widths[place], display_width(cells[place]));
    }
  };
  widen(headings_);
  for (const auto& row : unseen_) widen(row);
  for (auto row : rows_) {
    // Without headings a row's last cell may stick out: nothing stands behind it.
    while (headings_.empty() && !row.empty() && row.back().empty()) row.pop_back();
    if (headings_.empty() && !row.empty()) row.pop_back();
    widen(row);
  }
  return widths;
}

std::string Table::text() const {
  const std::vector<std::size_t> widths = this->widths();
  std::string text;
  const auto append = [&](const std::vector<std::string>& cells) {
    for (std::size_t place = 0; place < cells.size(); ++place) {
      if (place > 0) text += gap;
      text += cell_text(cells[place], widths[place], at_right_[place]);
    }
    text.erase(text.find_last_not_of(' ') + 1);
    text += '\n';
  };
  if (!headings_.empty()) {
    append(headings_);
    std::vector<std::string> rules;
    rules.reserve(widths.size());
    for (const std::size_t width : widths) rules.emplace_back(width, '-');
    append(rules);
  }
  for (const auto& row : rows_) append(row);
  return text;
}

std::size_t display_width(std::string_view text) {
  // No character takes more places than it has bytes, so what is missing to as many places as bytes is padded.
  return 2 * text.size() - fmt::formatted_size("{:<{}}", text, text.size());
}

}  // namespace brunvik::host
