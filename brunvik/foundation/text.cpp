#include "brunvik/foundation/text.h"

#include <cstdint>
#include <cstring>

#include "brunvik/ado/characters.h"

namespace brunvik {

namespace {

constexpr bool is_ascii(char c) { return (static_cast<unsigned char>(c) & 0x80U) == 0; }
// How many bytes at the front are ASCII, looked at eight at a time as far as it goes.
std::size_t ascii_length(std::string_view text) noexcept {
  std::size_t length = 0;
  for (std::uint64_t eight = 0; length + 8 <= text.size(); length += 8) {
    std::memcpy(&eight, text.data() + length, 8);
    if ((eight & 0x8080808080808080U) != 0) break;
  }
  while (length < text.size() && is_ascii(text[length])) ++length;
  return length;
}

constexpr bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

// A character from U+4000 to U+9FFF: these have no case, and nearly all that the books hold beyond ASCII are among
// them.
constexpr bool begins_with_ideograph(std::string_view text) {
  return text.size() >= 3 && text[0] >= '\xE4' && text[0] <= '\xE9' && continues_character(text[1]) &&
         continues_character(text[2]);
}

}  // namespace

// Statements are ASCII but for some values, and each average that is written goes through here as a whole: character by
// character that is a tenth of all that the library does in a receipt's audit.
std::string upper_case(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = ascii_length(text);
    const std::size_t first = result.size();
    result.append(text.substr(0, length));
    text.remove_prefix(length);
    char* const letters = result.data() + first;
    for (std::size_t place = 0; place < length; ++place) {
      const char c = letters[place];
      letters[place] = static_cast<char>(c - (c >= 'a' && c <= 'z' ? 'a' - 'A' : 0));
    }
    while (!text.empty() && !is_ascii(text.front())) {
      if (begins_with_ideograph(text)) {
        result.append(text.substr(0, 3));
        text.remove_prefix(3);
        continue;
      }
      ado::append_character(result, ado::upper_case(ado::take_character(text)));
    }
  }
  return result;
}

std::string replaced(std::string_view text, std::string_view search, std::string_view replacement) {
  std::string result;
  result.reserve(text.size());
  for (auto found = text.find(search); found != std::string_view::npos; found = text.find(search)) {
    result.append(text.substr(0, found)).append(replacement);
    text.remove_prefix(found + search.size());
  }
  return result.append(text);
}

std::string_view text_from(std::string_view text, std::size_t position) noexcept {
  std::size_t begin = 0;
  for (std::size_t character = 1; character < position && begin < text.size(); ++character) {
    ++begin;
    while (begin < text.size() && continues_character(text[begin])) ++begin;
  }
  return text.substr(begin);
}

}  // namespace brunvik
