#include "tests/support/mariadb.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "schema/ddl.h"

namespace brunvik::test {

namespace {

std::string server() {
  const char* const address = std::getenv("BRUNVIK_TEST_MARIADB");
  return address ? address : "";
}

// The server's own empty database, from which others are made.
void on_the_server(const std::string& statement) { odbc::open(server() + ";DATABASE=books")->Execute(statement); }

std::string next_name() {
  static int count = 0;
  return "brunvik_" + std::to_string(getpid()) + "_" + std::to_string(++count);
}

}  // namespace

bool has_mariadb() { return !server().empty(); }

MariaDbDatabase::MariaDbDatabase() : name_(next_name()) {
  on_the_server("create database " + name_ + " character set utf8mb4 collate utf8mb4_uca1400_as_ci");
}

MariaDbDatabase::~MariaDbDatabase() {
  try {
    on_the_server("drop database " + name_);
  } catch (const std::exception&) {
    // A server that a test has stopped takes the database with it.
  }
}

std::string MariaDbDatabase::address() const { return server() + ";DATABASE=" + name_; }

std::shared_ptr<odbc::Connection> MariaDbDatabase::open(const odbc::Options& options) const {
  return odbc::open(address(), options);
}

MariaDbBooks::MariaDbBooks() {
  const auto books = open();
  for (const std::string& statement : schema::statements(schema::Engine::mariadb)) books->Execute(statement);
}

}  // namespace brunvik::test
