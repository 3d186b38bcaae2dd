// How much memory a connection keeps for the statements to come. What a single large statement needs beyond that goes
// back when the statement has been carried out.
#pragma once

#include <cstddef>
#include <utility>

namespace brunvik::dialects {

// Of the room for a statement's text and values.
inline constexpr std::size_t largest_held = std::size_t{64} * 1'024;

// Of all statements that are kept prepared, as the engine counts them.
inline constexpr std::size_t largest_cache = std::size_t{16} * 1'024 * 1'024;

// Lets go of memory however a block ends.
template <class Body>
class AtEnd {
 public:
  explicit AtEnd(Body body) noexcept : body_(std::move(body)) {}
  ~AtEnd() { body_(); }
  AtEnd(const AtEnd&) = delete;
  AtEnd& operator=(const AtEnd&) = delete;

 private:
  Body body_;
};

}  // namespace brunvik::dialects
