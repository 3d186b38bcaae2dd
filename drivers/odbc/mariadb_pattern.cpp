#include "drivers/odbc/mariadb_pattern.h"

#include <algorithm>

#include "brunvik/ado/names.h"
#include "drivers/dialects/pattern.h"

namespace brunvik::odbc {

namespace {

using dialects::PatternElement;
using Kind = PatternElement::Kind;

// Of ASCII all but letters and digits may mean something; what is beyond means itself.
bool means_itself(char c) {
  const char small = ado::lower(c);
  return (small >= 'a' && small <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80;
}

std::string escaped(std::string_view text) {
  std::string letters;
  for (const char c : text) {
    if (!means_itself(c)) letters += '\\';
    letters += c;
  }
  return letters;
}

// A minus sign between two characters stays a range.
std::string list_expression(std::string_view list) {
  std::string expression = "[";
  if (list.size() > 1 && list.front() == '^') {
    expression += '^';
    list.remove_prefix(1);
  }
  for (std::size_t place = 0; place < list.size(); ++place) {
    const bool is_range = list[place] == '-' && place > 0 && place + 1 < list.size();
    expression += is_range ? "-" : escaped(list.substr(place, 1));
  }
  return expression + "]";
}

std::string expression_of(const PatternElement& element) {
  switch (element.kind) {
    case Kind::any_text:
      return ".*";
    case Kind::any_character:
      return ".";
    case Kind::list:
      return list_expression(element.text);
    default:
      return escaped(element.text);
  }
}

}  // namespace

MariaDbPattern translate_pattern(std::string_view literal) {
  const std::string pattern = dialects::plain_text(literal);
  const std::vector<PatternElement> elements = dialects::elements_of(pattern);
  const bool has_lists = std::any_of(elements.begin(), elements.end(),
                                     [](const PatternElement& element) { return element.kind == Kind::list; });
  std::string translated = has_lists ? "(?s)^" : "";
  bool has_escapes = false;
  for (const PatternElement& element : elements) {
    if (has_lists) {
      translated += expression_of(element);
      continue;
    }
    const bool is_sign =
        element.kind == Kind::character && (element.text == "%" || element.text == "_" || element.text == "\\");
    has_escapes = has_escapes || is_sign;
    if (is_sign) translated += '\\';
    translated += element.text;
  }
  if (has_lists) return {true, dialects::quoted(translated + "\\z")};
  return {false, dialects::quoted(translated) + (has_escapes ? " escape '\\'" : "")};
}

}  // namespace brunvik::odbc
