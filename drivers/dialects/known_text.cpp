#include "drivers/dialects/known_text.h"

#include <algorithm>
#include <cstring>

#include "drivers/dialects/characters.h"

namespace brunvik::dialects {

namespace {

// Behind the verb, where tables and columns are named.
constexpr std::size_t head_begin = 8;
constexpr std::size_t head_end = 24;

// A text with more values is no statement of the books, and the room for them would be kept.
constexpr std::size_t most_values = 500;

bool begins_with(const char* place, const char* end, const std::string& words) noexcept {
  if (static_cast<std::size_t>(end - place) < words.size()) return false;
  // The comma between two values of an insert.
  if (words.size() == 1) return *place == words.front();
  return std::memcmp(place, words.data(), words.size()) == 0;
}

}  // namespace

KnownText::KnownText(std::string_view shape, std::size_t values) : selects_(is_selection(shape)) {
  const std::string_view whole = shape;
  for (;;) {
    const auto mark = std::find_if(shape.begin(), shape.end(), is_mark);
    const auto length = static_cast<std::size_t>(mark - shape.begin());
    if (mark == shape.end()) break;
    pieces_.push_back({std::string(shape.substr(0, length)), kind_of_mark(*mark)});
    shape.remove_prefix(length + 1);
  }
  end_ = shape;
  const bool has_date =
      std::any_of(pieces_.begin(), pieces_.end(), [](const Piece& piece) { return piece.behind == LiteralKind::date; });
  const std::size_t first_length = pieces_.empty() ? end_.size() : pieces_.front().words.size();
  if (!has_date && pieces_.size() == values && values <= most_values && first_length >= head_end)
    head_ = head_of(whole);
}

std::uint64_t KnownText::head_of(std::string_view statement) noexcept {
  if (statement.size() < head_end) return 0;
  std::uint64_t words[2];
  static_assert(sizeof words == head_end - head_begin);
  std::memcpy(words, statement.data() + head_begin, sizeof words);
  const std::uint64_t mixed = (words[0] * 0x9e3779b97f4a7c15U ^ words[1]) * 0xff51afd7ed558ccdU;
  return (mixed ^ mixed >> 32) | 1U;
}

// The cutter's state in front of a value depends on the words before it and on the kinds of the values among them, so
// equal words and equal kinds leave equal shapes. What a value is, where it ends and whether it is cut out at all is
// asked of the cutter's own functions.
bool KnownText::matches(std::string_view statement, std::vector<Literal>& literals) const {
  literals.clear();
  const char* place = statement.data();
  const char* const end = place + statement.size();
  for (const Piece& piece : pieces_) {
    if (!begins_with(place, end, piece.words)) return false;
    place += piece.words.size();
    const char* const first = place;
    if (place == end) return false;
    if (piece.behind == LiteralKind::text) {
      if (*place != '\'') return false;
      bool has_apostrophes = false;
      place = end_of_text(place + 1, end, has_apostrophes);
      if (!place) return false;
      literals.push_back({{first + 1, place - 1}, LiteralKind::text, has_apostrophes});
    } else {
      if (!is_digit(*place)) return false;
      place = end_of_number(place, end);
      if (!place || (selects_ && is_kept_zero(statement, first, place))) return false;
      literals.push_back({{first, place}, LiteralKind::number, false});
    }
  }
  return std::string_view(place, end) == end_;
}

}  // namespace brunvik::dialects
