// Finds the arithmetic in a statement, and whether it is done on money.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "drivers/dialects/scope.h"
#include "drivers/dialects/tokens.h"

namespace brunvik::dialects {

enum class Arithmetic {
  neutral,  // whole numbers and literals
  money,    // money, and nothing beside it but neutral operands
  other,
};

// Operands joined by + - * /, as long as they go on.
struct Run {
  std::size_t end;  // behind the last operand; the start itself where there is no operand
  std::size_t operators;
  Arithmetic kind;
};

// Of a run: operands joined by * and /, which are added to the others or taken away from them.
struct Term {
  std::size_t first;
  std::size_t end;
  bool taken_away;
};

class Expressions {
 public:
  // Throws std::invalid_argument where brackets are nested too deeply.
  Expressions(std::span<const Token> tokens, const Scope& scope);

  // The place of the parenthesis that closes the one at a place; the number of tokens where there is none.
  std::size_t closing(std::size_t opening) const { return closing_[opening]; }

  // The first comma of this level in a range, or the range's end.
  std::size_t end_of_item(std::size_t first, std::size_t end) const;

  // The first token of this level in a range that is one of the words, or the range's end.
  std::size_t find(std::size_t first, std::size_t end, std::span<const std::string_view> words) const;

  Run run_at(std::size_t first, std::size_t end) const;

  // `end` is the end of the run that begins at `first`.
  std::vector<Term> terms(std::size_t first, std::size_t end) const;

  // Of a whole range: `other` where it is more than one run.
  Arithmetic kind_of(std::size_t first, std::size_t end) const;

  // Behind the name at a place with all of its parts (goods.id, goods.*).
  std::size_t end_of_path(std::size_t first, std::size_t end) const;
  ColumnType type_of_path(std::size_t first, std::size_t end) const;

 private:
  std::size_t end_of_operand(std::size_t first, std::size_t end) const;
  Arithmetic kind_of_operand(std::size_t first, std::size_t end) const;
  Arithmetic kind_of_call(std::size_t name, std::size_t opening) const;
  Arithmetic kind_of_items(std::size_t first, std::size_t end) const;

  std::span<const Token> tokens_;
  const Scope& scope_;
  std::vector<std::size_t> closing_;
};

bool is_sign(const Token& token);

}  // namespace brunvik::dialects
