#include "drivers/sqlite/shape.h"

#include <cmath>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/numbers.h"
#include "drivers/dialects/memory.h"
#include "drivers/dialects/rounding.h"

namespace brunvik::sqlite {

namespace {

std::string_view without_trailing_blanks(std::string_view text) {
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

[[noreturn]] void refuse_number(std::string_view number, std::string_view statement) {
  throw ado::RuntimeError(ado::error::data_overflow,
                          "The column can't keep a number as large as " + std::string(number) + ".",
                          std::string(statement));
}

}  // namespace

Shape::Shape(Statement statement, Rewritten rewritten)
    : statement_(std::move(statement)), targets_(std::move(rewritten.targets)), columns_(statement_.get(), rewritten) {}

std::size_t Shape::held_bytes() const noexcept {
  constexpr int leave_the_counter = 0;
  const int statement = sqlite3_stmt_status(statement_.get(), SQLITE_STMTSTATUS_MEMUSED, leave_the_counter);
  return static_cast<std::size_t>(statement) + plain_texts_.capacity();
}

int Shape::run(std::span<const Literal> literals, std::string_view text, ado::Recordset& result) {
  sqlite3_stmt* const statement = statement_.get();
  const AtEnd let_go([this]() noexcept {
    if (plain_texts_.capacity() > largest_held) std::string().swap(plain_texts_);
  });
  bind(literals, text);
  int code = sqlite3_step(statement);
  if (columns_.empty()) {
    // Only the reset tells the code and the text of a failure.
    const int reset = sqlite3_reset(statement);
    return code == SQLITE_DONE ? code : reset;
  }
  std::vector<ado::Value> cells;
  {
    const Reset reset(statement);
    while (code == SQLITE_ROW) {
      columns_.fetch(statement, cells);
      code = sqlite3_step(statement);
    }
    if (code != SQLITE_DONE) return sqlite3_reset(statement);
  }
  result = ado::Recordset(columns_.names(), std::move(cells));
  return code;
}

void Shape::bind(std::span<const Literal> literals, std::string_view text) {
  plain_texts_.clear();
  int place = 1;
  for (const Literal& literal : literals) {
    const Target target = targets_[static_cast<std::size_t>(place - 1)];
    if (literal.kind == LiteralKind::number) {
      bind_number(place, literal.content, false, target, text);
    } else {
      bind_text(place, literal, target, text);
    }
    ++place;
  }
}

void Shape::bind_text(int place, const Literal& literal, Target target, std::string_view text) {
  std::string_view content = literal.content;
  if (literal.has_apostrophes) {
    // What is bound must stay where it is, so the space is taken at once.
    if (plain_texts_.capacity() < text.size()) plain_texts_.reserve(text.size());
    const std::size_t start = plain_texts_.size();
    for (std::size_t next = 0; next < content.size(); ++next) {
      plain_texts_ += content[next];
      if (content[next] == '\'') ++next;
    }
    content = std::string_view(plain_texts_).substr(start);
  }
  if (target == Target::key) {
    content = without_trailing_blanks(content);
  } else if (target != Target::plain) {
    const std::string_view number = ado::trimmed_number(content);
    const bool negative = number.starts_with('-');
    const std::string_view digits = number.substr(negative || number.starts_with('+') ? 1 : 0);
    if (Decimal::read(digits)) {
      bind_number(place, digits, negative, target, text);
      return;
    }
  }
  sqlite3_bind_text(statement_.get(), place, content.data(), static_cast<int>(content.size()), SQLITE_STATIC);
}

void Shape::bind_number(int place, std::string_view digits, bool negative, Target target, std::string_view text) {
  sqlite3_stmt* const statement = statement_.get();
  const auto bind_whole = [&](std::int64_t number) {
    sqlite3_bind_int64(statement, place, negative ? -number : number);
  };
  const auto bind_double = [&](double number) { sqlite3_bind_double(statement, place, negative ? -number : number); };
  const Decimal number = *Decimal::read(digits);
  if (target == Target::money) {
    const Amount amount = number.amount();
    if (!amount) refuse_number(digits, text);
    if (*amount % ado::Money::scale == 0) return bind_whole(*amount / ado::Money::scale);
    return bind_double(double_of_amount(*amount));
  }
  if (const auto range = whole_range(target)) {
    const double value = negative ? -number.to_double() : number.to_double();
    if (value < static_cast<double>(range->low) || value > static_cast<double>(range->high)) {
      refuse_number(digits, text);
    }
    target = Target::plain;
  }
  constexpr std::int64_t exact_as_single = 1 << 24;
  if (number.is_whole() && (target == Target::plain || number.whole() <= exact_as_single)) {
    return bind_whole(number.whole());
  }
  if (target == Target::plain) return bind_double(number.to_double());
  const double single = single_of(number.to_double());
  if (!std::isfinite(single)) refuse_number(digits, text);
  bind_double(single);
}

}  // namespace brunvik::sqlite
