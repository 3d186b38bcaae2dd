#include "brunvik/foundation/statement_writer.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/text.h"

namespace brunvik {

namespace {

// Up to this length a text is quoted in a buffer of twice its size. Nearly all values are shorter, and in one pass over
// eight bytes at a time they cost half of what a search and three appends do.
constexpr std::size_t short_length = 62;
using QuotedBuffer = std::array<char, 2 * short_length + 2>;

template <class Bytes>
bool has_apostrophe(Bytes bytes) noexcept {
  constexpr Bytes ones = static_cast<Bytes>(0x0101010101010101U);
  const Bytes zero_where_apostrophe = bytes ^ (ones * '\'');
  return ((zero_where_apostrophe - ones) & ~zero_where_apostrophe & (ones << 7U)) != 0;
}

char* copy_doubled(char* out, const char* place, const char* end) noexcept {
  for (; place != end; ++place) {
    *out++ = *place;
    if (*place == '\'') *out++ = '\'';
  }
  return out;
}

// Copies the rest of a text of at least as many bytes, by all of its last bytes together: those in front of the rest
// stand there already, each once, unless there is an apostrophe among them.
template <class Bytes>
[[gnu::always_inline]] inline char* copy_rest(char* out, const char* place, const char* end) noexcept {
  Bytes last = 0;
  std::memcpy(&last, end - sizeof(Bytes), sizeof(Bytes));
  if (has_apostrophe(last)) return copy_doubled(out, place, end);
  out += end - place;
  std::memcpy(out - sizeof(Bytes), &last, sizeof(Bytes));
  return out;
}

template <class Bytes>
[[gnu::always_inline]] inline char* copy_by(char* out, const char* place, const char* end) noexcept {
  Bytes bytes = 0;
  for (; end - place >= static_cast<std::ptrdiff_t>(sizeof(Bytes)); place += sizeof(Bytes)) {
    std::memcpy(&bytes, place, sizeof(Bytes));
    if (has_apostrophe(bytes)) {
      out = copy_doubled(out, place, place + sizeof(Bytes));
    } else {
      std::memcpy(out, &bytes, sizeof(Bytes));
      out += sizeof(Bytes);
    }
  }
  return place == end ? out : copy_rest<Bytes>(out, place, end);
}

// The place behind the quoted text.
inline char* quote_short(char* out, std::string_view text) noexcept {
  const char* const place = text.data();
  const char* const end = place + text.size();
  *out++ = '\'';
  if (text.size() >= sizeof(std::uint64_t)) {
    out = copy_by<std::uint64_t>(out, place, end);
  } else if (text.size() >= sizeof(std::uint32_t)) {
    out = copy_by<std::uint32_t>(out, place, end);
  } else {
    out = copy_doubled(out, place, end);
  }
  *out++ = '\'';
  return out;
}

void append_long_quoted(std::string& statement, std::string_view text) {
  statement += '\'';
  for (auto apostrophe = text.find('\''); apostrophe != std::string_view::npos; apostrophe = text.find('\'')) {
    statement.append(text.substr(0, apostrophe + 1)) += '\'';
    text.remove_prefix(apostrophe + 1);
  }
  statement.append(text) += '\'';
}

}  // namespace

void append_quoted(std::string& statement, std::string_view text) {
  text = trimmed(text);
  if (text.size() > short_length) return append_long_quoted(statement, text);
  QuotedBuffer buffer;
  statement.append(buffer.data(), quote_short(buffer.data(), text));
}

std::string quoted(std::string_view text) {
  text = trimmed(text);
  // Half of the texts in a row of goods.
  if (text.empty()) return "''";
  QuotedBuffer buffer;
  if (text.size() <= short_length) return {buffer.data(), quote_short(buffer.data(), text)};
  std::string statement;
  append_long_quoted(statement, text);
  return statement;
}

void StatementWriter::add(std::int64_t number) {
  constexpr std::size_t longest = 20;
  if (room() < longest) add_long({});
  place_ = std::to_chars(place_, buffer_.data() + buffer_.size(), number).ptr;
}

void StatementWriter::add(ado::Money amount) {
  constexpr std::size_t longest = 24;
  if (room() < longest) add_long({});
  place_ = ado::write_amount(place_, amount.ten_thousandths());
}

void StatementWriter::add(ado::Single number) {
  // Nearly all quantities are whole or end in halves or quarters. Below this bound, which a single keeps to the
  // hundredth, such a number is its own shortest text.
  constexpr ado::Single bound = 100'000;
  if (std::fabs(number) < bound) {
    const auto quarters = static_cast<std::int32_t>(number * 4);
    if (static_cast<ado::Single>(quarters) == number * 4) {
      return add(ado::Money::from_ten_thousandths(quarters * (ado::Money::scale / 4)));
    }
  }
  std::string text;
  ado::append_number(text, number);
  add(text);
}

void StatementWriter::add_quoted(std::string_view text) {
  text = trimmed(text);
  if (text.size() > short_length || room() < 2 * short_length + 2) return add(quoted(text));
  place_ = quote_short(place_, text);
}

// Empties the buffer, so that there is room behind it.
void StatementWriter::add_long(std::string_view text) {
  front_.append(buffer_.data(), place_).append(text);
  place_ = buffer_.data();
}

std::string_view StatementWriter::text() {
  if (front_.empty()) return {buffer_.data(), place_};
  add_long({});
  return front_;
}

}  // namespace brunvik
