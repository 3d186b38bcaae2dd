// The library and the driver on MariaDB: a verb against a replay of its statements; the driver against ODBC by hand; a
// verb's time in few and in many bills. A commit doesn't wait for the disk, whose noise is larger than any difference.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/comparisons.h"
#include "bench/plain_odbc.h"
#include "bench/recording.h"
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
  std::vector<RecordedLife> recorded;
  for (unsigned seed = 0; seed < recorded_lives; ++seed) recorded.push_back(record(connection, document.life, seed));
  std::vector<std::vector<std::vector<PlainOdbc::Use>>> prepared;
  for (const RecordedLife& life : recorded) {
    auto& steps = prepared.emplace_back();
    for (const RecordedStep& step : life) {
      auto& uses = steps.emplace_back();
      for (const std::string& text : step.texts) uses.push_back(by_hand.prepare(text));
    }
  }

  Times driver_times, hand_times, ignored;
  const auto through_driver = [&](std::size_t seed, Times& times) {
    for (const RecordedStep& step : recorded[seed]) {
      times.time(step.verb, [&] {
        for (const std::string& text : step.texts) connection->Execute(text);
      });
    }
  };
  const auto as_statements = [&](std::size_t seed, Times& times) {
    for (std::size_t step = 0; step < recorded[seed].size(); ++step) {
      times.time(recorded[seed][step].verb, [&] {
        for (const PlainOdbc::Use& use : prepared[seed][step]) by_hand.execute(use);
      });
    }
  };
  for (std::size_t seed = 0; seed < recorded_lives; ++seed) {
    through_driver(seed, ignored);
    as_statements(seed, ignored);
  }
  std::size_t round = 0;
  for (auto _ : state) {
    const std::size_t seed = round % recorded_lives;
    if (round++ % 2 == 0) {
      through_driver(seed, driver_times);
      as_statements(seed, hand_times);
    } else {
      as_statements(seed, hand_times);
      through_driver(seed, driver_times);
    }
  }
  for (const RecordedStep& step : recorded.front()) {
    state.counters[step.verb] = driver_times.median(step.verb) / hand_times.median(step.verb);
    state.counters[step.verb + "_us"] = driver_times.median(step.verb);
  }
  state.counters["all"] = driver_times.sum_of_medians() / hand_times.sum_of_medians();
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
