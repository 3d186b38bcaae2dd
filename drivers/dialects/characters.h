// What a byte of a statement can be the start of.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace brunvik::dialects {

enum class Character : std::uint8_t {
  other,
  word,  // letters, the underscore, and every byte of a letter beyond ASCII
  digit,
  point,
  apostrophe,
  number_sign,
  opening_bracket,
  quotation_mark,
  opening_parenthesis,
  closing_parenthesis,
  refused,  // neither dialect has it outside of a literal
};

inline constexpr std::array<Character, 256> characters = [] {
  std::array<Character, 256> list{};
  for (unsigned c = 0; c < 256; ++c) {
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c >= 0x80) list[c] = Character::word;
    if (c >= '0' && c <= '9') list[c] = Character::digit;
    if ((c < ' ' && c != '\t' && c != '\n' && c != '\r') || c == 0x7f) list[c] = Character::refused;
  }
  list['.'] = Character::point;
  list['\''] = Character::apostrophe;
  list['#'] = Character::number_sign;
  list['['] = Character::opening_bracket;
  list['"'] = Character::quotation_mark;
  list['('] = Character::opening_parenthesis;
  list[')'] = Character::closing_parenthesis;
  // These would be parameters that nobody binds, or names under a mark of a third dialect.
  for (const char c : std::string_view("?:@$`")) list[static_cast<unsigned char>(c)] = Character::refused;
  return list;
}();

constexpr Character character(char c) noexcept { return characters[static_cast<unsigned char>(c)]; }
constexpr bool is_digit(char c) noexcept { return character(c) == Character::digit; }
constexpr bool is_word(char c) noexcept { return character(c) == Character::word || is_digit(c); }

}  // namespace brunvik::dialects
