// Comparisons that are made on several engines. Each gives its ratios as the counters of the benchmark.
#pragma once

#include <benchmark/benchmark.h>

#include "bench/life.h"
#include "brunvik/ado/connection.h"

namespace brunvik::bench {

// How many different documents a comparison with recorded statements takes in turn.
inline constexpr unsigned recorded_lives = 16;

// A document's verbs, and a replay of the statements that they send, in turns on the same connection.
void compare_with_replay(benchmark::State& state, const Document& document, const ado::ConnectionReference& connection);

// A document's verbs in few and in many bills.
void compare_sizes(benchmark::State& state, const Document& document, const ado::ConnectionReference& few,
                   const ado::ConnectionReference& many);

}  // namespace brunvik::bench
