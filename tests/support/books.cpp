#include "tests/support/books.h"

#include "drivers/sqlite/connection.h"
#include "schema/ddl.h"
#include "tests/support/mariadb.h"

namespace brunvik::test {

ado::ConnectionReference lay_books() {
  if (!has_mariadb()) return lay_books(":memory:");
  auto laid = std::make_shared<MariaDbBooks>();
  auto books = laid->open();
  return {books.get(), [laid, books](ado::Connection*) { books->Close(); }};
}

ado::ConnectionReference lay_books(const std::string& path) {
  auto books = sqlite::open(path, {.synchronous = sqlite::Synchronous::normal, .create = true});
  run(*books, schema::statements(schema::Engine::sqlite));
  return books;
}

void run(ado::Connection& books, const std::vector<std::string>& statements) {
  for (const std::string& statement : statements) books.Execute(statement);
}

std::vector<std::string> records(ado::Connection& books, std::string_view select) {
  std::vector<std::string> lines;
  for (auto set = books.Execute(select); !set.at_end(); set.MoveNext()) {
    std::string line;
    for (std::size_t column = 0; column < set.names().size(); ++column) {
      const Value& value = set.value(ado::Column{column});
      if (column > 0) line += '|';
      line += value.is_null() ? "null" : value.as_text();
    }
    lines.push_back(line);
  }
  return lines;
}

}  // namespace brunvik::test
