#include "bench/times.h"

#include <algorithm>

namespace brunvik::bench {

double Times::median(const std::string& step) const {
  std::vector<double> times = times_.at(step);
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

double Times::minimum(const std::string& step) const {
  const std::vector<double>& times = times_.at(step);
  return *std::min_element(times.begin(), times.end());
}

double Times::sum_of_medians() const {
  double sum = 0;
  for (const auto& [step, times] : times_) sum += median(step);
  return sum;
}

}  // namespace brunvik::bench
