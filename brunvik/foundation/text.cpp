#include "brunvik/foundation/text.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>

namespace brunvik {

namespace {

bool is_ascii(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

constexpr char upper_ascii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c; }

constexpr bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

// The simple mapping leaves ß as it is; the library would write ẞ.
constexpr utf8proc_int32_t sharp_s = 0xDF;

void append_upper_case(std::string& result, utf8proc_int32_t character) {
  std::array<utf8proc_uint8_t, 4> bytes{};
  const auto length = utf8proc_encode_char(character == sharp_s ? sharp_s : utf8proc_toupper(character), bytes.data());
  result.append(bytes.begin(), bytes.begin() + length);
}

}  // namespace

std::string upper_case(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  if (is_ascii(text)) {
    std::transform(text.begin(), text.end(), std::back_inserter(result), upper_ascii);
    return result;
  }
  while (!text.empty()) {
    if (static_cast<unsigned char>(text.front()) < 0x80) {
      result += upper_ascii(text.front());
      text.remove_prefix(1);
      continue;
    }
    utf8proc_int32_t character = -1;
    const auto* bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
    const auto length = utf8proc_iterate(bytes, static_cast<utf8proc_ssize_t>(text.size()), &character);
    if (length > 0) {
      append_upper_case(result, character);
      text.remove_prefix(static_cast<std::size_t>(length));
    } else {
      result += text.front();
      text.remove_prefix(1);
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
