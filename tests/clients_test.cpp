// Several users at work on the same books, each a process of its own: whatever order their statements come in, nothing
// is lost and nothing is counted twice.
#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <functional>
#include <memory>

#include "drivers/sqlite/connection.h"
#include "tests/support/books.h"
#include "tests/support/client.h"
#include "tests/support/folder.h"
#include "tests/support/mariadb.h"
#include "tests/support/told_books.h"

namespace brunvik::test {
namespace {

constexpr int client_count = 8;

// How long one waits for the seven others, on a machine that has other work.
constexpr std::chrono::seconds patience{60};

struct Engine {
  std::string name;
  int documents_of_each;
  // Lays books that go with the answer, which opens a connection to them.
  std::function<std::function<ado::ConnectionReference()>(const Folder& folder)> lay;
};

const std::vector<Engine>& engines() {
  static const std::vector<Engine> list = [] {
    std::vector<Engine> all{{"sqlite", 24, [](const Folder& folder) {
                               const std::string path = folder.file("books.db");
                               lay_books(path);
                               return [path]() -> ado::ConnectionReference {
                                 return sqlite::open(path, {.busy_timeout = patience});
                               };
                             }}};
    if (has_mariadb()) {
      all.push_back({"mariadb", 48, [](const Folder&) {
                       const auto books = std::make_shared<MariaDbBooks>();
                       return [books]() -> ado::ConnectionReference { return books->open({.busy_timeout = patience}); };
                     }});
    }
    return all;
  }();
  return list;
}

class Clients : public ::testing::TestWithParam<Engine> {
 protected:
  Folder folder;
};

TEST_P(Clients, Of_eight_processes_each_finds_all_that_it_was_told_in_the_books) {
  const auto open = GetParam().lay(folder);
  lay_for_clients(*open(), client_count);
  const Client::Work work{open, [](int done) { return done < GetParam().documents_of_each; }};
  std::deque<Client> clients;
  for (int number = 0; number < client_count; ++number) {
    clients.emplace_back(number, work, folder.file(std::to_string(number)));
  }
  std::vector<std::vector<Told>> told;
  for (Client& client : clients) {
    EXPECT_TRUE(client.has_ended_well());
    told.push_back(client.told());
    for (const Told& one : told.back()) EXPECT_EQ(one.outcome, 0) << one.statement;
  }
  ToldBooks expected(client_count, told);
  const Rows rows = rows_of(*open());
  EXPECT_EQ(expected.difference_from(rows), "");
  const auto of_each_kind = static_cast<std::size_t>(client_count * GetParam().documents_of_each / 4);
  EXPECT_EQ(rows.at("StockBill").size(), 3 * of_each_kind + 1);
  EXPECT_EQ(rows.at("RPVouchers").size(), of_each_kind);
  const auto sum = [&](std::string_view select) { return records(*open(), select).front(); };
  const Money paid = Money::from_ten_thousandths(static_cast<std::int64_t>(of_each_kind) * 3'000);
  EXPECT_EQ(sum("select PaidAmount from StockBill where Id='JHR24030100001'"), Value(paid).as_text());
}

INSTANTIATE_TEST_SUITE_P(On, Clients, ::testing::ValuesIn(engines()),
                         [](const auto& engine) { return engine.param.name; });

}  // namespace
}  // namespace brunvik::test
