// Puts the text of a statement together in a buffer on the stack, where it stays until it is sent. Against appending to
// a string, a piece costs half the instructions: there is nothing to grow, and nothing to keep closed by a zero.
#pragma once

#include <algorithm>
#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "brunvik/ado/money.h"
#include "brunvik/ado/types.h"

namespace brunvik {

class StatementWriter {
 public:
  StatementWriter() noexcept = default;
  StatementWriter(const StatementWriter&) = delete;
  StatementWriter& operator=(const StatementWriter&) = delete;

  void add(std::string_view text) {
    if (room() < text.size()) return add_long(text);
    // The comma between two values is most of what is added.
    if (text.size() == 1) {
      *place_++ = text.front();
      return;
    }
    place_ = std::copy(text.begin(), text.end(), place_);
  }

  void add(std::int64_t number);
  void add(ado::Money amount);
  void add(ado::Single number);

  // In apostrophes, trimmed, the text's own apostrophes doubled.
  void add_quoted(std::string_view text);

  // What stands there, good until the next piece.
  std::string_view text();

 private:
  std::size_t room() const noexcept { return static_cast<std::size_t>(buffer_.data() + buffer_.size() - place_); }
  void add_long(std::string_view text);

  // Most statements fit; the front of a longer one stands in `front_`.
  std::array<char, 1'024> buffer_;
  char* place_ = buffer_.data();
  std::string front_;
};

// A statement that is written and on its way to a connection. It can't be moved, since its text stands inside of it;
// what has to outlive it takes the text as a string.
class Statement {
 public:
  template <std::invocable<StatementWriter&> Write>
  explicit Statement(const Write& write) {
    write(writer_);
    text_ = writer_.text();
  }
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;

  operator std::string_view() const noexcept { return text_; }
  operator std::string() const { return std::string(text_); }

  friend bool operator==(const Statement& statement, std::string_view text) noexcept { return statement.text_ == text; }

 private:
  StatementWriter writer_;
  std::string_view text_;
};

// The text in apostrophes, trimmed, its apostrophes doubled.
void append_quoted(std::string& statement, std::string_view text);
std::string quoted(std::string_view text);

}  // namespace brunvik
