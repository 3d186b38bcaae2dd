// The shapes that are kept prepared, found by their text, and most of them by a statement that isn't cut yet. When
// there are too many of them, or they take too much memory, the one that was used longest ago goes.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "drivers/dialects/known_text.h"
#include "drivers/dialects/memory.h"

namespace brunvik::dialects {

// Fast on texts of some hundred bytes. The texts are those of the program, so nobody picks them to collide.
std::uint64_t hash_of_shape(std::string_view text) noexcept;

// A Shape is what a driver keeps of a statement's shape. It tells with `values()` how many values a statement has, and
// with `held_bytes()` how many bytes it takes.
template <class Shape>
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
  void drop(typename Entries::iterator entry);
  void drop_oldest();

  std::size_t capacity_;
  std::size_t held_bytes_ = 0;
  std::uint64_t now_ = 0;  // counts the uses
  Entries entries_;
  std::array<std::vector<Entry*>, 1024> by_head_;
};

template <class Shape>
Shape* ShapeCache<Shape>::known(std::string_view statement, std::vector<Literal>& literals) {
  const std::uint64_t head = KnownText::head_of(statement);
  if (head == 0) return nullptr;
  std::vector<Entry*>& entries = alike(head);
  for (std::size_t place = 0; place < entries.size(); ++place) {
    Entry* const entry = entries[place];
    if (entry->words.head() != head || !entry->words.matches(statement, literals)) continue;
    // The rows of a bill send one text after the other.
    std::swap(entries[place], entries.front());
    entry->used = ++now_;
    return &entry->shape;
  }
  return nullptr;
}

template <class Shape>
Shape* ShapeCache<Shape>::find(std::string_view text) {
  const auto found = entries_.find(hash_of_shape(text));
  if (found == entries_.end() || found->second.text != text) return nullptr;
  found->second.used = ++now_;
  return &found->second.shape;
}

template <class Shape>
Shape& ShapeCache<Shape>::add(std::string_view text, Shape shape) {
  const std::uint64_t hash = hash_of_shape(text);
  // Another text of the same hash gives way.
  if (const auto same = entries_.find(hash); same != entries_.end()) drop(same);
  KnownText words(text, shape.values());
  const std::size_t bytes = 2 * text.size() + shape.held_bytes();
  while (!entries_.empty() && (entries_.size() >= capacity_ || held_bytes_ + bytes > largest_cache)) drop_oldest();
  held_bytes_ += bytes;
  Entry& entry = entries_.try_emplace(hash, Entry{std::string(text), std::move(shape), ++now_, bytes, std::move(words)})
                     .first->second;
  if (entry.words.head() != 0) alike(entry.words.head()).push_back(&entry);
  return entry.shape;
}

template <class Shape>
void ShapeCache<Shape>::clear() noexcept {
  for (auto& entries : by_head_) entries.clear();
  entries_.clear();
  held_bytes_ = 0;
}

template <class Shape>
void ShapeCache<Shape>::drop(typename Entries::iterator entry) {
  held_bytes_ -= entry->second.bytes;
  if (entry->second.words.head() != 0) std::erase(alike(entry->second.words.head()), &entry->second);
  entries_.erase(entry);
}

template <class Shape>
void ShapeCache<Shape>::drop_oldest() {
  const auto oldest = std::min_element(entries_.begin(), entries_.end(), [](const auto& left, const auto& right) {
    return left.second.used < right.second.used;
  });
  if (oldest != entries_.end()) drop(oldest);
}

}  // namespace brunvik::dialects
