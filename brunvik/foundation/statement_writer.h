// Puts the text of a statement together in a buffer on the stack, and gives it out as one string at the end. Against
// appending to the string itself, a piece costs half the instructions: there is nothing to grow, and nothing to keep
// closed by a zero.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "brunvik/ado/money.h"

namespace brunvik {

class StatementWriter {
 public:
  StatementWriter() noexcept = default;
  StatementWriter(const StatementWriter&) = delete;
  StatementWriter& operator=(const StatementWriter&) = delete;

  void add(std::string_view text) {
    if (room() < text.size()) return add_long(text);
    std::memcpy(place_, text.data(), text.size());
    place_ += text.size();
  }

  void add(std::int64_t number);
  void add(ado::Money amount);

  // In apostrophes, trimmed, the text's own apostrophes doubled.
  void add_quoted(std::string_view text);

  std::string text() &&;

 private:
  std::size_t room() const noexcept { return static_cast<std::size_t>(buffer_.data() + buffer_.size() - place_); }
  void add_long(std::string_view text);

  // Most statements fit; the front of a longer one stands in `front_`.
  std::array<char, 1'024> buffer_;
  char* place_ = buffer_.data();
  std::string front_;
};

// The text in apostrophes, trimmed, its apostrophes doubled.
void append_quoted(std::string& statement, std::string_view text);
std::string quoted(std::string_view text);

}  // namespace brunvik
