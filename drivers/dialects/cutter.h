// Cuts the values out of a statement's text in one pass, without touching the heap once it has warmed up.
//
// What is left is the statement's shape: its words, with a mark where each value stood. The literals behind LIKE and
// TOP, those behind ORDER, GROUP and LIMIT, and those that are selected (they name their column) mean more than a value
// and stay in the shape. So does "=0" in a SELECT: an index that holds nothing but the rows with a zero is of use only
// where the engine sees the zero.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brunvik::dialects {

enum class LiteralKind : std::uint8_t { text, number, date };

// The mark of a literal in a shape: a byte that no statement holds outside of its literals.
constexpr char mark_of(LiteralKind kind) { return static_cast<char>(1 + static_cast<int>(kind)); }
constexpr bool is_mark(char c) { return c >= mark_of(LiteralKind::text) && c <= mark_of(LiteralKind::date); }
constexpr LiteralKind kind_of_mark(char mark) { return static_cast<LiteralKind>(mark - 1); }

struct Literal {
  std::string_view content;  // between the apostrophes or number signs; a part of the statement's text
  LiteralKind kind;
  bool has_apostrophes;  // each stands there twice
};

// The place behind the text whose content begins at a place; null where it has no end.
const char* end_of_text(const char* place, const char* end, bool& has_apostrophes) noexcept;

// The place behind the number that begins at a place; null where it runs into a word.
const char* end_of_number(const char* place, const char* end) noexcept;

// Whether a statement is a SELECT, whose zeros behind an equals sign are kept, and whether a number of it is such a
// zero.
bool is_selection(std::string_view statement) noexcept;
bool is_kept_zero(std::string_view statement, const char* first, const char* behind) noexcept;

class Cutter {
 public:
  // False for a statement that does not work on rows (DDL, a pragma): it has no shape. Error statement_refused for a
  // literal without an end, and for what neither dialect knows.
  bool cut(std::string_view statement);

  // Good until the next cut.
  std::string_view shape() const noexcept { return {shape_.data(), length_}; }
  std::span<const Literal> literals() const noexcept { return literals_; }

  // The bytes that are held for the next cut.
  std::size_t held_bytes() const noexcept { return shape_.capacity() + literals_.capacity() * sizeof(Literal); }

  // Ends the last cut, and lets go of what only an uncommonly large statement needs.
  void let_go() noexcept;

 private:
  std::string shape_;
  std::size_t length_ = 0;
  std::vector<Literal> literals_;
};

}  // namespace brunvik::dialects
