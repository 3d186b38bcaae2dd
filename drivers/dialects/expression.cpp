#include "drivers/dialects/expression.h"

#include <algorithm>
#include <stdexcept>

namespace brunvik::dialects {

namespace {

// Far more than a statement of the books has, and far less than the stack holds.
constexpr std::size_t deepest = 100;

Arithmetic joined(Arithmetic left, Arithmetic right) { return std::max(left, right); }

Arithmetic kind_of_type(ColumnType type) {
  switch (type) {
    case ColumnType::money:
      return Arithmetic::money;
    case ColumnType::byte_number:
    case ColumnType::integer_number:
    case ColumnType::long_number:
    case ColumnType::bit:
      return Arithmetic::neutral;
    default:
      return Arithmetic::other;
  }
}

bool is_one_of(const Token& token, std::initializer_list<std::string_view> words) {
  return std::any_of(words.begin(), words.end(), [&](std::string_view word) { return token.is(word); });
}

}  // namespace

bool is_sign(const Token& token) { return token.is_symbol("-") || token.is_symbol("+"); }

Expressions::Expressions(std::span<const Token> tokens, const Scope& scope)
    : tokens_(tokens), scope_(scope), closing_(tokens.size(), tokens.size()) {
  std::vector<std::size_t> open;
  for (std::size_t place = 0; place < tokens.size(); ++place) {
    if (tokens[place].is_symbol("(")) {
      if (open.size() == deepest) throw std::invalid_argument("Parentheses are nested too deeply.");
      open.push_back(place);
    } else if (tokens[place].is_symbol(")") && !open.empty()) {
      closing_[open.back()] = place;
      open.pop_back();
    }
  }
}

std::size_t Expressions::end_of_item(std::size_t first, std::size_t end) const {
  for (std::size_t place = first; place < end; ++place) {
    if (tokens_[place].is_symbol(",")) return place;
    if (tokens_[place].is_symbol("(")) place = std::min(closing_[place], end);
  }
  return end;
}

std::size_t Expressions::find(std::size_t first, std::size_t end, std::span<const std::string_view> words) const {
  for (std::size_t place = first; place < end; ++place) {
    if (tokens_[place].is_symbol("(")) {
      place = std::min(closing_[place], end);
    } else if (std::any_of(words.begin(), words.end(), [&](auto word) { return tokens_[place].is(word); })) {
      return place;
    }
  }
  return end;
}

std::size_t Expressions::end_of_path(std::size_t first, std::size_t end) const {
  std::size_t place = first + 1;
  while (place + 1 < end && tokens_[place].is_symbol(".") &&
         (tokens_[place + 1].is_name() || tokens_[place + 1].is_symbol("*"))) {
    place += 2;
  }
  return place;
}

ColumnType Expressions::type_of_path(std::size_t first, std::size_t end) const {
  const std::string_view table = end - first >= 3 ? bare_name(tokens_[end - 3]) : std::string_view();
  return scope_.type_of(table, bare_name(tokens_[end - 1]));
}

std::size_t Expressions::end_of_operand(std::size_t first, std::size_t end) const {
  std::size_t place = first;
  while (place < end && is_sign(tokens_[place])) ++place;
  if (place == end) return first;
  const Token& token = tokens_[place];
  if (token.is_literal()) return place + 1;
  if (token.is_symbol("(")) return closing_[place] < end ? closing_[place] + 1 : first;
  if (!token.is_name() || is_keyword(token)) return first;
  place = end_of_path(place, end);
  if (place < end && tokens_[place].is_symbol("(") && closing_[place] < end) place = closing_[place] + 1;
  return place;
}

Arithmetic Expressions::kind_of_operand(std::size_t first, std::size_t end) const {
  while (is_sign(tokens_[first])) ++first;
  const Token& token = tokens_[first];
  if (token.is_literal()) {
    const bool date =
        token.kind == TokenKind::date || (token.kind == TokenKind::parameter && token.literal == LiteralKind::date);
    return date ? Arithmetic::other : Arithmetic::neutral;
  }
  if (token.is_symbol("(")) {
    if (first + 1 >= end - 1 || !tokens_[first + 1].is("select")) return kind_of(first + 1, end - 1);
    static constexpr std::string_view from[] = {"from"};
    return kind_of(first + 2, find(first + 2, end - 1, from));
  }
  const std::size_t path_end = end_of_path(first, end);
  if (path_end < end) return kind_of_call(first, path_end);
  return kind_of_type(type_of_path(first, path_end));
}

Arithmetic Expressions::kind_of_call(std::size_t name, std::size_t opening) const {
  const Token& function = tokens_[name];
  std::size_t first = opening + 1;
  const std::size_t end = closing_[opening];
  if (is_one_of(function, {"count", "convert", "clng"})) return Arithmetic::neutral;
  if (!is_one_of(function, {"sum", "max", "min", "abs", "ifnull", "coalesce", "nullif"})) return Arithmetic::other;
  if (first < end && tokens_[first].is("distinct")) ++first;
  return kind_of_items(first, end);
}

Arithmetic Expressions::kind_of_items(std::size_t first, std::size_t end) const {
  Arithmetic kind = Arithmetic::neutral;
  while (first < end) {
    const std::size_t item_end = end_of_item(first, end);
    kind = joined(kind, kind_of(first, item_end));
    first = item_end + 1;
  }
  return kind;
}

Run Expressions::run_at(std::size_t first, std::size_t end) const {
  std::size_t operand_end = end_of_operand(first, end);
  if (operand_end == first) return {first, 0, Arithmetic::other};
  Run run{operand_end, 0, kind_of_operand(first, operand_end)};
  while (run.end < end) {
    const Token& symbol = tokens_[run.end];
    if (!is_sign(symbol) && !symbol.is_symbol("*") && !symbol.is_symbol("/")) break;
    const std::size_t operand = run.end + 1;
    operand_end = end_of_operand(operand, end);
    if (operand_end == operand) break;
    run.kind = joined(run.kind, kind_of_operand(operand, operand_end));
    run.end = operand_end;
    ++run.operators;
  }
  return run;
}

std::vector<Term> Expressions::terms(std::size_t first, std::size_t end) const {
  std::vector<Term> terms{{first, first, false}};
  while (terms.back().end < end) {
    const std::size_t symbol = terms.back().end;
    if (symbol != first && is_sign(tokens_[symbol])) {
      terms.push_back({symbol + 1, end_of_operand(symbol + 1, end), tokens_[symbol].is_symbol("-")});
    } else {
      terms.back().end = end_of_operand(symbol == first ? first : symbol + 1, end);
    }
  }
  return terms;
}

Arithmetic Expressions::kind_of(std::size_t first, std::size_t end) const {
  if (first >= end) return Arithmetic::other;
  const Run run = run_at(first, end);
  return run.end == end ? run.kind : Arithmetic::other;
}

}  // namespace brunvik::dialects
