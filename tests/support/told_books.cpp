#include "tests/support/told_books.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "brunvik/ado/errors.h"
#include "drivers/sqlite/connection.h"
#include "schema/ddl.h"
#include "schema/tables.h"
#include "tests/support/books.h"

namespace brunvik::test {

namespace {

// An average replaces the one before, whether that came into the books or not: a client that goes on writes it anew.
bool is_replaced_later(const Told& told) { return told.statement.starts_with("UPDATE GOODS SET AVERAGECOST="); }

}  // namespace

Rows rows_of(ado::Connection& books) {
  Rows rows;
  for (const schema::Table& table : schema::tables()) {
    const std::string name(table.name);
    std::vector<std::string> found = records(books, "select * from " + name);
    std::sort(found.begin(), found.end());
    rows.emplace(name, std::move(found));
  }
  return rows;
}

std::string difference(const Rows& first, const Rows& second) {
  for (const auto& [table, rows] : first) {
    const auto& others = second.find(table)->second;
    std::vector<std::string> missed;
    std::set_symmetric_difference(rows.begin(), rows.end(), others.begin(), others.end(), std::back_inserter(missed));
    if (!missed.empty()) return table + ": " + missed.front() + " and " + std::to_string(missed.size() - 1) + " more";
  }
  return {};
}

ToldBooks::ToldBooks(int clients, const std::vector<std::vector<Told>>& told)
    : books_(sqlite::open(":memory:", {.create = true})) {
  run(*books_, schema::statements(schema::Engine::sqlite));
  lay_for_clients(*books_, clients);
  books_->BeginTrans();
  for (const std::vector<Told>& of_client : told) {
    for (const Told& one : of_client) {
      if (!one.changes_the_books()) continue;
      if (one.is_acknowledged()) {
        books_->Execute(one.statement);
        ++acknowledged_;
      } else if (one.is_of_unknown_fate() && !is_replaced_later(one)) {
        unknown_.push_back(one.statement);
      }
    }
  }
  books_->CommitTrans();
}

// Runs those whose bits the choice has. Where a bill never came in, its number went to the next, so that the two can't
// both have run.
bool ToldBooks::run_of_unknown_fate(std::size_t choice) try {
  for (std::size_t place = 0; place < unknown_.size(); ++place) {
    if ((choice >> place & 1) != 0) books_->Execute(unknown_[place]);
  }
  return true;
} catch (const ado::RuntimeError& failure) {
  if (failure.number() != ado::error::constraint_violated) throw;
  return false;
}

std::string ToldBooks::difference_from(const Rows& rows) {
  constexpr std::size_t most_choices = 12;
  if (unknown_.size() > most_choices) throw std::runtime_error("too many statements of unknown fate to choose from");
  std::string first_found;
  for (std::size_t choice = 0; choice < std::size_t{1} << unknown_.size(); ++choice) {
    books_->BeginTrans();
    const std::string found = run_of_unknown_fate(choice) ? difference(rows_of(*books_), rows) : "a key taken twice";
    books_->RollbackTrans();
    if (found.empty()) return {};
    if (choice == 0) first_found = found;
  }
  return first_found;
}

}  // namespace brunvik::test
