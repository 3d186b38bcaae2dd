#include "drivers/sqlite/shape_cache.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "drivers/dialects/memory.h"

namespace brunvik::sqlite {

namespace {

// Fast on texts of some hundred bytes. The texts are those of the program, so nobody picks them to collide.
std::uint64_t hash_of(std::string_view text) noexcept {
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

}  // namespace

Shape* ShapeCache::known(std::string_view statement, std::vector<Literal>& literals) {
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

Shape* ShapeCache::find(std::string_view text) {
  const auto found = entries_.find(hash_of(text));
  if (found == entries_.end() || found->second.text != text) return nullptr;
  found->second.used = ++now_;
  return &found->second.shape;
}

Shape& ShapeCache::add(std::string_view text, Shape shape) {
  const std::uint64_t hash = hash_of(text);
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

void ShapeCache::clear() noexcept {
  for (auto& entries : by_head_) entries.clear();
  entries_.clear();
  held_bytes_ = 0;
}

void ShapeCache::drop(Entries::iterator entry) {
  held_bytes_ -= entry->second.bytes;
  if (entry->second.words.head() != 0) std::erase(alike(entry->second.words.head()), &entry->second);
  entries_.erase(entry);
}

void ShapeCache::drop_oldest() {
  const auto oldest = std::min_element(entries_.begin(), entries_.end(), [](const auto& left, const auto& right) {
    return left.second.used < right.second.used;
  });
  if (oldest != entries_.end()) drop(oldest);
}

}  // namespace brunvik::sqlite
