// The shapes that are kept prepared, found by their text. When it is full, the one that was used longest ago goes.
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
  void clear() noexcept { entries_.clear(); }
  std::size_t size() const noexcept { return entries_.size(); }

 private:
  struct Entry {
    std::string text;
    Shape shape;
    std::uint64_t used;
  };

  struct HashedAlready {
    std::size_t operator()(std::uint64_t hash) const noexcept { return static_cast<std::size_t>(hash); }
  };

  void drop_oldest();

  std::size_t capacity_;
  std::uint64_t now_ = 0;  // counts the uses
  std::unordered_map<std::uint64_t, Entry, HashedAlready> entries_;
};

}  // namespace brunvik::sqlite
