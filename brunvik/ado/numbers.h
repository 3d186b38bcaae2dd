// Numbers as decimal text: the shortest text that reads back as the same value, with a point, never an exponent.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "brunvik/ado/types.h"

namespace brunvik::ado {

void append_number(std::string& text, std::int64_t value);
void append_number(std::string& text, Single value);
void append_number(std::string& text, Double value);

std::string number_text(Long value);

// Writes an amount, given in ten-thousandths, in at most 24 bytes. The place behind it.
char* write_amount(char* place, std::int64_t ten_thousandths) noexcept;

// Reads decimal text (a point, an exponent where there is one); error 13 for other text, 6 for too large a number.
double parse_double(std::string_view text);

// The text between the blanks around a number.
std::string_view trimmed_number(std::string_view text) noexcept;

// The nearest 32-bit, 16-bit or byte number, ties to the even one; error 6 outside of the range.
Long to_long(double value);
Integer to_integer(double value);
Byte to_byte(double value);

// The nearest single; error 6 outside of the range.
Single to_single(double value);

}  // namespace brunvik::ado
