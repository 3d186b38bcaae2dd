// The library and the driver on MariaDB: a verb against a replay of its statements; the driver against ODBC by hand; a
// verb's time in few and in many bills. A commit doesn't wait for the disk, whose noise is larger than any difference.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/comparisons.h"
#include "bench/plain_odbc.h"
#include "bench/recording.h"
#include "bench/replay.h"
#include "bench/server_books.h"
#include "bench/times.h"
#include "drivers/odbc/connection.h"

namespace brunvik::bench {

namespace {

constexpr int rounds = 80;
constexpr int growth_rounds = 100;

// Books of a thousand bills, and of as many as are asked for, laid once for all documents.
struct Books {
  ServerBooks laid;

  explicit Books(int bills) : laid(mariadb_server(), file(bills)) {
    set_commit(mariadb_server(), Commit::once_a_second);
    settle(mariadb_server());
  }

  static const Folder& folder() {
    static const Folder folder;
    return folder;
  }

  static std::string file(int bills) {
    std::string path = folder().file(std::to_string(bills) + ".db");
    lay_books(path, bills);
    return path;
  }

  static const ServerBooks& few() {
    static const Books books(1'000);
    return books.laid;
  }

  static const ServerBooks& many() {
    static const Books books(many_bills());
    return books.laid;
  }

  static int many_bills() {
    const char* const count = std::getenv("BRUNVIK_BENCH_BILLS");
    return count ? std::stoi(count) : 1'000'000;
  }
};

void library_share(benchmark::State& state, const Document& document) {
  compare_with_replay(state, document, odbc::open(Books::few().address()));
}

void driver(benchmark::State& state, const Document& document) {
  const auto connection = odbc::open(Books::few().address());
  PlainOdbc by_hand(Books::few().address());
  const std::vector<RecordedLife> recorded = record_lives(connection, document.life, recorded_lives);
  const auto prepared = prepare_lives(recorded, [&](const std::string& text) { return by_hand.prepare(text); });
  compare_in_turns(
      state, recorded.front(),
      [&](unsigned seed, Times& times) {
        replay(recorded[seed], times, [&](const std::string& text) { connection->Execute(text); });
      },
      [&](unsigned seed, Times& times) {
        replay(recorded[seed], prepared[seed], times, [&](const PlainOdbc::Use& use) { by_hand.execute(use); });
      });
}

void growth(benchmark::State& state, const Document& document) {
  compare_sizes(state, document, odbc::open(Books::few().address()), odbc::open(Books::many().address()));
}

template <class Measure>
void register_each(const std::string& name, int iterations, Measure measure) {
  for (const Document& document : documents) {
    benchmark::RegisterBenchmark(("servers/" + name + "/" + document.name).c_str(),
                                 [=](benchmark::State& state) { measure(state, document); })
        ->Iterations(iterations)
        ->Unit(benchmark::kMillisecond);
  }
}

}  // namespace

void register_servers() {
  if (mariadb_server().empty()) return;
  register_each("library_share", rounds, library_share);
  register_each("driver", rounds, driver);
  register_each("growth", growth_rounds, growth);
}

}  // namespace brunvik::bench
