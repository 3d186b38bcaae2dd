#include "drivers/dialects/shape_cache.h"

#include <cstring>

namespace brunvik::dialects {

std::uint64_t hash_of_shape(std::string_view text) noexcept {
  constexpr std::uint64_t factor = 0x9e3779b97f4a7c15U;
  std::uint64_t first = text.size();
  std::uint64_t second = factor;
  const char* place = text.data();
  std::size_t left = text.size();
  for (; left >= 16; left -= 16, place += 16) {
    std::uint64_t words[2];
    std::memcpy(words, place, sizeof words);
    first = (first ^ words[0]) * factor;
    second = (second ^ words[1]) * factor;
    first ^= first >> 32;
    second ^= second >> 29;
  }
  std::uint64_t words[2] = {0, 0};
  if (left != 0) std::memcpy(words, place, left);
  first = (first ^ words[0]) * factor;
  second = (second ^ words[1] ^ first >> 31) * factor;
  return first ^ second ^ second >> 33;
}

}  // namespace brunvik::dialects
