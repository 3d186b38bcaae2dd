// How a verb's time grows with the books: documents of ten rows with goods all over the list, in turns in books of a
// thousand and of a million bills.
#include <benchmark/benchmark.h>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/comparisons.h"
#include "bench/life.h"
#include "bench/times.h"

namespace brunvik::bench {

namespace {

constexpr int rounds = 200;

// Not counted: they bring what every document needs into the caches, and the logs to their size.
constexpr unsigned rounds_before = 16;

// The million is filled once for all documents, and is gone when the program ends.
struct Books {
  Folder folder;
  ado::ConnectionReference few, many;

  Books() {
    few = open("few.db", 1'000);
    many = open("many.db", 1'000'000);
  }

  ado::ConnectionReference open(std::string_view name, int bills) const {
    const std::string path = folder.file(name);
    lay_books(path, bills);
    return sqlite::open(path, {.synchronous = sqlite::Synchronous::normal});
  }

  static const Books& filled() {
    static const Books books;
    return books;
  }
};

}  // namespace

void compare_sizes(benchmark::State& state, const Document& document, const ado::ConnectionReference& few,
                   const ado::ConnectionReference& many) {
  Times few_times, many_times;
  const auto live = [&](const ado::ConnectionReference& connection, unsigned seed, Times& times) {
    start_session(connection);
    const Life life = document.life(connection, seed, Numbering::proposed);
    bench::live(life, [&](const Step& step) { times.time_step(step, [&] { run(step); }); });
  };
  Times ignored;
  unsigned seed = 0;
  for (; seed < rounds_before; ++seed) {
    live(few, seed, ignored);
    live(many, seed, ignored);
  }
  for (auto _ : state) {
    if (++seed % 2 == 0) {
      live(few, seed, few_times);
      live(many, seed, many_times);
    } else {
      live(many, seed, many_times);
      live(few, seed, few_times);
    }
  }
  for (const Step& step : document.life(few, 0, Numbering::proposed).steps) {
    if (!step.timed) continue;
    state.counters[step.verb] = many_times.median(step.verb) / few_times.median(step.verb);
    state.counters[step.verb + "_us"] = many_times.median(step.verb);
  }
}

void register_growth() {
  for (const Document& document : documents) {
    benchmark::RegisterBenchmark(
        ("growth/" + document.name).c_str(),
        [=](benchmark::State& state) { compare_sizes(state, document, Books::filled().few, Books::filled().many); })
        ->Iterations(rounds)
        ->Unit(benchmark::kMillisecond);
  }
}

}  // namespace brunvik::bench
