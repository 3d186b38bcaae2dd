// Replays of recorded lives, and two contenders that take turns with them.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <type_traits>
#include <vector>

#include "bench/comparisons.h"
#include "bench/recording.h"
#include "bench/times.h"

namespace brunvik::bench {

// What `prepare` makes of each text: for every life, and every step of it.
template <class Prepare>
auto prepare_lives(const std::vector<RecordedLife>& lives, Prepare&& prepare) {
  using Statement = std::invoke_result_t<Prepare&, const std::string&>;
  std::vector<std::vector<std::vector<Statement>>> prepared;
  for (const RecordedLife& life : lives) {
    auto& steps = prepared.emplace_back();
    for (const RecordedStep& step : life) {
      auto& statements = steps.emplace_back();
      for (const std::string& text : step.texts) statements.push_back(prepare(text));
    }
  }
  return prepared;
}

// Sends the texts of a life, step by step.
template <class Send>
void replay(const RecordedLife& life, Times& times, Send&& send) {
  for (const RecordedStep& step : life) {
    times.time_step(step, [&] {
      for (const std::string& text : step.texts) send(text);
    });
  }
}

// The same with what was prepared of them.
template <class Statement, class Send>
void replay(const RecordedLife& life, const std::vector<std::vector<Statement>>& prepared, Times& times, Send&& send) {
  for (std::size_t step = 0; step < life.size(); ++step) {
    times.time_step(life[step], [&] {
      for (const Statement& statement : prepared[step]) send(statement);
    });
  }
}

// Calls both contenders with the seed of a life and their times, a life a round; the first of a round takes turns. The
// counters become the ratio of the first's times to the second's, and the first's times.
template <class First, class Second>
void compare_in_turns(benchmark::State& state, const RecordedLife& life, First&& first, Second&& second) {
  Times first_times, second_times, ignored;
  // Not counted: a log is written faster once its file has its size.
  for (unsigned seed = 0; seed < recorded_lives; ++seed) {
    first(seed, ignored);
    second(seed, ignored);
  }
  unsigned round = 0;
  for (auto _ : state) {
    const unsigned seed = round % recorded_lives;
    first_times.take_life(seed);
    second_times.take_life(seed);
    if (round++ % 2 == 0) {
      first(seed, first_times);
      second(seed, second_times);
    } else {
      second(seed, second_times);
      first(seed, first_times);
    }
  }
  for (const RecordedStep& step : life) {
    if (!step.timed) continue;
    state.counters[step.verb] = first_times.median(step.verb) / second_times.median(step.verb);
    state.counters[step.verb + "_us"] = first_times.median(step.verb);
  }
  state.counters["all"] = first_times.sum_of_medians() / second_times.sum_of_medians();
}

}  // namespace brunvik::bench
