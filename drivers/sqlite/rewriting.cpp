#include "drivers/sqlite/rewriting.h"

#include <algorithm>
#include <optional>
#include <span>
#include <stdexcept>

#include "drivers/sqlite/assignment.h"
#include "drivers/sqlite/expression.h"
#include "drivers/sqlite/failure.h"
#include "drivers/sqlite/functions.h"
#include "drivers/sqlite/grouping.h"
#include "drivers/sqlite/neighbour.h"
#include "drivers/sqlite/own_words.h"
#include "drivers/sqlite/pattern.h"
#include "drivers/sqlite/scope.h"
#include "drivers/sqlite/selection.h"
#include "drivers/sqlite/tokens.h"
#include "drivers/sqlite/writer.h"

namespace brunvik::sqlite {

namespace {

constexpr std::string_view verbs[] = {"select", "insert", "replace", "update", "delete", "values"};
constexpr std::string_view compounds[] = {"union", "except", "intersect"};

// The keys of a ledger that are more or less than the digits of a 32-bit number; books keep them in an index of this
// very condition, so that it is known at once that there are none.
std::string no_plain_number(std::string_view column) {
  const std::string name(column);
  return "length(" + name + ") NOT BETWEEN 1 AND 9 OR " + name + " GLOB '*[^0-9]*'";
}

class Rewriter {
 public:
  Rewriter(std::span<const Token> tokens, Catalogue& catalogue)
      : tokens_(tokens), catalogue_(catalogue), scope_(tokens, catalogue), expressions_(tokens, scope_) {
    const auto parameters = std::count_if(tokens.begin(), tokens.end(),
                                          [](const Token& token) { return token.kind == TokenKind::parameter; });
    result_.targets.resize(static_cast<std::size_t>(parameters));
  }

  Rewritten run() {
    refuse_own_words(tokens_, expressions_, scope_);
    refuse_repeated_columns(tokens_, expressions_);
    refuse_what_has_no_group(tokens_, expressions_, catalogue_);
    const std::size_t end = tokens_.size();
    const std::size_t verb = expressions_.find(0, end, verbs);
    range(0, verb);
    if (verb < end) statement(verb, end);
    result_.text = out_.take();
    return std::move(result_);
  }

 private:
  bool is(std::size_t place, std::string_view word) const { return place < tokens_.size() && tokens_[place].is(word); }
  bool is_symbol(std::size_t place, std::string_view symbol) const {
    return place < tokens_.size() && tokens_[place].is_symbol(symbol);
  }

  void statement(std::size_t verb, std::size_t end) {
    if (is(verb, "insert") || is(verb, "replace")) return insert(verb, end);
    if (is(verb, "update")) return update(verb, end);
    if (is(verb, "select")) {
      // What EXPLAIN tells has columns of its own.
      if (!is(0, "explain")) describe_selection(tokens_, expressions_, verb + 1, end, result_);
      if (highest_number(verb, end) || neighbour(verb, end)) return;
    }
    range(verb, end);
  }

  // select max(convert(int,ID)) as ls_bm from T, or max(clng(ID)), where an index holds these numbers: without it the
  // question for the next number of a ledger reads the whole of it. The index reads any text as a number, so it is
  // asked only while the column holds plain numbers; what else may be read as one, or is an error, the whole column
  // tells.
  bool highest_number(std::size_t verb, std::size_t end) {
    if (!is(verb + 1, "max") || !is_symbol(verb + 2, "(")) return false;
    const bool is_convert =
        is(verb + 3, "convert") && is_symbol(verb + 4, "(") && is(verb + 5, "int") && is_symbol(verb + 6, ",");
    if (!is_convert && !(is(verb + 3, "clng") && is_symbol(verb + 4, "("))) return false;
    const std::size_t column = is_convert ? verb + 7 : verb + 5;
    std::size_t from = column + 3;
    if (!is_symbol(column + 1, ")") || !is_symbol(column + 2, ")")) return false;
    if (is(from, "as")) from += 2;
    if (!is(from, "from") || from + 2 != end || !tokens_[column].is_name() || !tokens_[end - 1].is_name()) return false;
    if (!catalogue_.has_number_index(bare_name(tokens_[end - 1]), bare_name(tokens_[column]))) return false;
    const std::string number = "CAST(" + std::string(tokens_[column].text) + " AS INTEGER)";
    const std::string table(tokens_[end - 1].text);
    write(verb);
    out_.write("(CASE WHEN EXISTS(SELECT 1 FROM " + table + " WHERE " + no_plain_number(tokens_[column].text) +
                   ") THEN (SELECT ",
               true);
    range(verb + 1, column + 3);
    out_.write("FROM " + table + ") ELSE (SELECT " + number + " FROM " + table + " ORDER BY " + number +
                   " COLLATE BINARY DESC LIMIT 1) END)",
               true);
    for (std::size_t place = column + 3; place < from; ++place) write(place);
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

  // insert into T(A,B) values(1,2),(3,4) or insert into T(A,B) select 1,2
  void insert(std::size_t place, std::size_t end) {
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

  std::vector<ColumnType> types_of_columns(std::size_t table, std::size_t place, std::size_t end) {
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

  void assign_items(std::size_t first, std::size_t end, std::span<const ColumnType> types) {
    for (std::size_t item = 0; first < end; ++item) {
      const std::size_t item_end = expressions_.end_of_item(first, end);
      assign(first, item_end, item < types.size() ? types[item] : ColumnType::other);
      if (item_end < end) write(item_end);
      first = item_end + 1;
    }
  }

  // update T set A=1,B=B+1 where C=2
  void update(std::size_t place, std::size_t end) {
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

  void assignment(std::size_t place, std::size_t end, const TableDescription* columns) {
    // One dialect lets the table stand in front of the column.
    while (place + 2 < end && tokens_[place].is_name() && is_symbol(place + 1, ".")) place += 2;
    if (place + 2 >= end || !tokens_[place].is_name() || !is_symbol(place + 1, "=")) return range(place, end);
    const std::string_view name = bare_name(tokens_[place]);
    write(place);
    write(place + 1);
    const auto type = columns ? type_of_column(*columns, name) : std::nullopt;
    assign(place + 2, end, type.value_or(ColumnType::other));
  }

  // An expression whose value goes into a column.
  void assign(std::size_t first, std::size_t end, ColumnType type) {
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
    const bool is_column =
        tokens_[first].is_name() && !is_keyword(tokens_[first]) && expressions_.end_of_path(first, end) == end;
    if (is_column && expressions_.type_of_path(first, end) == type) return range(first, end);
    const Run run = expressions_.run_at(first, end);
    const bool is_run = run.end == end;
    if (is_run && type == ColumnType::money && run.kind != Arithmetic::other && is_total(first, run)) {
      return total(first, run);
    }
    out_.write(function_of(type), tokens_[first].blank_before);
    out_.write("(", false);
    if (is_run) {
      operands(first, end, run.kind == Arithmetic::money);
    } else {
      range(first, end);
    }
    if (const auto range = whole_range(type)) {
      out_.write("," + std::to_string(range->low) + "," + std::to_string(range->high), false);
    }
    out_.write(")", false);
  }

  // Everything whose value isn't assigned. The parentheses in it are closed in it.
  void range(std::size_t place, std::size_t end, std::optional<std::string> top = {}) {
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
  std::size_t select_words(std::size_t place, std::size_t end, std::optional<std::string>& top) {
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

  [[noreturn]] static void refuse_compound() { throw std::invalid_argument("TOP is known in a single SELECT alone."); }

  void like(std::size_t place) {
    const TranslatedPattern pattern = translate_pattern(tokens_[place + 1].text);
    // The engine's REGEXP is an operator without a meaning of its own: the driver gives it that of our patterns.
    out_.write(pattern.has_lists ? "regexp" : tokens_[place].text, tokens_[place].blank_before);
    out_.write(pattern.literal, true);
  }

  void arithmetic(std::size_t first, const Run& run) {
    const bool exact = run.operators != 0 && run.kind == Arithmetic::money;
    if (exact && is_total(first, run)) return total(first, run);
    if (exact) {
      out_.write(money_function, tokens_[first].blank_before);
      out_.write("(", false);
    }
    operands(first, run.end, run.kind == Arithmetic::money);
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
      operands(term.first, term.end, run.kind == Arithmetic::money);
      if (term.taken_away) out_.write(")", false);
      separator = ",";
    }
    out_.write(")", false);
  }

  void operands(std::size_t place, std::size_t end, bool on_money) {
    while (place < end) {
      const Token& token = tokens_[place];
      if (token.is_symbol("(")) {
        place = parentheses(place);
      } else if (token.is_symbol("/") && on_money) {
        // Whole amounts are kept as whole numbers, whose quotient would be cut off.
        out_.write("* 1.0 /", true);
        ++place;
      } else if (token.is_name()) {
        const std::size_t path_end = expressions_.end_of_path(place, end);
        place = path_end < end && is_symbol(path_end, "(") ? call(place, path_end) : write_path(place, end);
      } else {
        write(place++);
      }
    }
  }

  std::size_t parentheses(std::size_t opening) {
    const std::size_t closing = expressions_.closing(opening);
    write(opening);
    range(opening + 1, closing);
    write(closing);
    return closing + 1;
  }

  std::size_t call(std::size_t name, std::size_t opening) {
    const Token& function = tokens_[name];
    const std::size_t closing = expressions_.closing(opening);
    const auto replaced = [&](std::string_view with, std::size_t arguments) {
      out_.write(with, function.blank_before);
      out_.write("(", false);
      range(arguments, closing);
      write(closing);
      return closing + 1;
    };
    if (function.is("convert") && (is(opening + 1, "int") || is(opening + 1, "integer")) &&
        is_symbol(opening + 2, ",")) {
      return replaced(whole_function, opening + 3);
    }
    if (function.is("clng")) return replaced(long_function, opening + 1);
    if (function.is("sum") && !is(closing + 1, "over")) {
      const std::size_t argument = is(opening + 1, "distinct") ? opening + 2 : opening + 1;
      if (expressions_.kind_of(argument, closing) == Arithmetic::money) return replaced(sum_function, opening + 1);
    }
    while (name < opening) write(name++);
    return parentheses(opening);
  }

  std::size_t write_path(std::size_t place, std::size_t end) {
    const std::size_t path_end = expressions_.end_of_path(place, end);
    while (place < path_end) write(place++);
    return path_end;
  }

  void write(std::size_t place) {
    const Token& token = tokens_[place];
    if (token.is_symbol(";")) throw std::invalid_argument("A text holds one statement.");
    std::string text(token.text);
    if (token.kind == TokenKind::parameter) text.assign(1, '?').append(std::to_string(token.parameter + 1));
    if (token.kind == TokenKind::date) text.front() = text.back() = '\'';
    out_.write(text, token.blank_before);
  }

  std::span<const Token> tokens_;
  Catalogue& catalogue_;
  Scope scope_;
  Expressions expressions_;
  Writer out_;
  Rewritten result_;
};

}  // namespace

Rewritten rewrite(std::string_view shape, Catalogue& catalogue, std::string_view statement) {
  std::vector<Token> tokens = tokens_of(shape);
  while (!tokens.empty() && tokens.back().is_symbol(";")) tokens.pop_back();
  try {
    return Rewriter(tokens, catalogue).run();
  } catch (const std::invalid_argument& reason) {
    refuse(reason.what(), statement);
  }
}

}  // namespace brunvik::sqlite
