// The shapes that are kept prepared, found by their text. When there are too many of them, or they
// take too much memory, the one that was used longest ago goes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "drivers/sqlite/shape.h"

namespace brunvik::sqlite {

class ShapeCache {
 public:
  explicit ShapeCache(std::size_t capacity) : capacity_(capacity == 0 ? 1 : capacity) {}

  // Null where there is none. Good until the next add or clear.
  Shape* find(std::string_view text);
  Shape& add(std::string_view text, Shape shape);
  void clear() noexcept;
  std::size_t size() const noexcept { return entries_.size(); }

  // The bytes that the shapes took when they were added.
  std::size_t held_bytes() const noexcept { return held_bytes_; }

 private:
  struct Entry {
    std::string text;
    Shape shape;
    std::uint64_t used;
    std::size_t bytes;
  };

  struct HashedAlready {
    std::size_t operator()(std::uint64_t hash) const noexcept { return static_cast<std::size_t>(hash); }
  };

  void drop_oldest();
  void drop(std::uint64_t hash);

  std::size_t capacity_;
  std::size_t held_bytes_ = 0;
  std::uint64_t now_ = 0;  // counts the uses
  std::unordered_map<std::uint64_t, Entry, HashedAlready> entries_;
};

}  // namespace brunvik::sqlite
