// The times that one contender took for the steps of its work, a time for each round.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace brunvik::bench {

class Times {
 public:
  template <class Work>
  void time(const std::string& step, Work&& work) {
    std::vector<double>& times = times_[step];
    const auto start = std::chrono::steady_clock::now();
    std::forward<Work>(work)();
    times.push_back(std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
  }

  // In microseconds.
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
  std::map<std::string, std::vector<double>> times_;
};

}  // namespace brunvik::bench
