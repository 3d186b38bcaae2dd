// The library's own share of a verb: the verb, and a replay of the very statements that it sends, in turns on the same
// connection.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/comparisons.h"
#include "bench/family_life.h"
#include "bench/life.h"
#include "bench/recording.h"
#include "bench/times.h"

namespace brunvik::bench {

void compare_with_replay(benchmark::State& state, const Document& document,
                         const ado::ConnectionReference& connection) {
  std::vector<RecordedLife> recorded;
  for (unsigned seed = 0; seed < recorded_lives; ++seed) recorded.push_back(record(connection, document.life, seed));

  Times verbs, replays, ignored;
  const auto live = [&](unsigned seed, Times& times) {
    const Life life = document.life(connection, seed, Numbering::given);
    bench::live(life, [&](const Step& step) { times.time_step(step, [&] { run(step); }); });
  };
  const auto replay = [&](unsigned seed, Times& times) {
    for (const RecordedStep& step : recorded[seed]) {
      times.time_step(step, [&] {
        for (const std::string& text : step.texts) connection->Execute(text);
      });
    }
  };
  // Not counted: a log is written faster once its file has its size.
  for (unsigned seed = 0; seed < recorded_lives; ++seed) {
    live(seed, ignored);
    replay(seed, ignored);
  }
  unsigned round = 0;
  for (auto _ : state) {
    const unsigned seed = round % recorded_lives;
    if (round++ % 2 == 0) {
      live(seed, verbs);
      replay(seed, replays);
    } else {
      replay(seed, replays);
      live(seed, verbs);
    }
  }
  for (const RecordedStep& step : recorded.front()) {
    if (!step.timed) continue;
    state.counters[step.verb] = verbs.median(step.verb) / replays.median(step.verb);
    state.counters[step.verb + "_us"] = verbs.median(step.verb);
  }
  state.counters["all"] = verbs.sum_of_medians() / replays.sum_of_medians();
}

namespace {

constexpr int rounds = 320;

void library_share(benchmark::State& state, const Document& document, const Place& place) {
  const Folder folder;
  const std::string books = folder.file("books.db");
  lay_books_for(document, books);
  compare_with_replay(state, document, open_copy(folder, books, place));
}

}  // namespace

void register_library_share() {
  for (const Place& place : {in_memory, normal_log}) {
    for (const Document& document : replayed_documents()) {
      const std::string name = "library_share/" + std::string(place.name) + "/" + document.name;
      benchmark::RegisterBenchmark(
          name.c_str(), [&document, place](benchmark::State& state) { library_share(state, document, place); })
          ->Iterations(rounds)
          ->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace brunvik::bench
