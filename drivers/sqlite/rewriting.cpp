#include "drivers/sqlite/rewriting.h"

#include <algorithm>
#include <optional>
#include <span>
#include <stdexcept>

#include "drivers/dialects/highest_number.h"
#include "drivers/dialects/rewriter.h"
#include "drivers/sqlite/assignment.h"
#include "drivers/sqlite/failure.h"
#include "drivers/sqlite/functions.h"
#include "drivers/sqlite/neighbour.h"
#include "drivers/sqlite/pattern.h"

namespace brunvik::sqlite {

namespace {

// Whole amounts are kept as whole numbers, whose quotient would be cut off.
std::string_view division(const Run& run) { return run.kind == Arithmetic::money ? "* 1.0 /" : "/"; }

// The keys of a ledger that are more or less than the digits of a 32-bit number; books keep them in an index of this
// very condition, so that it is known at once that there are none.
std::string no_plain_number(std::string_view column) {
  const std::string name(column);
  return "length(" + name + ") NOT BETWEEN 1 AND 9 OR " + name + " GLOB '*[^0-9]*'";
}

class Rewriter final : public dialects::Rewriter {
 public:
  Rewriter(std::span<const Token> tokens, Catalogue& catalogue)
      : dialects::Rewriter(tokens, catalogue), indexes_(catalogue) {
    const auto parameters = std::count_if(tokens.begin(), tokens.end(),
                                          [](const Token& token) { return token.kind == TokenKind::parameter; });
    result_.targets.resize(static_cast<std::size_t>(parameters));
  }

  Rewritten run() {
    result_.text = rewritten();
    return std::move(result_);
  }

 private:
  bool select(std::size_t verb, std::size_t end) override {
    // What EXPLAIN tells has columns of its own.
    if (!is(0, "explain")) result_.selection = describe_selection(tokens_, expressions_, verb + 1, end);
    return highest_number(verb, end) || neighbour(verb, end);
  }

  bool highest_number(std::size_t verb, std::size_t end) {
    const auto found = highest_number_of_ledger(tokens_, verb, end);
    if (!found || !indexes_.has_number_index(bare_name(tokens_[end - 1]), bare_name(tokens_[found->column]))) {
      return false;
    }
    const std::string column(tokens_[found->column].text);
    const std::string table(tokens_[end - 1].text);
    const std::string number = "CAST(" + column + " AS INTEGER)";
    write(verb);
    out_.write("(CASE WHEN EXISTS(SELECT 1 FROM " + table + " WHERE " + no_plain_number(column) + ") THEN (SELECT ",
               true);
    range(verb + 1, found->column + 3);
    out_.write("FROM " + table + ") ELSE (SELECT " + number + " FROM " + table + " ORDER BY " + number +
                   " COLLATE BINARY DESC LIMIT 1) END)",
               true);
    for (std::size_t place = found->column + 3; place < found->from; ++place) write(place);
    return true;
  }

  // A sign in front of a column keeps its value and takes it out of the engine's choice of ranges.
  bool neighbour(std::size_t verb, std::size_t end) {
    const auto found = neighbour_in_series(tokens_, verb);
    if (!found) return false;
    const std::size_t behind_pattern = found->matched + 3;
    range(verb, found->compared);
    out_.write("+", true);
    range(found->compared, found->matched);
    out_.write("+", true);
    range(found->matched, behind_pattern);
    out_.write(found->range, true);
    range(behind_pattern, end);
    return true;
  }

  void assign(std::size_t first, std::size_t end, ColumnType type) override {
    const bool as_it_is = type == ColumnType::other || type == ColumnType::bit || type == ColumnType::text;
    if (first == end || as_it_is) return range(first, end);
    std::size_t bare = first;
    while (bare < end && is_sign(tokens_[bare]) && is_symmetric(type)) ++bare;
    if (bare + 1 == end) {
      const Token& token = tokens_[bare];
      if (token.kind == TokenKind::parameter) {
        result_.targets[token.parameter] = target_of(type);
        return range(first, end);
      }
      if (token.is("null")) return range(first, end);
    }
    if (is_column(first, end) && expressions_.type_of_path(first, end) == type) return range(first, end);
    const Run run = expressions_.run_at(first, end);
    const bool is_run = run.end == end;
    if (is_run && type == ColumnType::money && run.kind != Arithmetic::other && is_total(first, run)) {
      return total(first, run);
    }
    out_.write(function_of(type), tokens_[first].blank_before);
    out_.write("(", false);
    if (is_run) {
      operands(first, end, division(run));
    } else {
      range(first, end);
    }
    if (const auto range = whole_range(type)) {
      out_.write("," + std::to_string(range->low) + "," + std::to_string(range->high), false);
    }
    out_.write(")", false);
  }

  void like(std::size_t place) override {
    const TranslatedPattern pattern = translate_pattern(tokens_[place + 1].text);
    // The engine's REGEXP is an operator without a meaning of its own: the driver gives it that of our patterns.
    out_.write(pattern.has_lists ? "regexp" : tokens_[place].text, tokens_[place].blank_before);
    out_.write(pattern.literal, true);
  }

  void arithmetic(std::size_t first, const Run& run) override {
    const bool exact = run.operators != 0 && run.kind == Arithmetic::money;
    if (exact && is_total(first, run)) return total(first, run);
    if (exact) {
      out_.write(money_function, tokens_[first].blank_before);
      out_.write("(", false);
    }
    operands(first, run.end, division(run));
    if (exact) out_.write(")", false);
  }

  // A sum of large doubles is farther from the amount than the doubles themselves.
  bool is_total(std::size_t first, const Run& run) const {
    return run.operators != 0 && expressions_.terms(first, run.end).size() > 1;
  }

  void total(std::size_t first, const Run& run) {
    std::string_view separator = "(";
    out_.write(total_function, tokens_[first].blank_before);
    for (const Term& term : expressions_.terms(first, run.end)) {
      out_.write(separator, false);
      if (term.taken_away) out_.write("-(", false);
      operands(term.first, term.end, division(run));
      if (term.taken_away) out_.write(")", false);
      separator = ",";
    }
    out_.write(")", false);
  }

  std::size_t call(std::size_t name, std::size_t opening) override {
    const Token& function = tokens_[name];
    const std::size_t closing = expressions_.closing(opening);
    if (function.is("convert") && (is(opening + 1, "int") || is(opening + 1, "integer")) &&
        is_symbol(opening + 2, ",")) {
      return call_as(whole_function, name, opening + 3, closing);
    }
    if (function.is("clng")) return call_as(long_function, name, opening + 1, closing);
    if (function.is("sum") && !is(closing + 1, "over")) {
      const std::size_t argument = is(opening + 1, "distinct") ? opening + 2 : opening + 1;
      if (expressions_.kind_of(argument, closing) == Arithmetic::money) {
        return call_as(sum_function, name, opening + 1, closing);
      }
    }
    return call_as_it_stands(name, opening);
  }

  std::string value(const Token& token) override {
    if (token.kind == TokenKind::parameter) return "?" + std::to_string(token.parameter + 1);
    std::string text(token.text);
    text.front() = text.back() = '\'';
    return text;
  }

  // The engine knows both kinds of names.
  std::string name(const Token& token) override { return std::string(token.text); }

  Catalogue& indexes_;
  Rewritten result_;
};

}  // namespace

Rewritten rewrite(std::string_view shape, Catalogue& catalogue, std::string_view statement) {
  try {
    const std::vector<Token> tokens = statement_tokens(shape);
    return Rewriter(tokens, catalogue).run();
  } catch (const std::invalid_argument& reason) {
    refuse(reason.what(), statement);
  }
}

}  // namespace brunvik::sqlite
