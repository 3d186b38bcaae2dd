// What the driver costs: the statements of documents through the driver, through sqlite3_exec, and as prepared
// statements with bound values, in turns on three copies of the same books.
#include <benchmark/benchmark.h>

#include <vector>

#include "bench/benchmarks.h"
#include "bench/books.h"
#include "bench/life.h"
#include "bench/recording.h"
#include "bench/replay.h"
#include "bench/times.h"

namespace brunvik::bench {

namespace {

constexpr unsigned lives = 16;

void driver(benchmark::State& state, const Document& document, const Place& place) {
  const Folder folder;
  const std::string books = folder.file("books.db");
  lay_books(books, 1'000);
  const auto connection = open_copy(folder, books, place);
  const auto by_text = open_plain_copy(folder, books, place);
  const auto by_statement = open_plain_copy(folder, books, place);

  const std::vector<RecordedLife> recorded = record_lives(connection, document.life, lives);
  const auto prepared = prepare_lives(recorded, [&](const std::string& text) { return by_statement->prepare(text); });

  Times driver_times, text_times, statement_times;
  const auto through_driver = [&](std::size_t seed, Times& times) {
    replay(recorded[seed], times, [&](const std::string& text) { connection->Execute(text); });
  };
  const auto as_text = [&](std::size_t seed, Times& times) {
    replay(recorded[seed], times, [&](const std::string& text) { by_text->execute(text); });
  };
  const auto as_statements = [&](std::size_t seed, Times& times) {
    replay(recorded[seed], prepared[seed], times, [&](const PreparedText& text) { by_statement->execute(text); });
  };
  // Not counted: a log is written faster once its file has its size.
  Times ignored;
  for (std::size_t seed = 0; seed < lives; ++seed) {
    through_driver(seed, ignored);
    as_text(seed, ignored);
    as_statements(seed, ignored);
  }
  std::size_t round = 0;
  for (auto _ : state) {
    const std::size_t seed = round % lives;
    for (Times* times : {&driver_times, &text_times, &statement_times}) times->take_life(seed);
    for (std::size_t turn = round; turn < round + 3; ++turn) {
      if (turn % 3 == 0) through_driver(seed, driver_times);
      if (turn % 3 == 1) as_text(seed, text_times);
      if (turn % 3 == 2) as_statements(seed, statement_times);
    }
    ++round;
  }
  for (const RecordedStep& step : recorded.front()) {
    const double time = driver_times.median(step.verb);
    state.counters[step.verb + "/text"] = time / text_times.median(step.verb);
    state.counters[step.verb + "/prepared"] = time / statement_times.median(step.verb);
    state.counters[step.verb + "_us"] = time;
  }
  state.counters["all/text"] = driver_times.sum_of_medians() / text_times.sum_of_medians();
  state.counters["all/prepared"] = driver_times.sum_of_medians() / statement_times.sum_of_medians();
}

}  // namespace

void register_driver() {
  for (const Place& place : {in_memory, normal_log, full_log}) {
    // A sync takes as long as a hundred statements.
    const bool synced = !place.in_memory && place.synchronous == sqlite::Synchronous::full;
    for (const Document& document : documents) {
      const std::string name = "driver/" + std::string(place.name) + "/" + document.name;
      benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) { driver(state, document, place); })
          ->Iterations(synced ? 18 : 240)
          ->Unit(benchmark::kMillisecond);
    }
  }
}

}  // namespace brunvik::bench
