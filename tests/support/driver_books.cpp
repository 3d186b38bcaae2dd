#include "tests/support/driver_books.h"

#include "drivers/sqlite/connection.h"
#include "tests/support/folder.h"
#include "tests/support/mariadb.h"
#include "tests/support/small_books.h"

namespace brunvik::test {

namespace {

using namespace std::chrono_literals;

template <class Connection>
class PlaceOf : public BookPlace {
 public:
  void close(ado::Connection& books) const override { dynamic_cast<Connection&>(books).Close(); }
  std::size_t cached_statements(const ado::Connection& books) const override {
    return dynamic_cast<const Connection&>(books).cached_statements();
  }
};

class SqlitePlace final : public PlaceOf<sqlite::Connection> {
 public:
  std::shared_ptr<ado::Connection> open() const override { return opened({}); }
  std::shared_ptr<ado::Connection> open_impatient() const override { return opened({.busy_timeout = 5ms}); }
  std::shared_ptr<ado::Connection> open_with(std::size_t cached_statements) const override {
    return opened({.cached_statements = cached_statements});
  }

 private:
  std::shared_ptr<ado::Connection> opened(sqlite::Options options) const {
    options.synchronous = sqlite::Synchronous::normal;
    options.create = true;
    return sqlite::open(folder_.file("books.db"), options);
  }

  Folder folder_;
};

class MariaDbPlace final : public PlaceOf<odbc::Connection> {
 public:
  std::shared_ptr<ado::Connection> open() const override { return database_.open(); }
  std::shared_ptr<ado::Connection> open_impatient() const override { return database_.open({.busy_timeout = 1s}); }
  std::shared_ptr<ado::Connection> open_with(std::size_t cached_statements) const override {
    return database_.open({.cached_statements = cached_statements});
  }

 private:
  MariaDbDatabase database_;
};

}  // namespace

const std::vector<DriverEngine>& driver_engines() {
  static const std::vector<DriverEngine> list = [] {
    std::vector<DriverEngine> engines{
        {"sqlite", schema::Engine::sqlite, [] { return std::make_unique<SqlitePlace>(); }}};
    if (has_mariadb()) {
      engines.push_back({"mariadb", schema::Engine::mariadb, [] { return std::make_unique<MariaDbPlace>(); }});
    }
    return engines;
  }();
  return list;
}

std::vector<DriverEngine> mariadb_alone() {
  std::vector<DriverEngine> engines = driver_engines();
  std::erase_if(engines, [](const DriverEngine& engine) { return engine.engine != schema::Engine::mariadb; });
  return engines;
}

DriverBooks::DriverBooks() { test::lay(*books, GetParam().engine, small_tables()); }

void DriverBooks::lay(const schema::Table& table) { test::lay(*books, GetParam().engine, {&table, 1}); }

void DriverBooks::expect_refused(std::string_view statement, std::string_view reason) {
  const auto failure = failure_of([&] { run(statement); });
  EXPECT_EQ(failure.number(), ado::error::statement_refused) << statement << ": " << failure.description();
  EXPECT_TRUE(holds(failure, reason)) << statement << ": " << failure.description();
  EXPECT_EQ(failure.statement(), statement);
}

void DriverBooks::expect_taken(std::string_view statement) { EXPECT_EQ(error_of(*books, statement), 0) << statement; }

std::string literal_of(std::string_view text) {
  std::string literal = "'";
  for (const char c : text) {
    literal += c;
    if (c == '\'') literal += c;
  }
  return literal + "'";
}

}  // namespace brunvik::test
