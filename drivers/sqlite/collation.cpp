#include "drivers/sqlite/collation.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <string>

#include "brunvik/ado/characters.h"
#include "brunvik/ado/names.h"
#include "drivers/sqlite/failure.h"

namespace brunvik::sqlite {

namespace {

std::string_view without_trailing_blanks(std::string_view text) noexcept {
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

// Letters of ASCII in the order of the small ones, as the engine has them; all others in that of the capital ones.
char32_t without_case(char32_t character) noexcept {
  const char32_t capital = ado::upper_case(character);
  return capital < 0x80 ? static_cast<char32_t>(ado::lower(static_cast<char>(capital))) : capital;
}

// The bytes of a text whose characters have lost their case. The order of these bytes is the order of the texts: for
// characters it is that of their numbers, and a search by the beginning of a text stays a range of an index.
class BytesWithoutCase {
 public:
  explicit BytesWithoutCase(std::string_view text) noexcept : rest_(text) {}

  // -1 behind the last.
  int next() {
    if (place_ == character_.size()) {
      if (rest_.empty()) return -1;
      character_.clear();
      place_ = 0;
      ado::append_character(character_, without_case(ado::take_character(rest_)));
    }
    return static_cast<unsigned char>(character_[place_++]);
  }

 private:
  std::string_view rest_;
  std::string character_;  // four bytes at most, so it never touches the heap
  std::size_t place_ = 0;
};

int compare_without_case(std::string_view left, std::string_view right) {
  BytesWithoutCase left_bytes(left);
  BytesWithoutCase right_bytes(right);
  for (;;) {
    const int left_byte = left_bytes.next();
    const int right_byte = right_bytes.next();
    if (left_byte != right_byte) return left_byte < right_byte ? -1 : 1;
    if (left_byte < 0) return 0;
  }
}

unsigned char byte_at(std::string_view text, std::size_t place) noexcept {
  return place < text.size() ? static_cast<unsigned char>(text[place]) : 0;
}

// A byte that can stand inside of a character and never at its start.
bool goes_on(unsigned char byte) noexcept { return (byte & 0xC0U) == 0x80U; }

int compare(void*, int left_length, const void* left, int right_length, const void* right) noexcept {
  return compare_texts({static_cast<const char*>(left), static_cast<std::size_t>(left_length)},
                       {static_cast<const char*>(right), static_cast<std::size_t>(right_length)});
}

}  // namespace

int compare_texts(std::string_view left, std::string_view right) noexcept {
  left = without_trailing_blanks(left);
  right = without_trailing_blanks(right);
  const std::size_t common = std::min(left.size(), right.size());
  std::size_t place = 0;
  // Keys of one kind and day begin alike.
  for (; place + 8 <= common; place += 8) {
    if (std::memcmp(left.data() + place, right.data() + place, 8) != 0) break;
  }
  for (; place < common; ++place) {
    if (left[place] == right[place]) continue;
    if (((byte_at(left, place) | byte_at(right, place)) & 0x80U) != 0) break;
    const int difference =
        static_cast<unsigned char>(ado::lower(left[place])) - static_cast<unsigned char>(ado::lower(right[place]));
    if (difference != 0) return difference;
  }
  const bool is_ascii = ((byte_at(left, place) | byte_at(right, place)) & 0x80U) == 0;
  if (is_ascii) return static_cast<int>(left.size()) - static_cast<int>(right.size());
  // Up to here both are alike, so a character that goes on here in one of them may begin in both.
  while (place > 0 && (goes_on(byte_at(left, place)) || goes_on(byte_at(right, place)))) --place;
  return compare_without_case(left.substr(place), right.substr(place));
}

// The engine's own NOCASE, but for trailing blanks and for letters beyond ASCII: statements that the library puts in
// upper case must find the keys that hold such letters. An index is in the same order for both as long as no key ends
// in a blank or holds a small letter beyond ASCII; Chinese characters have no case.
void add_collation(sqlite3* database) {
  const int code = sqlite3_create_collation_v2(database, "NOCASE", SQLITE_UTF8, nullptr, compare, nullptr);
  if (code != SQLITE_OK) raise_failure(database, code, Stage::running, {});
}

}  // namespace brunvik::sqlite
