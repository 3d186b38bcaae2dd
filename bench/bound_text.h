// A statement as a program of its own would write it: a ? in the place of each value, and the values to bind.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace brunvik::bench {

using BoundValue = std::variant<std::int64_t, double, std::string>;

struct BoundText {
  std::string words;
  std::vector<BoundValue> values;
};

BoundText with_bound_values(std::string_view text);

}  // namespace brunvik::bench
