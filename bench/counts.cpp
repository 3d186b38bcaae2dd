// The comparisons of library and driver once more, in instructions: each contender lives the same lives, with one of
// the verbs counted.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/counting.h"
#include "bench/family_life.h"
#include "bench/life.h"
#include "bench/recording.h"
#include "bench/replay.h"

namespace brunvik::bench {

namespace {

constexpr unsigned lives = 4;

// All lives with the step counted that stands at a place; none is, where no step stands there.
void live(const ado::ConnectionReference& connection, const Document& document, std::size_t counted) {
  for (unsigned seed = 0; seed < lives; ++seed) {
    const Life life = document.life(connection, seed, Numbering::given);
    bench::live(
        life, [&, place = std::size_t{0}](const Step& step) mutable { count(place++ == counted, [&] { run(step); }); });
  }
}

void replay(ado::Connection& connection, const std::vector<RecordedLife>& recorded, std::size_t counted) {
  for (const RecordedLife& life : recorded) {
    for (std::size_t step = 0; step < life.size(); ++step) {
      count(step == counted, [&] {
        for (const std::string& text : life[step].texts) connection.Execute(text);
      });
    }
  }
}

using PreparedLife = std::vector<std::vector<PreparedText>>;

void execute(PlainSqlite& plain, const std::vector<PreparedLife>& prepared, std::size_t counted) {
  for (const PreparedLife& life : prepared) {
    for (std::size_t step = 0; step < life.size(); ++step) {
      count(step == counted, [&] {
        for (const PreparedText& text : life[step]) plain.execute(text);
      });
    }
  }
}

// Library and driver, and the prepared statements where they are measured, too.
enum class Contenders { two, three };

void counts(benchmark::State& state, const Document& document, Contenders contenders) {
  if (!is_counting()) return state.SkipWithError("Instructions are counted in callgrind alone.");
  const Folder folder;
  const std::string books = folder.file("books.db");
  lay_books_for(document, books);
  const auto connection = open_copy(folder, books, in_memory);
  const auto plain = open_plain_copy(folder, books, in_memory);
  const std::vector<RecordedLife> recorded = record_lives(connection, document.life, lives);
  const std::vector<PreparedLife> prepared =
      prepare_lives(contenders == Contenders::three ? recorded : std::vector<RecordedLife>(),
                    [&](const std::string& text) { return plain->prepare(text); });

  const std::size_t none = recorded.front().size();
  for (auto _ : state) {
    live(connection, document, none);
    replay(*connection, recorded, none);
    execute(*plain, prepared, none);
    start_counting();
    for (std::size_t step = 0; step < none; ++step) {
      if (!recorded.front()[step].timed) continue;
      const std::string name = document.name + "/" + recorded.front()[step].verb + "/";
      live(connection, document, step);
      write_count(name + "library");
      replay(*connection, recorded, step);
      write_count(name + "driver");
      if (contenders == Contenders::two) continue;
      execute(*plain, prepared, step);
      write_count(name + "prepared");
    }
    stop_counting();
  }
}

}  // namespace

// In memory alone: what a log costs depends on how full it is just then.
void register_counts() {
  for (const Document& document : replayed_documents()) {
    const Contenders contenders = document.kinds.empty() ? Contenders::three : Contenders::two;
    benchmark::RegisterBenchmark(
        ("counts/verbs/" + document.name).c_str(),
        [&document, contenders](benchmark::State& state) { counts(state, document, contenders); })
        ->Iterations(1)
        ->Unit(benchmark::kSecond);
  }
}

}  // namespace brunvik::bench
