#include "drivers/dialects/rewriter.h"

#include <algorithm>
#include <stdexcept>

#include "drivers/dialects/grouping.h"
#include "drivers/dialects/own_words.h"
#include "drivers/dialects/selection.h"

namespace brunvik::dialects {

namespace {

constexpr std::string_view verbs[] = {"select", "insert", "replace", "update", "delete", "values"};
constexpr std::string_view compounds[] = {"union", "except", "intersect"};

[[noreturn]] void refuse_compound() { throw std::invalid_argument("TOP is known in a single SELECT alone."); }

}  // namespace

Rewriter::Rewriter(std::span<const Token> tokens, Catalogue& catalogue)
    : tokens_(tokens), catalogue_(catalogue), scope_(tokens, catalogue), expressions_(tokens, scope_) {}

std::string Rewriter::rewritten() {
  refuse_own_words(tokens_, expressions_, scope_);
  refuse_repeated_columns(tokens_, expressions_);
  refuse_what_has_no_group(tokens_, expressions_, catalogue_);
  const std::size_t end = tokens_.size();
  const std::size_t verb = expressions_.find(0, end, verbs);
  range(0, verb);
  if (verb < end) statement(verb, end);
  return out_.take();
}

void Rewriter::statement(std::size_t verb, std::size_t end) {
  if (is(verb, "insert") || is(verb, "replace")) return insert(verb, end);
  if (is(verb, "update")) return update(verb, end);
  if (is(verb, "select") && select(verb, end)) return;
  range(verb, end);
}

bool Rewriter::is_column(std::size_t first, std::size_t end) const {
  return tokens_[first].is_name() && !is_keyword(tokens_[first]) && expressions_.end_of_path(first, end) == end;
}

// insert into T(A,B) values(1,2),(3,4) or insert into T(A,B) select 1,2
void Rewriter::insert(std::size_t place, std::size_t end) {
  while (place < end && !is(place, "into")) write(place++);
  if (place < end) write(place++);
  const std::size_t table = place;
  if (place < end) place = write_path(place, end);
  std::vector<ColumnType> types = types_of_columns(table, place, end);
  if (is_symbol(place, "(")) {
    const std::size_t behind = std::min(expressions_.closing(place) + 1, end);
    while (place < behind) write(place++);
  }
  if (is(place, "select")) {
    std::optional<std::string> top;
    const std::size_t items = select_words(place, end, top);
    const std::size_t items_end = expressions_.find(items, end, ends_of_list);
    if (!selects_all(tokens_, expressions_, items, items_end)) {
      assign_items(items, items_end, types);
      place = items_end;
    } else {
      place = items;
    }
    return range(place, end, std::move(top));
  }
  if (is(place, "values")) {
    write(place++);
    while (is_symbol(place, "(") && expressions_.closing(place) < end) {
      const std::size_t closing = expressions_.closing(place);
      write(place);
      assign_items(place + 1, closing, types);
      write(closing);
      place = closing + 1;
      if (is_symbol(place, ",")) write(place++);
    }
  }
  range(place, end);
}

std::vector<ColumnType> Rewriter::types_of_columns(std::size_t table, std::size_t place, std::size_t end) {
  std::vector<ColumnType> types;
  if (place == table) return types;
  const TableDescription& columns = catalogue_.table(bare_name(tokens_[place - 1]));
  if (is_symbol(place, "(") && expressions_.closing(place) < end) {
    for (std::size_t name = place + 1; name < expressions_.closing(place); ++name) {
      if (is_symbol(name, ",")) continue;
      types.push_back(type_of_column(columns, bare_name(tokens_[name])).value_or(ColumnType::other));
    }
  } else {
    for (const ColumnDescription& column : columns) types.push_back(column.type);
  }
  return types;
}

void Rewriter::assign_items(std::size_t first, std::size_t end, std::span<const ColumnType> types) {
  for (std::size_t item = 0; first < end; ++item) {
    const std::size_t item_end = expressions_.end_of_item(first, end);
    assign(first, item_end, item < types.size() ? types[item] : ColumnType::other);
    if (item_end < end) write(item_end);
    first = item_end + 1;
  }
}

// update T set A=1,B=B+1 where C=2
void Rewriter::update(std::size_t place, std::size_t end) {
  static constexpr std::string_view set[] = {"set"};
  static constexpr std::string_view behind[] = {"where", "from", "returning", "order", "limit"};
  const std::size_t list = expressions_.find(place, end, set);
  const TableDescription* columns = nullptr;
  while (place < list) {
    if (!columns && tokens_[place].is_name() && !is_keyword(tokens_[place])) {
      const TableDescription& found = catalogue_.table(bare_name(tokens_[place]));
      if (!found.empty()) columns = &found;
    }
    write(place++);
  }
  if (place == end) return;
  write(place++);
  const std::size_t list_end = expressions_.find(place, end, behind);
  while (place < list_end) {
    const std::size_t item_end = expressions_.end_of_item(place, list_end);
    assignment(place, item_end, columns);
    if (item_end < list_end) write(item_end);
    place = item_end + 1;
  }
  range(list_end, end);
}

void Rewriter::assignment(std::size_t place, std::size_t end, const TableDescription* columns) {
  // One dialect lets the table stand in front of the column.
  while (place + 2 < end && tokens_[place].is_name() && is_symbol(place + 1, ".")) place += 2;
  if (place + 2 >= end || !tokens_[place].is_name() || !is_symbol(place + 1, "=")) return range(place, end);
  const std::string_view name = bare_name(tokens_[place]);
  write(place);
  write(place + 1);
  const auto type = columns ? type_of_column(*columns, name) : std::nullopt;
  assign(place + 2, end, type.value_or(ColumnType::other));
}

// Everything whose value isn't assigned. The parentheses in it are closed in it.
void Rewriter::range(std::size_t place, std::size_t end, std::optional<std::string> top) {
  if (place < end && !is(place, "select") && top && expressions_.find(place, end, compounds) < end) refuse_compound();
  while (place < end) {
    const Token& token = tokens_[place];
    if (token.is("select")) {
      if (top) refuse_compound();
      place = select_words(place, end, top);
      if (top && expressions_.find(place, end, compounds) < end) refuse_compound();
    } else if (token.is("delete") && is_symbol(place + 1, "*")) {
      write(place);
      place += 2;
    } else if (token.is("in") && is_symbol(place + 1, "(") && is_symbol(place + 2, ")")) {
      throw std::invalid_argument("A list behind IN has no value.");
    } else if (token.is("like") && place + 1 < end && tokens_[place + 1].kind == TokenKind::text &&
               !is(place + 2, "escape")) {
      like(place);
      place += 2;
    } else {
      const Run run = expressions_.run_at(place, end);
      if (run.end == place) {
        write(place++);
      } else {
        arithmetic(place, run);
        place = run.end;
      }
    }
  }
  if (top) out_.write("LIMIT " + *top, true);
}

// select distinct top 5: what stands in front of the items.
std::size_t Rewriter::select_words(std::size_t place, std::size_t end, std::optional<std::string>& top) {
  write(place++);
  if (is(place, "distinct") || is(place, "all")) write(place++);
  if (!is(place, "top")) return place;
  const bool parentheses = is_symbol(place + 1, "(") && is_symbol(place + 3, ")");
  const std::size_t number = parentheses ? place + 2 : place + 1;
  if (number >= end || tokens_[number].kind != TokenKind::number) return place;
  top = std::string(tokens_[number].text);
  if (top->find_first_not_of("0123456789") != std::string::npos || is(number + 1, "percent")) {
    throw std::invalid_argument("TOP is known with a whole number of rows alone.");
  }
  return parentheses ? number + 2 : number + 1;
}

void Rewriter::operands(std::size_t place, std::size_t end, std::string_view divide) {
  while (place < end) {
    const Token& token = tokens_[place];
    if (token.is_symbol("(")) {
      place = parentheses(place);
    } else if (token.is_symbol("/")) {
      out_.write(divide, token.blank_before || divide != token.text);
      ++place;
    } else if (token.is_name()) {
      const std::size_t path_end = expressions_.end_of_path(place, end);
      place = path_end < end && is_symbol(path_end, "(") ? call(place, path_end) : write_path(place, end);
    } else {
      write(place++);
    }
  }
}

std::size_t Rewriter::parentheses(std::size_t opening) {
  const std::size_t closing = expressions_.closing(opening);
  write(opening);
  range(opening + 1, closing);
  write(closing);
  return closing + 1;
}

std::size_t Rewriter::call_as(std::string_view function, std::size_t name, std::size_t arguments, std::size_t closing) {
  out_.write(function, tokens_[name].blank_before);
  out_.write("(", false);
  range(arguments, closing);
  write(closing);
  return closing + 1;
}

std::size_t Rewriter::call_as_it_stands(std::size_t name, std::size_t opening) {
  while (name < opening) write(name++);
  return parentheses(opening);
}

std::size_t Rewriter::write_path(std::size_t place, std::size_t end) {
  const std::size_t path_end = expressions_.end_of_path(place, end);
  while (place < path_end) write(place++);
  return path_end;
}

void Rewriter::write(std::size_t place) {
  const Token& token = tokens_[place];
  if (token.is_symbol(";")) throw std::invalid_argument("A text holds one statement.");
  switch (token.kind) {
    case TokenKind::parameter:
    case TokenKind::date:
      return out_.write(value(token), token.blank_before);
    case TokenKind::name:
      return out_.write(name(token), token.blank_before);
    default:
      out_.write(token.text, token.blank_before);
  }
}

std::vector<Token> statement_tokens(std::string_view shape) {
  std::vector<Token> tokens = tokens_of(shape);
  while (!tokens.empty() && tokens.back().is_symbol(";")) tokens.pop_back();
  return tokens;
}

}  // namespace brunvik::dialects
