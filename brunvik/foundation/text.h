// Text as the statements need it. All text is UTF-8; what is no UTF-8 goes through as the bytes that it is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace brunvik {

// Without the blanks (U+0020 alone) at both ends.
constexpr std::string_view trimmed(std::string_view text) noexcept {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

// Upper case by Unicode's simple mapping, character by character: a becomes A, ａ becomes Ａ, ß stays.
std::string upper_case(std::string_view text);

// Every occurrence of `search`, compared byte by byte, replaced.
std::string replaced(std::string_view text, std::string_view search, std::string_view replacement);

// The text from a 1-based character position to its end.
std::string_view text_from(std::string_view text, std::size_t position) noexcept;

}  // namespace brunvik
