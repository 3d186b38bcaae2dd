#include "drivers/odbc/mariadb_rewriting.h"

#include <algorithm>
#include <stdexcept>

#include "drivers/dialects/highest_number.h"
#include "drivers/dialects/pattern.h"
#include "drivers/dialects/refusal.h"
#include "drivers/dialects/rewriter.h"
#include "drivers/odbc/mariadb_pattern.h"

namespace brunvik::odbc {

namespace {

using dialects::Arithmetic;
using dialects::ColumnType;
using dialects::Run;
using dialects::Token;
using dialects::TokenKind;

// Fails when it is carried out, and not before: the engine has no other error for a value that a SELECT can't read.
constexpr std::string_view no_number = "(SELECT 1 UNION SELECT 2)";

// The shortest decimal that names a single has six to nine digits. @brunvik_value is the single, @brunvik_decimal what
// is tried; the engine writes a single in six digits, and rounding to places gives the double nearest to the decimal.
// It makes the largest single of whatever lies beyond, so a number as large as that counts as too large. Each word here
// costs in each run, since the engine settles the types of them all anew, of those that it doesn't come to as well.
constexpr std::string_view single_begin = "(CASE (@brunvik_value:=CAST(";
constexpr std::string_view single_end =
    " AS FLOAT)) WHEN CAST((@brunvik_decimal:=CAST(CAST(@brunvik_value AS FLOAT) AS CHAR)+0e0) AS FLOAT)"
    " THEN @brunvik_decimal"
    " WHEN 3.4028234663852886e38 THEN EXP(@brunvik_value) WHEN -3.4028234663852886e38 THEN EXP(-@brunvik_value)"
    " WHEN CAST((@brunvik_decimal:=ROUND(@brunvik_value,@brunvik_places:=6-FLOOR(LOG10(ABS(@brunvik_value)))))"
    " AS FLOAT) THEN @brunvik_decimal"
    " WHEN CAST((@brunvik_decimal:=ROUND(@brunvik_value,@brunvik_places+1)) AS FLOAT) THEN @brunvik_decimal"
    " ELSE ROUND(@brunvik_value,@brunvik_places+2) END)";

bool is_whole(std::string_view number) { return number.find_first_not_of("0123456789") == std::string_view::npos; }

class Rewriter final : public dialects::Rewriter {
 public:
  Rewriter(std::span<const Token> tokens, std::span<const dialects::Literal> literals, dialects::Catalogue& catalogue)
      : dialects::Rewriter(tokens, catalogue), literals_(literals) {
    text_.targets.resize(literals.size());
  }

  MariaDbText run() {
    text_.shape = rewritten();
    return std::move(text_);
  }

 private:
  bool select(std::size_t verb, std::size_t end) override {
    text_.is_selection = true;
    if (!is(0, "explain")) text_.selection = describe_selection(tokens_, expressions_, verb + 1, end);
    return highest_number(verb, end);
  }

  // The schema keeps the number that the key of such a ledger stands for in a column, which is null where the key is no
  // plain number.
  bool highest_number(std::size_t verb, std::size_t end) {
    const auto found = highest_number_of_ledger(tokens_, verb, end);
    if (!found) return false;
    const std::string number = "NumberOf" + std::string(bare_name(tokens_[found->column]));
    if (!type_of_column(catalogue_.table(bare_name(tokens_[end - 1])), number)) return false;
    const std::string from = " FROM " + std::string(tokens_[end - 1].text);
    write(verb);
    out_.write("CASE WHEN EXISTS(SELECT 1" + from + " WHERE " + number + " IS NULL) THEN (SELECT", true);
    range(verb + 1, found->column + 3);
    out_.write(from + ") ELSE (SELECT MAX(" + number + ")" + from + ") END", true);
    for (std::size_t place = found->column + 3; place < found->from; ++place) write(place);
    return true;
  }

  void assign(std::size_t first, std::size_t end, ColumnType type) override {
    std::size_t bare = first;
    const bool is_amount = type == ColumnType::money || type == ColumnType::single;
    while (bare < end && is_sign(tokens_[bare]) && is_amount) ++bare;
    if (bare + 1 == end && tokens_[bare].kind == TokenKind::parameter) {
      text_.targets[tokens_[bare].parameter] = dialects::target_of(type);
      return range(first, end);
    }
    const bool as_it_is = type != ColumnType::single || first == end || tokens_[bare].is("null") ||
                          (is_column(first, end) && expressions_.type_of_path(first, end) == type);
    if (as_it_is) return range(first, end);
    out_.write(single_begin, tokens_[first].blank_before);
    range(first, end);
    out_.write(single_end, false);
  }

  void like(std::size_t place) override {
    if (const auto beginning = dialects::plain_beginning(tokens_[place + 1].text);
        !beginning.empty() && asks_for_the_end_of(place - 1)) {
      const std::string column(tokens_[place - 1].text);
      out_.write(
          ">='" + std::string(beginning) + "' AND " + column + "<'" + dialects::behind_all_that_begin(beginning) + "'",
          true);
      return;
    }
    const MariaDbPattern pattern = translate_pattern(tokens_[place + 1].text);
    out_.write(pattern.is_expression ? "REGEXP" : tokens_[place].text, tokens_[place].blank_before);
    out_.write(pattern.literal, true);
  }

  // select max(id) as nowid from stockbill where id like 'QTR240305%': of a range the engine reads the last number
  // alone, of a pattern all.
  bool asks_for_the_end_of(std::size_t column) const {
    constexpr std::size_t selected = 3;
    const bool is_end = is(0, "select") && (is(1, "max") || is(1, "min")) && is_symbol(2, "(") &&
                        is_symbol(selected + 1, ")") && tokens_[column].kind == TokenKind::word &&
                        ado::same_name(tokens_[selected].text, tokens_[column].text) && !is_symbol(column - 1, ".");
    return is_end && std::none_of(tokens_.begin(), tokens_.end(),
                                  [](const Token& token) { return token.is("or") || token.is("escape"); });
  }

  void arithmetic(std::size_t first, const Run& run) override { operands(first, run.end, division(first, run)); }

  // Both originals cut the quotient of whole numbers off; this engine goes on to decimals.
  std::string_view division(std::size_t first, const Run& run) const {
    if (run.kind != Arithmetic::neutral || !has_whole_numbers_alone(first, run.end)) return "/";
    return "DIV";
  }

  bool has_whole_numbers_alone(std::size_t first, std::size_t end) const {
    for (std::size_t place = first; place < end; ++place) {
      const Token& token = tokens_[place];
      if (token.kind == TokenKind::number && !is_whole(token.text)) return false;
      if (token.kind == TokenKind::parameter && !is_whole(literals_[token.parameter].content)) return false;
    }
    return true;
  }

  std::size_t call(std::size_t name, std::size_t opening) override {
    const Token& function = tokens_[name];
    const std::size_t closing = expressions_.closing(opening);
    if (function.is("convert") && (is(opening + 1, "int") || is(opening + 1, "integer")) &&
        is_symbol(opening + 2, ",")) {
      return whole_number(name, opening + 3, closing, "TRUNCATE", "0");
    }
    if (function.is("clng")) return whole_number(name, opening + 1, closing, "ROUND", no_number);
    // A blank between them would make another function of it than the engine's own.
    if (opening == name + 1) return call_as(function.text, name, opening + 1, closing);
    return call_as_it_stands(name, opening);
  }

  // A text that is no number is an error, and so is a number beyond 32 bits. An empty text is what each conversion
  // makes of it.
  std::size_t whole_number(std::size_t name, std::size_t first, std::size_t closing, std::string_view rounding,
                           std::string_view of_empty) {
    // Written anew at each place where it stands, since each of its values is one more value of the statement there.
    const std::size_t values_before = text_.order.size();
    const auto operand = [&] {
      dialects::Writer outside = std::exchange(out_, {});
      range(first, closing);
      std::string text = out_.take();
      out_ = std::move(outside);
      return text;
    };
    const auto number = [&] { return std::string(rounding) + "(" + operand() + ",0)"; };
    out_.write("(CASE WHEN TRIM(" + operand() + ")='' THEN " + std::string(of_empty) + " WHEN " + operand() +
                   " IS NULL THEN NULL WHEN NOT TRIM(" + operand() +
                   ") REGEXP '^[-+]?([0-9]+[.]?[0-9]*|[.][0-9]+)$' THEN " + std::string(no_number) + " WHEN " +
                   number() + " NOT BETWEEN -2147483648 AND 2147483647 THEN CAST(EXP(1000+ABS(" + number() +
                   ")) AS SIGNED) ELSE CAST(" + number() + " AS SIGNED) END)",
               tokens_[name].blank_before);
    if (text_.order.size() > values_before) text_.has_to_stand_in_the_text = true;
    return closing + 1;
  }

  std::string value(const Token& token) override {
    if (token.kind == TokenKind::date) return "'" + std::string(token.text.substr(1, token.text.size() - 2)) + "'";
    text_.order.push_back(token.parameter);
    return std::string(1, dialects::mark_of(token.literal));
  }

  std::string name(const Token& token) override {
    std::string quoted = "`";
    for (const char c : dialects::bare_name(token)) {
      quoted += c;
      if (c == '`') quoted += c;
    }
    return quoted + "`";
  }

  std::span<const dialects::Literal> literals_;
  MariaDbText text_;
};

}  // namespace

MariaDbText rewrite_for_mariadb(std::string_view shape, std::span<const dialects::Literal> literals,
                                dialects::Catalogue& catalogue, std::string_view statement) {
  try {
    const std::vector<Token> tokens = dialects::statement_tokens(shape);
    return Rewriter(tokens, literals, catalogue).run();
  } catch (const std::invalid_argument& reason) {
    dialects::refuse(reason.what(), statement);
  }
}

bool depends_on_values(std::string_view shape) noexcept { return shape.find('/') != std::string_view::npos; }

}  // namespace brunvik::odbc
