#include "brunvik/ado/characters.h"

#include <utf8proc.h>

#include <array>

namespace brunvik::ado {

namespace {

constexpr char32_t ascii_end = 0x80;
constexpr char32_t stray_bytes = 0x110000;  // behind the last character

// The simple mapping leaves it as it is; utf8proc would make it ẞ.
constexpr char32_t sharp_s = U'ß';

}  // namespace

char32_t take_character(std::string_view& text) noexcept {
  const auto first = static_cast<unsigned char>(text.front());
  if (first < ascii_end) {
    text.remove_prefix(1);
    return first;
  }
  utf8proc_int32_t character = 0;
  const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
  const auto length = utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &character);
  text.remove_prefix(length > 0 ? static_cast<std::size_t>(length) : 1);
  return length > 0 ? static_cast<char32_t>(character) : stray_bytes + first;
}

void append_character(std::string& text, char32_t character) {
  if (character < ascii_end || character >= stray_bytes) {
    text += static_cast<char>(character < ascii_end ? character : character - stray_bytes);
    return;
  }
  std::array<utf8proc_uint8_t, 4> bytes{};
  const auto length = utf8proc_encode_char(static_cast<utf8proc_int32_t>(character), bytes.data());
  text.append(bytes.begin(), bytes.begin() + length);
}

char32_t upper_case(char32_t character) noexcept {
  if (character < ascii_end) return character >= U'a' && character <= U'z' ? character - (U'a' - U'A') : character;
  if (character == sharp_s || character >= stray_bytes) return character;
  return static_cast<char32_t>(utf8proc_toupper(static_cast<utf8proc_int32_t>(character)));
}

bool has_case(char32_t character) noexcept {
  if (character >= stray_bytes) return false;
  const auto own = static_cast<utf8proc_int32_t>(character);
  return utf8proc_toupper(own) != own || utf8proc_tolower(own) != own;
}

}  // namespace brunvik::ado
