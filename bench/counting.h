// Counts the instructions of a piece of work instead of its time, so that no neighbour on the machine disturbs the
// figure. The program has to run in callgrind; count() in bench/report says how.
#pragma once

#include <string>
#include <utility>

namespace brunvik::bench {

// Whether somebody counts.
bool is_counting() noexcept;

// Between the two callgrind looks at each instruction. The rest, like the filling of the books, runs ten times faster.
void start_counting() noexcept;
void stop_counting() noexcept;

// Begins and ends a piece of work that is counted; what lies between two pieces isn't.
void begin_piece() noexcept;
void end_piece() noexcept;

template <class Work>
void count(bool counted, Work&& work) {
  if (counted) begin_piece();
  std::forward<Work>(work)();
  if (counted) end_piece();
}

// Writes the sum of the pieces since the last call into callgrind's file, by this name.
void write_count(const std::string& name) noexcept;

}  // namespace brunvik::bench
