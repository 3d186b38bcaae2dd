// Names of columns, classes and members are compared without regard to the case of ASCII letters.
#pragma once

#include <string_view>

namespace brunvik::ado {

constexpr char lower(char c) noexcept { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

constexpr bool same_name(std::string_view left, std::string_view right) noexcept {
  if (left.size() != right.size()) return false;
  // Names that are asked for stand mostly as they are asked for, and equal bytes are compared eight at a time and more.
  if (left == right) return true;
  for (std::size_t place = 0; place < left.size(); ++place) {
    if (lower(left[place]) != lower(right[place])) return false;
  }
  return true;
}

}  // namespace brunvik::ado
