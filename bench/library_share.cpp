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
#include "bench/replay.h"
#include "bench/times.h"

namespace brunvik::bench {

void compare_with_replay(benchmark::State& state, const Document& document,
                         const ado::ConnectionReference& connection) {
  const std::vector<RecordedLife> recorded = record_lives(connection, document.life, recorded_lives);
  compare_in_turns(
      state, recorded.front(),
      [&](unsigned seed, Times& times) {
        const Life life = document.life(connection, seed, Numbering::given);
        live(life, [&](const Step& step) { times.time_step(step, [&] { run(step); }); });
      },
      [&](unsigned seed, Times& times) {
        replay(recorded[seed], times, [&](const std::string& text) { connection->Execute(text); });
      });
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
