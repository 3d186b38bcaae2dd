// The progress line of a run, for a person at a terminal: lines done, verbs per second.
#pragma once

#include <chrono>
#include <cstddef>

namespace brunvik::host {

class Progress {
 public:
  // Shows nothing unless standard error is a terminal.
  Progress();
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Another line is done, and so many verbs altogether.
  void advance(std::size_t verbs);

  // Makes room for an answer where answers go to the terminal too.
  void make_room();

 private:
  using Clock = std::chrono::steady_clock;

  void write(Clock::time_point now);

  bool on_terminal_;
  bool shares_terminal_;
  std::size_t lines_ = 0;
  std::size_t verbs_ = 0;
  Clock::time_point start_ = Clock::now();
  Clock::time_point last_ = start_;
};

}  // namespace brunvik::host
