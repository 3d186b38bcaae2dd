// The characters of UTF-8 text, and their case.
#pragma once

#include <string>
#include <string_view>

namespace brunvik::ado {

// Takes the character at the front of a text that isn't empty. A byte that belongs to no character is taken by itself
// and gives a number that no character has.
char32_t take_character(std::string_view& text) noexcept;

// The reverse of take_character, also for such a byte.
void append_character(std::string& text, char32_t character);

// By Unicode's simple mapping: a becomes A, ａ becomes Ａ, ß stays.
char32_t upper_case(char32_t character) noexcept;

// A letter that has a small and a capital form.
bool has_case(char32_t character) noexcept;

}  // namespace brunvik::ado
