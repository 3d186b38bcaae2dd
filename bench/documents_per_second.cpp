// How many documents a second are proposed, saved and audited: on SQLite and on a server, each statement durable by
// itself or the document in the host's transaction, in turns.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/life.h"
#include "bench/server_books.h"
#include "bench/times.h"
#include "drivers/odbc/connection.h"

namespace brunvik::bench {

namespace {

constexpr int rounds = 60;
constexpr unsigned rounds_before = 8;

struct Contender {
  std::string name;
  ado::ConnectionReference connection;
  bool in_transaction;
};

// Whether a document that stays has the step.
bool remains(const Step& step) {
  return step.verb.empty() || step.verb == "GetNewId" || step.verb == "Save" || step.verb.starts_with("Audit");
}

void enter(const Contender& contender, const Document& document, unsigned seed, Times& times) {
  start_session(contender.connection);
  const Life life = document.life(contender.connection, seed, Numbering::proposed);
  life.begin();
  times.time(contender.name, [&] {
    if (contender.in_transaction) contender.connection->BeginTrans();
    for (const Step& step : life.steps) {
      if (remains(step)) run(step);
    }
    if (contender.in_transaction) contender.connection->CommitTrans();
  });
}

void documents_per_second(benchmark::State& state, const Document& document, const std::string& server,
                          const std::string& name) {
  const Folder folder;
  const std::string path = folder.file("books.db");
  lay_books(path, 1'000);
  const ServerBooks books(server, path);
  const auto full = open_copy(folder, path, full_log);
  const auto normal = open_copy(folder, path, normal_log);
  const auto server_connection = odbc::open(books.address());
  const std::vector<Contender> contenders{{"sqlite", full, false},
                                          {"sqlite_transaction", full, true},
                                          {"sqlite_normal", normal, false},
                                          {name, server_connection, false},
                                          {name + "_transaction", server_connection, true}};
  set_commit(server, Commit::durable);
  Times times, ignored;
  unsigned seed = 0;
  for (; seed < rounds_before; ++seed) {
    for (const Contender& contender : contenders) enter(contender, document, seed, ignored);
  }
  for (auto _ : state) {
    ++seed;
    for (std::size_t turn = seed; turn < seed + contenders.size(); ++turn) {
      enter(contenders[turn % contenders.size()], document, seed, times);
    }
  }
  constexpr double microseconds = 1e6;
  for (const Contender& contender : contenders) {
    const double time = times.median(contender.name);
    state.counters[contender.name] = microseconds / time;
    state.counters[contender.name + "_ratio"] = times.median("sqlite") / time;
  }
}

}  // namespace

void register_documents() {
  for (const auto& [name, server] : {std::pair<std::string, std::string>{"mariadb", mariadb_server()},
                                     std::pair<std::string, std::string>{"cluster", cluster_servers()}}) {
    if (server.empty()) continue;
    for (const Document& document : documents) {
      if (document.name == "other_receipt") continue;
      benchmark::RegisterBenchmark(("documents/" + name + "/" + document.name).c_str(),
                                   [=, name = name, server = server](benchmark::State& state) {
                                     documents_per_second(state, document, server, name);
                                   })
          ->Iterations(rounds)
          ->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace brunvik::bench
