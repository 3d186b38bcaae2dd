// The times that one contender took for the steps of its work, a time for each round. Where the rounds take different
// lives in turn, each life has times of its own: one that costs twice as much as another would else put the median of
// both into a gap, where a contender's smallest delay decides on which side it falls.
#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace brunvik::bench {

class Times {
 public:
  // What is timed from here on is of this life.
  void take_life(std::size_t life) { life_ = life; }

  template <class Work>
  void time(const std::string& step, Work&& work) {
    std::vector<double>& times = times_[step][life_];
    const auto start = std::chrono::steady_clock::now();
    std::forward<Work>(work)();
    times.push_back(std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
  }

  // In microseconds; the mean of what the lives have.
  double median(const std::string& step) const;
  double minimum(const std::string& step) const;

  // Of all steps together.
  double sum_of_medians() const;

  // Of a step of a life, or of its replay.
  template <class Step, class Work>
  void time_step(const Step& step, Work&& work) {
    if (!step.timed) return std::forward<Work>(work)();
    time(step.verb, std::forward<Work>(work));
  }

 private:
  using Pick = double (*)(std::vector<double> times);
  double mean_of_lives(const std::string& step, Pick pick) const;

  std::map<std::string, std::map<std::size_t, std::vector<double>>> times_;
  std::size_t life_ = 0;
};

}  // namespace brunvik::bench
