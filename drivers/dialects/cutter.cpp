#include "drivers/dialects/cutter.h"

#include <cstring>

#include "brunvik/ado/date.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "drivers/dialects/characters.h"
#include "drivers/dialects/memory.h"
#include "drivers/dialects/refusal.h"

namespace brunvik::dialects {

namespace {

std::string_view first_word(std::string_view statement) noexcept {
  const auto first = statement.find_first_not_of(" \t\r\n(");
  if (first == std::string_view::npos) return {};
  std::size_t end = first;
  while (end < statement.size() && is_word(statement[end])) ++end;
  return statement.substr(first, end - first);
}

bool works_on_rows(std::string_view word) {
  for (const std::string_view verb : {"select", "insert", "update", "delete", "with", "replace", "values", "explain"}) {
    if (ado::same_name(word, verb)) return true;
  }
  return false;
}

// EXPLAIN tells of the statement as it would be carried out.
bool selects_rows(std::string_view word) noexcept {
  return ado::same_name(word, "select") || ado::same_name(word, "explain");
}

// The four bytes at a place as lower-case letters, to be compared as one number.
std::uint32_t letters(const char* place) noexcept {
  std::uint32_t four = 0;
  std::memcpy(&four, place, sizeof four);
  return four | 0x20202020U;
}

enum class Keeps { nothing, the_next_literal, the_rest, the_list, the_list_ends };

// Which literals a word keeps in the text.
Keeps kept_by(const char* word, std::ptrdiff_t length) noexcept {
  switch (length) {
    case 3:
      return ado::same_name({word, 3}, "top") ? Keeps::the_next_literal : Keeps::nothing;
    case 4: {
      const std::uint32_t four = letters(word);
      if (four == letters("from")) return Keeps::the_list_ends;
      return four == letters("like") ? Keeps::the_next_literal : Keeps::nothing;
    }
    case 5: {
      const std::uint32_t four = letters(word);
      const char last = ado::lower(word[4]);
      const bool rest = (four == letters("orde") && last == 'r') || (four == letters("grou") && last == 'p') ||
                        (four == letters("limi") && last == 't');
      return rest ? Keeps::the_rest : Keeps::nothing;
    }
    case 6:
      if (ado::same_name({word, 6}, "select")) return Keeps::the_list;
      return ado::same_name({word, 6}, "escape") ? Keeps::the_next_literal : Keeps::nothing;
    default:
      return Keeps::nothing;
  }
}

bool is_date(std::string_view content) {
  try {
    ado::parse_date(content);
    return true;
  } catch (const ado::RuntimeError&) {
    return false;
  }
}

}  // namespace

const char* end_of_text(const char* place, const char* end, bool& has_apostrophes) noexcept {
  for (;;) {
    const void* const found = std::memchr(place, '\'', static_cast<std::size_t>(end - place));
    if (!found) return nullptr;
    place = static_cast<const char*>(found) + 1;
    if (place == end || *place != '\'') return place;
    has_apostrophes = true;
    ++place;
  }
}

const char* end_of_number(const char* place, const char* end) noexcept {
  while (place != end && is_digit(*place)) ++place;
  if (place != end && *place == '.') {
    ++place;
    while (place != end && is_digit(*place)) ++place;
  }
  if (place != end && (*place == 'e' || *place == 'E')) {
    const char* exponent = place + 1;
    if (exponent != end && (*exponent == '+' || *exponent == '-')) ++exponent;
    if (exponent == end || !is_digit(*exponent)) return nullptr;
    place = exponent;
    while (place != end && is_digit(*place)) ++place;
  }
  return place != end && is_word(*place) ? nullptr : place;
}

bool is_selection(std::string_view statement) noexcept { return selects_rows(first_word(statement)); }

bool is_kept_zero(std::string_view statement, const char* first, const char* behind) noexcept {
  return behind - first == 1 && *first == '0' && first != statement.data() && first[-1] == '=';
}

bool Cutter::cut(std::string_view statement) {
  literals_.clear();
  length_ = 0;
  const std::string_view verb = first_word(statement);
  if (!works_on_rows(verb)) return false;
  const bool selects = selects_rows(verb);
  // A mark is never longer than its literal.
  if (shape_.size() < statement.size()) shape_.resize(statement.size());

  const char* place = statement.data();
  const char* const end = place + statement.size();
  const char* copied = place;  // all before it is in the shape
  char* out = shape_.data();
  bool keep_next = false;
  bool keep_rest = false;
  bool keep_list = false;
  int depth = 0;
  int rest_depth = 0;

  const auto copy_until = [&](const char* until) {
    std::memcpy(out, copied, static_cast<std::size_t>(until - copied));
    out += until - copied;
  };
  const auto found = [&](LiteralKind kind, const char* first, std::string_view content, bool has_apostrophes) {
    if (keep_next || keep_rest || keep_list) {
      if (content.find('\0') != std::string_view::npos)
        refuse("A zero byte has no place in a literal that stays in the text.", statement);
      keep_next = false;
      return;
    }
    copy_until(first);
    *out++ = mark_of(kind);
    copied = place;
    literals_.push_back({content, kind, has_apostrophes});
  };
  const auto behind = [&](char closing, std::string_view what) {
    const void* const found_at = std::memchr(place, closing, static_cast<std::size_t>(end - place));
    if (!found_at) refuse(std::string(what) + " has no end.", statement);
    return static_cast<const char*>(found_at) + 1;
  };

  while (place != end) {
    const char* const first = place;
    switch (character(*place)) {
      case Character::other:
        ++place;
        break;
      case Character::word: {
        do {
          ++place;
        } while (place != end && is_word(*place));
        switch (kept_by(first, place - first)) {
          case Keeps::nothing:
            break;
          case Keeps::the_next_literal:
            keep_next = true;
            break;
          case Keeps::the_rest:
            if (!keep_rest) rest_depth = depth;
            keep_rest = true;
            break;
          case Keeps::the_list:
            keep_list = true;
            break;
          case Keeps::the_list_ends:
            keep_list = false;
            break;
        }
        break;
      }
      case Character::point:
        // The point of a name, as in StockBill.Id, or the start of a number.
        if (place + 1 == end || !is_digit(place[1]) ||
            (place != statement.data() && (is_word(place[-1]) || place[-1] == ']' || place[-1] == '"'))) {
          ++place;
          break;
        }
        [[fallthrough]];
      case Character::digit:
        place = end_of_number(place, end);
        if (!place) refuse("A number runs into a word: " + std::string(first, end), statement);
        if (selects && is_kept_zero(statement, first, place)) {
          keep_next = false;
        } else {
          found(LiteralKind::number, first, {first, place}, false);
        }
        break;
      case Character::apostrophe: {
        bool has_apostrophes = false;
        place = end_of_text(place + 1, end, has_apostrophes);
        if (!place) refuse("A text has no end.", statement);
        found(LiteralKind::text, first, {first + 1, place - 1}, has_apostrophes);
        break;
      }
      case Character::number_sign: {
        ++place;
        place = behind('#', "A date");
        const std::string_view content(first + 1, place - 1);
        if (!is_date(content)) refuse("This is no date: #" + std::string(content) + "#", statement);
        found(LiteralKind::date, first, content, false);
        break;
      }
      case Character::opening_bracket:
        ++place;
        place = behind(']', "A name in brackets");
        break;
      case Character::quotation_mark:
        ++place;
        place = behind('"', "A name in quotation marks");
        break;
      case Character::opening_parenthesis:
        ++place;
        ++depth;
        break;
      case Character::closing_parenthesis:
        ++place;
        if (--depth < rest_depth) keep_rest = false;
        break;
      case Character::refused:
        refuse("A statement has no place for the character '" + std::string(1, *place) + "'.", statement);
    }
  }
  copy_until(end);
  length_ = static_cast<std::size_t>(out - shape_.data());
  return true;
}

void Cutter::let_go() noexcept {
  if (held_bytes() <= largest_held) return;
  length_ = 0;
  // An assignment would keep the room.
  std::string().swap(shape_);
  std::vector<Literal>().swap(literals_);
}

}  // namespace brunvik::dialects
