#include "drivers/dialects/tokens.h"

#include <algorithm>
#include <array>

#include "drivers/dialects/characters.h"

namespace brunvik::dialects {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

std::size_t end_of_digits(std::string_view shape, std::size_t place) {
  while (place < shape.size() && is_digit(shape[place])) ++place;
  return place;
}

std::size_t end_of_number(std::string_view shape, std::size_t place) {
  place = end_of_digits(shape, place);
  if (place < shape.size() && shape[place] == '.') place = end_of_digits(shape, place + 1);
  if (place < shape.size() && ado::lower(shape[place]) == 'e') {
    ++place;
    if (place < shape.size() && (shape[place] == '+' || shape[place] == '-')) ++place;
    place = end_of_digits(shape, place);
  }
  return place;
}

// Behind the closing mark; an apostrophe that stands there twice closes nothing.
std::size_t end_of_quoted(std::string_view shape, std::size_t place, char closing) {
  for (;;) {
    place = shape.find(closing, place);
    if (place == std::string_view::npos) return shape.size();
    ++place;
    if (closing != '\'' || place == shape.size() || shape[place] != closing) return place;
    ++place;
  }
}

std::size_t end_of_symbol(std::string_view shape, std::size_t place) {
  const std::string_view two = shape.substr(place, 2);
  for (const std::string_view symbol : {"<>", "<=", ">=", "!=", "==", "||", "<<", ">>"}) {
    if (two == symbol) return place + 2;
  }
  return place + 1;
}

}  // namespace

std::vector<Token> tokens_of(std::string_view shape) {
  std::vector<Token> tokens;
  std::size_t place = 0;
  std::size_t parameters = 0;
  while (place < shape.size()) {
    const std::size_t before = place;
    while (place < shape.size() && is_blank(shape[place])) ++place;
    if (place == shape.size()) break;
    const std::size_t first = place;
    Token token{TokenKind::symbol, {}, first != before};
    const char c = shape[place];
    if (is_mark(c)) {
      token.kind = TokenKind::parameter;
      token.literal = static_cast<LiteralKind>(c - mark_of(LiteralKind::text));
      token.parameter = parameters++;
      ++place;
    } else if (is_digit(c) ||
               (c == '.' && place + 1 < shape.size() && is_digit(shape[place + 1]) &&
                !(place != 0 && (is_word(shape[place - 1]) || shape[place - 1] == ']' || shape[place - 1] == '"')))) {
      token.kind = TokenKind::number;
      place = end_of_number(shape, place);
    } else if (is_word(c)) {
      token.kind = TokenKind::word;
      while (place < shape.size() && is_word(shape[place])) ++place;
    } else if (c == '\'') {
      token.kind = TokenKind::text;
      place = end_of_quoted(shape, place + 1, '\'');
    } else if (c == '#') {
      token.kind = TokenKind::date;
      place = end_of_quoted(shape, place + 1, '#');
    } else if (c == '[' || c == '"') {
      token.kind = TokenKind::name;
      place = end_of_quoted(shape, place + 1, c == '[' ? ']' : '"');
    } else {
      place = end_of_symbol(shape, place);
    }
    token.text = shape.substr(first, place - first);
    tokens.push_back(token);
  }
  return tokens;
}

std::string_view bare_name(const Token& token) {
  if (token.kind != TokenKind::name || token.text.size() < 2) return token.text;
  return token.text.substr(1, token.text.size() - 2);
}

bool is_keyword(const Token& token) {
  static constexpr std::array<std::string_view, 47> words = {
      "all",      "and",   "as",     "asc",       "between", "by",     "case",  "cross", "delete",    "desc",
      "distinct", "else",  "end",    "escape",    "except",  "exists", "from",  "full",  "group",     "having",
      "in",       "inner", "insert", "intersect", "into",    "is",     "join",  "left",  "like",      "limit",
      "not",      "null",  "offset", "on",        "or",      "order",  "outer", "right", "returning", "select",
      "set",      "then",  "union",  "update",    "values",  "when",   "where"};
  return token.kind == TokenKind::word &&
         std::any_of(words.begin(), words.end(), [&](std::string_view word) { return token.is(word); });
}

}  // namespace brunvik::dialects
