// Knows a statement again by the words around its values.
//
// The documents send the same few hundred texts over and over, with other values. To cut a text takes some twenty
// instructions a byte, to compare it with one that came before takes two or three: in a receipt's audit that is one in
// fifteen of all that driver and engine do.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "drivers/dialects/cutter.h"

namespace brunvik::dialects {

class KnownText {
 public:
  // `values` is the count of the values that were cut out.
  KnownText(std::string_view shape, std::size_t values);

  // Statements of one text share it; it tells nearly all others apart. Zero for what is better cut: a text whose values
  // begin too early, or with a date among them, one that holds a mark itself, and a statement too short to tell.
  std::uint64_t head() const noexcept { return head_; }
  static std::uint64_t head_of(std::string_view statement) noexcept;

  // Whether the cutter would leave this shape of the statement. Then `literals` are those that it would cut out, else
  // they are of no use.
  bool matches(std::string_view statement, std::vector<Literal>& literals) const;

 private:
  struct Piece {
    std::string words;
    LiteralKind behind;
  };

  std::vector<Piece> pieces_;
  std::string end_;
  std::uint64_t head_ = 0;
  bool selects_ = false;
};

}  // namespace brunvik::dialects
