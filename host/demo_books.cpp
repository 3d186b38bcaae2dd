#include "host/demo_books.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

#include "host/table.h"

namespace brunvik::host {

namespace {

std::string cell_text(const Json& cell) {
  if (cell.is_null()) return {};
  return cell.is_string() ? cell.get<std::string>() : cell.dump();
}

}  // namespace

DemoBooks::DemoBooks(Interpreter& interpreter, std::ostream& out, const std::vector<StoryTable>& tables)
    : interpreter_(interpreter), out_(out) {
  for (const StoryTable& table : tables) known_.push_back({table, {}});
}

void DemoBooks::look() {
  for (Known& known : known_) known.rows = rows_of(known.table);
}

void DemoBooks::show_changes() {
  for (auto& [table, before] : known_) {
    std::vector<Row> rows = rows_of(table);
    // All rows make the columns' widths, so that what is shown stands below what was shown earlier.
    Table shown(table.headings);
    bool changed = false;
    for (const Row& row : rows) {
      const auto same = std::ranges::find(before, row);
      if (same == before.end()) {
        shown.add(row);
        changed = true;
      } else {
        shown.make_room_for(row);
        before.erase(same);
      }
    }
    for (const Row& gone : before) {
      Row row(gone.begin(), std::next(gone.begin(), static_cast<std::ptrdiff_t>(table.keys)));
      const auto is_there = [&](const Row& other) { return std::equal(row.begin(), row.end(), other.begin()); };
      if (std::ranges::any_of(rows, is_there)) continue;
      row.emplace_back("已删除");
      shown.add(std::move(row));
      changed = true;
    }
    if (changed) out_ << '\n' << table.title << '\n' << shown.text();
    before = std::move(rows);
  }
}

std::vector<DemoBooks::Row> DemoBooks::rows_of(const StoryTable& table) {
  std::vector<Row> rows;
  const Json answer = ask(interpreter_, {{"do", "sql"}, {"text", table.statement}});
  if (answer.at("columns").size() != table.headings.size()) {
    throw UnreadableStory("the table " + table.title + " has another count of headings than of columns");
  }
  for (const Json& cells : answer.at("rows")) {
    Row& row = rows.emplace_back();
    for (const Json& cell : cells) row.push_back(cell_text(cell));
  }
  return rows;
}

Json ask(Interpreter& interpreter, const Json& line) {
  Json answer = parse_object(interpreter.answer(one_line(line)));
  if (const Json* error = find(answer, "error")) {
    throw ado::RuntimeError(error->at("number").get<Long>(), error->at("description").get<std::string>());
  }
  return answer;
}

}  // namespace brunvik::host
