#include "bench/times.h"

#include <algorithm>

namespace brunvik::bench {

double Times::mean_of_lives(const std::string& step, Pick pick) const {
  const auto& lives = times_.at(step);
  double sum = 0;
  for (const auto& [life, times] : lives) sum += pick(times);
  return sum / static_cast<double>(lives.size());
}

double Times::median(const std::string& step) const {
  return mean_of_lives(step, [](std::vector<double> times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
  });
}

double Times::minimum(const std::string& step) const {
  return mean_of_lives(step, [](std::vector<double> times) { return *std::min_element(times.begin(), times.end()); });
}

double Times::sum_of_medians() const {
  double sum = 0;
  for (const auto& [step, times] : times_) sum += median(step);
  return sum;
}

}  // namespace brunvik::bench
