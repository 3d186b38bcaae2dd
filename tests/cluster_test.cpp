// The books on three nodes, of which some are killed as a power cut would end them.
#include "tests/support/cluster.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <deque>
#include <filesystem>
#include <fstream>
#include <future>
#include <thread>

#include "brunvik/ado/errors.h"
#include "schema/ddl.h"
#include "tests/support/books.h"
#include "tests/support/client.h"
#include "tests/support/error_number.h"
#include "tests/support/folder.h"
#include "tests/support/told_books.h"

namespace brunvik::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Texts = std::vector<std::string>;

class Cluster : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { start_all_nodes(); }
  void TearDown() override { start_all_nodes(); }

  // The rows that a node tells.
  Texts told_by(int node, std::string_view select) const { return records(*database.open_node(node), select); }

  ClusterDatabase database;
};

class WorkOnACluster : public Cluster {
 protected:
  static constexpr int client_count = 4;

  WorkOnACluster() {
    const auto books = database.open();
    run(*books, schema::statements(schema::Engine::mariadb));
    lay_for_clients(*books, client_count);
  }

  void begin_work() {
    const Client::Work work{[this] { return database.open(); },
                            [this](int) {
                              std::this_thread::sleep_for(20ms);
                              return !std::filesystem::exists(end_of_work());
                            }};
    for (int number = 0; number < client_count; ++number) {
      clients_.emplace_back(number, work, folder_.file(std::to_string(number)));
    }
  }

  // Each client is told from now on that a statement is done, and not only the one that it has sent already.
  void expect_all_to_go_on() {
    const auto now = milliseconds_of_clients();
    const auto goes_on = [now](const Client& client) {
      const std::vector<Told> told = client.told();
      return std::count_if(told.begin(), told.end(),
                           [now](const Told& one) { return one.is_acknowledged() && one.milliseconds > now; }) > 100;
    };
    while (!std::all_of(clients_.begin(), clients_.end(), goes_on)) {
      ASSERT_LT(milliseconds_of_clients(), now + 30'000) << "a client stands still";
      std::this_thread::sleep_for(200ms);
    }
  }

  // What each client was told.
  std::vector<std::vector<Told>> end_work() {
    const std::ofstream sign(end_of_work());
    std::vector<std::vector<Told>> told;
    for (Client& client : clients_) {
      EXPECT_TRUE(client.has_ended_well());
      told.push_back(client.told());
    }
    return told;
  }

 private:
  std::string end_of_work() const { return folder_.file("end"); }

  Folder folder_;
  std::deque<Client> clients_;
};

// The longest time in which a client was told of no statement that it is done.
std::int64_t longest_stand(const std::vector<Told>& told) {
  std::int64_t longest = 0;
  std::int64_t last = told.front().milliseconds;
  for (const Told& one : told) {
    if (!one.is_acknowledged()) continue;
    longest = std::max(longest, one.milliseconds - last);
    last = one.milliseconds;
  }
  return longest;
}

TEST_F(WorkOnACluster, Goes_on_and_loses_nothing_where_the_node_that_all_work_on_is_killed_and_then_the_next) {
  begin_work();
  std::this_thread::sleep_for(4s);
  for (const int node : {1, 2}) {
    kill_node(node);
    std::this_thread::sleep_for(10s);
    start_node(node);
    expect_all_to_go_on();
  }
  const auto told = end_work();

  for (const std::vector<Told>& of_client : told) {
    ASSERT_FALSE(of_client.empty());
    const auto lost =
        std::count_if(of_client.begin(), of_client.end(), [](const Told& one) { return one.is_of_unknown_fate(); });
    EXPECT_GE(lost, 2) << "the client was not on the nodes that were killed";
    EXPECT_LT(longest_stand(of_client), 15'000);
  }

  start_all_nodes();
  const Rows rows = rows_of(*database.open_node(1));
  EXPECT_EQ(difference(rows, rows_of(*database.open_node(2))), "");
  EXPECT_EQ(difference(rows, rows_of(*database.open_node(3))), "");
  ToldBooks expected(client_count, told);
  EXPECT_GT(expected.acknowledged(), 1'000U);
  EXPECT_EQ(expected.difference_from(rows), "");
}

// A table with a thousand rows to count in.
class CountingOnACluster : public Cluster {
 protected:
  CountingOnACluster() {
    const auto books = database.open();
    run(*books, {"create table counted (id int primary key,n int not null)",
                 "insert into counted select seq,0 from seq_1_to_1000"});
  }

  // Waits for so many rows of a table of the engine's own, which tells what other connections do.
  static void wait_until_counted(ado::Connection& books, const std::string& table, int rows) {
    const std::string select = "select count(*) from " + table;
    const auto end = Clock::now() + 15s;
    while (records(books, select) != Texts{std::to_string(rows)}) {
      ASSERT_LT(Clock::now(), end) << select;
      std::this_thread::sleep_for(10ms);
    }
  }

  static Texts counts(ado::Connection& books) {
    return records(books, "select n,count(*) from counted group by n order by n");
  }
};

TEST_F(CountingOnACluster, The_statement_that_met_the_loss_is_not_sent_again_and_the_next_finds_another_node) {
  const auto books = database.open();
  const auto watcher = database.open_node(1);
  auto killing = std::async(std::launch::async, [&] {
    wait_until_counted(*watcher, "information_schema.processlist where state='User sleep'", 1);
    kill_node(1);
  });
  // Killed in its sleep, it has counted nothing; sent again it would.
  EXPECT_EQ(error_number([&] { books->Execute("update counted set n=n+1 where id=1 and sleep(20)=0"); }),
            ado::error::provider_failed);
  killing.get();
  const auto lost = Clock::now();
  books->Execute("update counted set n=n+1 where id=2");
  EXPECT_LT(Clock::now() - lost, 10s);
  EXPECT_EQ(records(*books, "select id,n from counted where id<=2 order by id"), (Texts{"1|0", "2|1"}));
}

TEST_F(CountingOnACluster, Who_did_nothing_while_the_node_was_killed_loses_one_statement) {
  const auto books = database.open();
  books->Execute("update counted set n=n+1 where id=1");
  kill_node(1);
  EXPECT_EQ(error_number([&] { books->Execute("update counted set n=n+1 where id=1"); }), ado::error::provider_failed);
  books->Execute("update counted set n=n+1 where id=2");
  EXPECT_EQ(records(*books, "select id,n from counted where id<=2 order by id"), (Texts{"1|1", "2|1"}));
}

TEST_F(CountingOnACluster, A_transaction_that_met_the_loss_is_not_in_the_books_and_the_next_finds_another_node) {
  const auto books = database.open();
  books->BeginTrans();
  books->Execute("update counted set n=1 where id=1");
  kill_node(1);
  const auto refused = [&](const char* statement) { return error_number([&] { books->Execute(statement); }); };
  EXPECT_EQ(refused("update counted set n=1 where id=2"), ado::error::provider_failed);
  EXPECT_EQ(refused("update counted set n=1 where id=3"), ado::error::provider_failed);
  books->RollbackTrans();
  books->BeginTrans();
  books->Execute("update counted set n=2 where id=4");
  books->CommitTrans();
  EXPECT_EQ(counts(*books), (Texts{"0|999", "2|1"}));
}

TEST_F(CountingOnACluster, Who_changes_the_node_reads_what_was_written_on_the_other) {
  const auto writer = database.open_node(1);
  const auto second = database.open_node(2);
  const auto third = database.open_node(3);
  for (int count = 1; count <= 200; ++count) {
    writer->Execute("update counted set n=n+1 where id<=200");
    const Texts expected{std::to_string(count)};
    ASSERT_EQ(records(*second, "select n from counted where id=200"), expected);
    ASSERT_EQ(records(*third, "select n from counted where id=200"), expected);
  }
}

TEST_F(CountingOnACluster, Who_opens_the_books_while_a_node_comes_back_finds_them_as_they_are) {
  const auto writer = database.open_node(2);
  kill_node(1);
  auto starting = std::async(std::launch::async, [] { start_node(1); });
  int count = 0;
  auto longest = Clock::duration::zero();
  while (starting.wait_for(20ms) == std::future_status::timeout) {
    writer->Execute("update counted set n=n+1 where id=1");
    ++count;
    const auto begun = Clock::now();
    const auto opened = database.open();
    ASSERT_EQ(records(*opened, "select n from counted where id=1"), Texts{std::to_string(count)});
    longest = std::max(longest, Clock::now() - begun);
  }
  starting.get();
  EXPECT_GT(count, 10);
  EXPECT_LT(longest, 10s);
}

// Both a heavy and a light statement: the engine gives up the light one.
TEST_F(CountingOnACluster, A_statement_that_is_given_up_for_a_deadlock_is_sent_again) {
  const auto heavy = database.open_node(1);
  const auto light = database.open_node(1);
  const auto deadlocks = [&] {
    return std::stoi(
        records(*heavy,
                "select variable_value from information_schema.global_status where variable_name='Innodb_deadlocks'")
            .front());
  };
  const int before = deadlocks();
  heavy->BeginTrans();
  heavy->Execute("update counted set n=n+1 where id>500");
  // It takes row 1, and waits for row 501.
  auto crossing =
      std::async(std::launch::async, [&] { light->Execute("update counted set n=n+10 where id=1 or id=501"); });
  wait_until_counted(*database.open_node(1), "information_schema.innodb_trx where trx_state='LOCK WAIT'", 1);
  heavy->Execute("update counted set n=n+1 where id=1");
  heavy->CommitTrans();
  EXPECT_EQ(error_number([&] { crossing.get(); }), 0);
  EXPECT_EQ(deadlocks(), before + 1);
  EXPECT_EQ(counts(*heavy), (Texts{"0|499", "1|499", "11|2"}));
}

TEST_F(CountingOnACluster, A_transaction_that_another_node_has_outrun_is_lost_as_a_whole) {
  const auto slow = database.open_node(1);
  const auto quick = database.open_node(2);
  slow->BeginTrans();
  slow->Execute("update counted set n=5 where id<=2");
  quick->Execute("update counted set n=7 where id=1");
  // Who reads on the first node waits until it has what the second has written.
  EXPECT_EQ(told_by(1, "select n from counted where id=1"), Texts{"7"});
  EXPECT_EQ(error_number([&] { slow->Execute("update counted set n=5 where id=3"); }), ado::error::timed_out);
  EXPECT_EQ(error_number([&] { slow->Execute("update counted set n=5 where id=4"); }), ado::error::provider_failed);
  slow->RollbackTrans();
  slow->Execute("update counted set n=9 where id=9");
  EXPECT_EQ(counts(*slow), (Texts{"0|998", "7|1", "9|1"}));
}

TEST_F(CountingOnACluster, Of_two_transactions_on_two_nodes_that_add_the_same_bill_the_later_is_lost) {
  const auto first = database.open_node(1);
  const auto second = database.open_node(2);
  for (const auto& books : {first, second}) {
    books->BeginTrans();
    EXPECT_EQ(records(*books, "select max(id) as id from counted"), Texts{"1000"});
    books->Execute("insert into counted(id,n) values(1001,1)");
  }
  first->CommitTrans();
  EXPECT_EQ(error_number([&] { second->CommitTrans(); }), ado::error::timed_out);
  EXPECT_EQ(counts(*second), (Texts{"0|1000", "1|1"}));
}

TEST_F(CountingOnACluster, A_transaction_waits_at_its_begin_for_that_of_another_user) {
  const auto first = database.open();
  const auto second = database.open();
  first->BeginTrans();
  auto waiting = std::async(std::launch::async, [&] { second->BeginTrans(); });
  EXPECT_EQ(waiting.wait_for(300ms), std::future_status::timeout);
  first->Execute("update counted set n=n+1 where id=1");
  first->CommitTrans();
  waiting.get();
  EXPECT_EQ(counts(*second), (Texts{"0|999", "1|1"}));
  second->RollbackTrans();
}

TEST_F(CountingOnACluster, A_node_that_is_cut_off_while_the_others_go_on_is_left) {
  const auto books = database.open();
  books->Execute("update counted set n=n+1 where id=1");
  cut_off_node(1);
  const auto begun = Clock::now();
  int lost = 0;
  while (error_number([&] { books->Execute("update counted set n=n+1 where id=2"); }) != 0 && lost < 3) ++lost;
  EXPECT_EQ(lost, 1);
  EXPECT_LT(Clock::now() - begun, 15s);
  EXPECT_EQ(told_by(2, "select id,n from counted where id<=2 order by id"), (Texts{"1|1", "2|1"}));
  connect_node(1);
  EXPECT_EQ(told_by(1, "select id,n from counted where id<=2 order by id"), (Texts{"1|1", "2|1"}));
}

TEST_F(CountingOnACluster, A_node_without_a_majority_gives_an_error_and_work_goes_on_when_the_others_are_back) {
  const auto books = database.open();
  kill_node(1);
  kill_node(2);
  for (int time = 0; time < 4; ++time) {
    const auto begun = Clock::now();
    EXPECT_EQ(error_number([&] { books->Execute("update counted set n=n+1 where id=1"); }),
              ado::error::provider_failed);
    EXPECT_LT(Clock::now() - begun, 30s);
  }
  EXPECT_EQ(error_number([&] { database.open(); }), ado::error::provider_failed);
  start_node(2);
  books->Execute("update counted set n=n+1 where id=2");
  start_node(1);
  books->Execute("update counted set n=n+1 where id=2");
  start_all_nodes();
  for (const int node : {1, 2, 3}) EXPECT_EQ(told_by(node, "select n from counted where id=2"), Texts{"2"});
}

}  // namespace
}  // namespace brunvik::test
