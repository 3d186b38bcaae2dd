// The tokens of a statement's shape.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "brunvik/ado/names.h"
#include "drivers/dialects/cutter.h"

namespace brunvik::dialects {

enum class TokenKind {
  word,       // a name or a keyword
  name,       // a name in brackets or quotation marks
  parameter,  // a value that was cut out
  text,       // a literal that stays in the text
  number,
  date,
  symbol,
};

struct Token {
  TokenKind kind;
  std::string_view text;      // as it stands in the shape
  bool blank_before = false;  // set apart from the token in front of it
  std::size_t parameter = 0;  // which one, counted from zero
  LiteralKind literal = LiteralKind::text;

  bool is(std::string_view word) const noexcept { return kind == TokenKind::word && ado::same_name(text, word); }
  bool is_symbol(std::string_view symbol) const noexcept { return kind == TokenKind::symbol && text == symbol; }
  bool is_name() const noexcept { return kind == TokenKind::word || kind == TokenKind::name; }
  bool is_literal() const noexcept { return kind >= TokenKind::parameter && kind <= TokenKind::date; }
};

// The tokens point into the shape.
std::vector<Token> tokens_of(std::string_view shape);

// The name that a word or a name in brackets stands for.
std::string_view bare_name(const Token& token);

// A word that can't be the name of a column, so that what follows it begins anew.
bool is_keyword(const Token& token);

}  // namespace brunvik::dialects
