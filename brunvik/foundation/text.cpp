#include "brunvik/foundation/text.h"

#include "brunvik/ado/characters.h"

namespace brunvik {

namespace {

constexpr bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

}  // namespace

std::string upper_case(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = ado::upper_case(ado::take_character(text));
    if (character < 0x80) {
      result += static_cast<char>(character);
    } else {
      ado::append_character(result, character);
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
