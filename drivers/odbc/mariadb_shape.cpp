#include "drivers/odbc/mariadb_shape.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <utility>

#include "drivers/dialects/memory.h"
#include "drivers/odbc/failure.h"
#include "drivers/odbc/literal.h"

namespace brunvik::odbc {

namespace {

using dialects::Literal;
using dialects::LiteralKind;
using dialects::Target;

// As many digits as a 64-bit number surely holds.
bool is_bound_number(std::string_view digits) noexcept {
  return digits.size() <= 18 && digits.find_first_not_of("0123456789") == std::string_view::npos;
}

// What the engine reckons with in the place of a number that stands behind a sign of arithmetic: exact, like a number
// in a text.
constexpr std::string_view decimal_place = "CAST(? AS DECIMAL(38,12))";
constexpr std::size_t most_digits = 26;
constexpr std::size_t most_places = 12;

bool is_plain_decimal(std::string_view number) noexcept {
  const auto point = number.find('.');
  const std::string_view digits = number.substr(0, point);
  const std::string_view places = point == std::string_view::npos ? std::string_view() : number.substr(point + 1);
  const auto are_digits = [](std::string_view text) {
    return text.find_first_not_of("0123456789") == std::string_view::npos;
  };
  return !digits.empty() && digits.size() <= most_digits && places.size() <= most_places && are_digits(digits) &&
         are_digits(places);
}

bool ends_with_a_sign(std::string_view words) noexcept {
  const auto last = words.find_last_not_of(" \t\r\n");
  return last != std::string_view::npos && std::string_view("+-*").find(words[last]) != std::string_view::npos;
}

}  // namespace

MariaDbShape::MariaDbShape(MariaDbText text) : text_(std::move(text)) {
  std::string_view rest = text_.shape;
  for (const std::size_t value : text_.order) {
    const auto mark = std::find_if(rest.begin(), rest.end(), dialects::is_mark);
    const auto length = static_cast<std::size_t>(mark - rest.begin());
    const std::string_view words = rest.substr(0, length);
    pieces_.push_back({std::string(words), value, binding_of(value, *mark, words)});
    rest.remove_prefix(length + 1);
  }
  end_ = rest;
}

MariaDbShape::Binding MariaDbShape::binding_of(std::size_t value, char mark, std::string_view words) const noexcept {
  const bool is_of_column = dialects::has_decimals(text_.targets[value]);
  const bool is_number = dialects::kind_of_mark(mark) == LiteralKind::number;
  if ((is_of_column || is_number) && !text_.is_selection && ends_with_a_sign(words)) return Binding::decimal;
  if (is_of_column) return Binding::number;
  return is_number ? Binding::whole_number : Binding::text;
}

std::size_t MariaDbShape::held_bytes() const noexcept {
  // The prepared statement itself is the server's to keep.
  constexpr std::size_t of_a_statement = 1'024;
  return 2 * text_.shape.size() + of_a_statement;
}

bool MariaDbShape::can_be_bound(Binding binding, const Literal& literal) noexcept {
  if (binding == Binding::text) return true;
  return binding == Binding::whole_number ? is_bound_number(literal.content) : is_plain_decimal(literal.content);
}

bool MariaDbShape::can_be_bound(std::span<const Literal> literals) const noexcept {
  return std::all_of(pieces_.begin(), pieces_.end(),
                     [&](const Piece& piece) { return can_be_bound(piece.binding, literals[piece.value]); });
}

ado::Recordset MariaDbShape::run(std::span<const Literal> literals, const Link& link, const Statement& direct,
                                 std::string_view statement) {
  if (!text_.has_to_stand_in_the_text && can_be_bound(literals)) return run_prepared(literals, link, statement);
  return run_direct(literals, link, direct, statement);
}

void MariaDbShape::prepare(const Link& link) {
  std::string text;
  for (const Piece& piece : pieces_)
    text.append(piece.words).append(piece.binding == Binding::decimal ? decimal_place : "?");
  text += end_;
  Statement statement = link.statement();
  expect(SQLPrepare(statement.get(), as_characters(text), static_cast<SQLINTEGER>(text.size())), statement);
  prepared_ = std::move(statement);
  parameters_.resize(pieces_.size());
}

void MariaDbShape::put_values(std::span<const Literal> literals, std::string_view statement) {
  for (std::size_t place = 0; place < pieces_.size(); ++place) {
    const Piece& piece = pieces_[place];
    const Literal& literal = literals[piece.value];
    Parameter& parameter = parameters_[place];
    const auto number = static_cast<SQLUSMALLINT>(place + 1);
    if (piece.binding == Binding::text) {
      std::string_view text = literal.content;
      std::string unescaped;
      if (literal.has_apostrophes) text = unescaped = with_single_apostrophes(text);
      if (text_.targets[piece.value] == Target::key) {
        while (text.ends_with(' ')) text.remove_suffix(1);
      }
      parameter.put(text, prepared_, number);
    } else if (piece.binding == Binding::whole_number) {
      std::int64_t whole_number = 0;
      std::from_chars(literal.content.data(), literal.content.data() + literal.content.size(), whole_number);
      parameter.put(whole_number, prepared_, number);
    } else {
      std::string digits;
      append_literal(digits, literal, text_.targets[piece.value], statement);
      parameter.put(digits, prepared_, number);
    }
  }
}

ado::Recordset MariaDbShape::run_prepared(std::span<const Literal> literals, const Link& link,
                                          std::string_view statement) {
  if (!prepared_.get()) prepare(link);
  const dialects::AtEnd let_go([this]() noexcept {
    for (Parameter& parameter : parameters_) parameter.let_go();
  });
  put_values(literals, statement);
  expect(SQLExecute(prepared_.get()), prepared_);
  if (!text_.is_selection) return {};
  // The tables may have got columns since, which a * selects, too.
  SQLSMALLINT count = 0;
  expect(SQLNumResultCols(prepared_.get(), &count), prepared_);
  if (columns_.empty() || columns_.front().count() != static_cast<std::size_t>(count)) {
    columns_.clear();
    SQLFreeStmt(prepared_.get(), SQL_UNBIND);
    columns_.emplace_back(prepared_, text_.selection, link.gives_any_column());
  }
  return columns_.front().fetch(prepared_);
}

ado::Recordset MariaDbShape::run_direct(std::span<const Literal> literals, const Link& link, const Statement& direct,
                                        std::string_view statement) const {
  std::string text;
  text.reserve(statement.size() + text_.shape.size());
  for (const Piece& piece : pieces_) {
    text += piece.words;
    append_literal(text, literals[piece.value], text_.targets[piece.value], statement);
  }
  text += end_;
  link.send(direct, text);
  if (!text_.is_selection) return {};
  ResultColumns columns(direct, text_.selection, link.gives_any_column());
  ado::Recordset result = columns.fetch(direct);
  SQLFreeStmt(direct.get(), SQL_UNBIND);
  return result;
}

}  // namespace brunvik::odbc
