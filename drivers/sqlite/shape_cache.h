// The shapes that are kept prepared, found by their text, and most of them by a statement that isn't cut yet. When
// there are too many of them, or they take too much memory, the one that was used longest ago goes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "drivers/dialects/known_text.h"
#include "drivers/sqlite/dialects.h"
#include "drivers/sqlite/shape.h"

namespace brunvik::sqlite {

class ShapeCache {
 public:
  explicit ShapeCache(std::size_t capacity) : capacity_(capacity == 0 ? 1 : capacity) {}

  // The shape that the cutter would leave of a statement, with its literals; null where only cutting can tell. Good
  // until the next add or clear, as is what the others give.
  Shape* known(std::string_view statement, std::vector<Literal>& literals);

  // By the text of the shape itself. Null where there is none.
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
    KnownText words;
  };

  struct HashedAlready {
    std::size_t operator()(std::uint64_t hash) const noexcept { return static_cast<std::size_t>(hash); }
  };

  using Entries = std::unordered_map<std::uint64_t, Entry, HashedAlready>;

  // Those whose statements begin alike.
  std::vector<Entry*>& alike(std::uint64_t head) noexcept { return by_head_[head % by_head_.size()]; }
  void drop(Entries::iterator entry);
  void drop_oldest();

  std::size_t capacity_;
  std::size_t held_bytes_ = 0;
  std::uint64_t now_ = 0;  // counts the uses
  Entries entries_;
  std::array<std::vector<Entry*>, 1024> by_head_;
};

}  // namespace brunvik::sqlite
