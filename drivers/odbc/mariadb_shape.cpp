#include "drivers/odbc/mariadb_shape.h"

#include <algorithm>
#include <charconv>

#include "drivers/odbc/failure.h"
#include "drivers/odbc/literal.h"

namespace brunvik::odbc {

namespace {

using dialects::Literal;
using dialects::LiteralKind;

// As many digits as a 64-bit number surely holds.
bool is_bound_number(std::string_view digits) noexcept {
  return digits.size() <= 18 && digits.find_first_not_of("0123456789") == std::string_view::npos;
}

// What a statement holds while it is carried out.
struct Bound {
  std::string text;
  std::int64_t number = 0;
  SQLLEN length = 0;
};

void bind(const Statement& statement, SQLUSMALLINT number, const Literal& literal, Bound& bound) {
  if (literal.kind == LiteralKind::number) {
    std::from_chars(literal.content.data(), literal.content.data() + literal.content.size(), bound.number);
    expect(SQLBindParameter(statement.get(), number, SQL_PARAM_INPUT, SQL_C_SBIGINT, SQL_BIGINT, 0, 0, &bound.number, 0,
                            &bound.length),
           statement);
    return;
  }
  std::string_view text = literal.content;
  if (literal.has_apostrophes) {
    bound.text = with_single_apostrophes(literal.content);
    text = bound.text;
  }
  bound.length = static_cast<SQLLEN>(text.size());
  expect(SQLBindParameter(statement.get(), number, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR,
                          std::max<SQLULEN>(text.size(), 1), 0, as_characters(text), bound.length, &bound.length),
         statement);
}

}  // namespace

MariaDbShape::MariaDbShape(MariaDbText text) : text_(std::move(text)) {
  std::string_view rest = text_.shape;
  for (const std::size_t value : text_.order) {
    const auto mark = std::find_if(rest.begin(), rest.end(), dialects::is_mark);
    const auto length = static_cast<std::size_t>(mark - rest.begin());
    pieces_.push_back({std::string(rest.substr(0, length)), value});
    rest.remove_prefix(length + 1);
  }
  end_ = rest;
}

std::size_t MariaDbShape::held_bytes() const noexcept {
  // The prepared statement itself is the server's to keep.
  constexpr std::size_t of_a_statement = 1'024;
  return 2 * text_.shape.size() + of_a_statement;
}

bool MariaDbShape::can_be_bound(std::span<const Literal> literals) const noexcept {
  return text_.is_selection && std::all_of(literals.begin(), literals.end(), [](const Literal& literal) {
           return literal.kind != LiteralKind::number || is_bound_number(literal.content);
         });
}

ado::Recordset MariaDbShape::run(std::span<const Literal> literals, const Link& link, const Statement& direct,
                                 std::string_view statement) {
  if (can_be_bound(literals)) return run_prepared(literals, link);
  return run_direct(literals, direct, statement);
}

ado::Recordset MariaDbShape::run_prepared(std::span<const Literal> literals, const Link& link) {
  if (!prepared_.get()) {
    std::string text;
    for (const Piece& piece : pieces_) text += piece.words + "?";
    text += end_;
    Statement statement = link.statement();
    expect(SQLPrepare(statement.get(), as_characters(text), static_cast<SQLINTEGER>(text.size())), statement);
    prepared_ = std::move(statement);
  }
  std::vector<Bound> bound(pieces_.size());
  for (std::size_t place = 0; place < pieces_.size(); ++place) {
    bind(prepared_, static_cast<SQLUSMALLINT>(place + 1), literals[pieces_[place].value], bound[place]);
  }
  expect(SQLExecute(prepared_.get()), prepared_);
  // The tables may have got columns since, which a * selects, too.
  SQLSMALLINT count = 0;
  expect(SQLNumResultCols(prepared_.get(), &count), prepared_);
  if (columns_.empty() || columns_.front().count() != static_cast<std::size_t>(count)) {
    columns_.clear();
    SQLFreeStmt(prepared_.get(), SQL_UNBIND);
    columns_.emplace_back(prepared_, text_.selection);
  }
  return columns_.front().fetch(prepared_);
}

ado::Recordset MariaDbShape::run_direct(std::span<const Literal> literals, const Statement& direct,
                                        std::string_view statement) const {
  std::string text;
  text.reserve(statement.size() + text_.shape.size());
  for (const Piece& piece : pieces_) {
    text += piece.words;
    append_literal(text, literals[piece.value], text_.targets[piece.value], statement);
  }
  text += end_;
  expect(SQLExecDirect(direct.get(), as_characters(text), static_cast<SQLINTEGER>(text.size())), direct);
  if (!text_.is_selection) return {};
  ResultColumns columns(direct, text_.selection);
  ado::Recordset result = columns.fetch(direct);
  SQLFreeStmt(direct.get(), SQL_UNBIND);
  return result;
}

}  // namespace brunvik::odbc
