// Several users at work on the same books, each a process of its own: how many documents they post in a second, from
// the proposed number to the audit, and how long a statement takes at worst.
#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/life.h"
#include "brunvik/ado/clock.h"
#include "brunvik/ado/wire.h"
#include "drivers/odbc/connection.h"
#include "schema/ddl.h"

namespace brunvik::bench {

namespace {

using Clock = std::chrono::steady_clock;
using Open = std::function<ado::ConnectionReference()>;

constexpr int clients_of_a_company = 8;

struct Figures {
  std::int64_t documents = 0;
  std::int64_t longest_wait = 0;  // microseconds
};

// The goods and the bills that the documents name, all goods in stock.
void lay_small_books(ado::Connection& books, schema::Engine engine) {
  for (const std::string& statement : schema::statements(engine)) books.Execute(statement);
  const auto insert = [&](const char* format, unsigned number) {
    std::array<char, 256> text{};
    std::snprintf(text.data(), text.size(), format, number);
    books.Execute(text.data());
  };
  books.BeginTrans();
  for (unsigned number = 0; number < goods_count; ++number) {
    insert("insert into goods(id,Class,Unit,Model1,Model2,AverageCost) values('G%04u','五金','盒','','',2)", number);
    insert("insert into GoodsUnit values('G%04u','箱',12)", number);
    for (const char* const format :
         {"insert into Inventory values('W1','G%04u','','',0,'五金','盒',5000,1000,4000,'')",
          "insert into Inventory values('W2','G%04u','','',0,'五金','盒',5000,1000,4000,'')"}) {
      insert(format, number);
    }
  }
  for (unsigned number = 1; number <= bills_a_day; number += 10) {
    insert("insert into StockBill(Id,Type,Status,PaidAmount,CloseAmount) values('JHR240304%05u',2,3,0,1000000)",
           number);
  }
  books.CommitTrans();
}

bool is_posting(const Step& step) {
  constexpr std::array<std::string_view, 5> steps{"", "GetNewId", "Save", "Audit", "Audite"};
  return std::find(steps.begin(), steps.end(), step.verb) != steps.end();
}

// Each has a day of its own, so that no two are proposed the same number.
Figures post(int client, const Open& open, Clock::time_point start, Clock::time_point end) {
  ado::set_clock([day = ado::parse_date("2024-03-" + std::to_string(10 + client) + " 10:00:00")] { return day; });
  const ado::ConnectionReference books = open();
  start_session(books);
  Figures figures;
  const auto post_next = [&](unsigned seed) {
    const Document& document = documents[seed % std::size(documents)];
    live(document.life(books, seed, Numbering::proposed), [](const Step& step) {
      if (is_posting(step)) run(step);
    });
  };
  auto seed = static_cast<unsigned>(client) * 100'000;
  for (const Document& document : documents) {
    static_cast<void>(document);
    post_next(seed++);
  }
  std::this_thread::sleep_until(start);
  ado::set_statement_hook([&](const ado::SentStatement& sent) {
    figures.longest_wait = std::max(figures.longest_wait, sent.microseconds);
  });
  for (; Clock::now() < end; ++figures.documents) post_next(seed++);
  return figures;
}

class Process {
 public:
  explicit Process(const std::function<Figures()>& work) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
    id_ = fork();
    if (id_ == 0) {
      try {
        const Figures figures = work();
        _exit(write(ends[1], &figures, sizeof figures) == sizeof figures ? 0 : 1);
      } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        _exit(1);
      }
    }
    close(ends[1]);
    answer_ = ends[0];
  }

  Figures wait() const {
    Figures figures;
    const bool is_whole = read(answer_, &figures, sizeof figures) == sizeof figures;
    close(answer_);
    waitpid(id_, nullptr, 0);
    if (!is_whole) throw std::runtime_error("a client ended before its time");
    return figures;
  }

 private:
  pid_t id_;
  int answer_;
};

void measure(benchmark::State& state, int clients, const Open& open) {
  using namespace std::chrono_literals;
  constexpr std::chrono::seconds duration = 10s;
  for (auto _ : state) {
    const auto start = Clock::now() + 2s;
    std::vector<Process> processes;
    for (int client = 0; client < clients; ++client) {
      processes.emplace_back([&, client] { return post(client, open, start, start + duration); });
    }
    Figures all;
    for (const Process& process : processes) {
      const Figures figures = process.wait();
      all.documents += figures.documents;
      all.longest_wait = std::max(all.longest_wait, figures.longest_wait);
    }
    state.counters["documents_per_second"] = static_cast<double>(all.documents) / duration.count();
    state.counters["longest_wait_ms"] = static_cast<double>(all.longest_wait) / 1'000;
  }
}

void with_sqlite(benchmark::State& state, int clients, sqlite::Synchronous synchronous) {
  const Folder folder;
  const std::string path = folder.file("books.db");
  lay_small_books(*sqlite::open(path, {.synchronous = sqlite::Synchronous::normal, .create = true}),
                  schema::Engine::sqlite);
  measure(state, clients,
          [&]() -> ado::ConnectionReference { return sqlite::open(path, {.synchronous = synchronous}); });
}

// Each of the strings of a server or of a cluster's nodes, with this database.
std::string with_database(std::string address, const std::string& name) {
  const std::string database = ";DATABASE=" + name;
  for (auto place = address.find("||"); place != std::string::npos;
       place = address.find("||", place + database.size() + 2)) {
    address.insert(place, database);
  }
  return address + database;
}

void with_server(benchmark::State& state, int clients, const std::string& address) {
  const std::string name = "brunvik_clients_" + std::to_string(getpid());
  const auto on_the_server = [&](const std::string& statement) {
    odbc::open(with_database(address, "books"))->Execute(statement);
  };
  on_the_server("create database " + name + " character set utf8mb4 collate utf8mb4_uca1400_as_ci");
  const std::string books = with_database(address, name);
  lay_small_books(*odbc::open(books), schema::Engine::mariadb);
  measure(state, clients, [&]() -> ado::ConnectionReference { return odbc::open(books); });
  on_the_server("drop database " + name);
}

void add(const std::string& place, const std::function<void(benchmark::State&, int clients)>& work) {
  for (const int clients : {1, clients_of_a_company}) {
    benchmark::RegisterBenchmark(("clients/" + place + "/" + std::to_string(clients)).c_str(),
                                 [=](benchmark::State& state) { work(state, clients); })
        ->Iterations(1);
  }
}

}  // namespace

void register_clients() {
  add("sqlite_full", [](auto& state, int clients) { with_sqlite(state, clients, sqlite::Synchronous::full); });
  add("sqlite_normal", [](auto& state, int clients) { with_sqlite(state, clients, sqlite::Synchronous::normal); });
  for (const auto& [place, variable] :
       {std::pair{"mariadb", "BRUNVIK_BENCH_MARIADB"}, std::pair{"cluster", "BRUNVIK_BENCH_CLUSTER"}}) {
    const char* const address = std::getenv(variable);
    if (!address) continue;
    add(place, [address = std::string(address)](auto& state, int clients) { with_server(state, clients, address); });
  }
}

}  // namespace brunvik::bench
