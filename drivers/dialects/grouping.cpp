#include "drivers/dialects/grouping.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "drivers/dialects/selection.h"

namespace brunvik::dialects {

namespace {

constexpr std::string_view compounds[] = {"union", "except", "intersect"};
constexpr std::string_view behind_from[] = {"where", "group", "having", "order", "limit"};
constexpr std::string_view behind_where[] = {"group", "having", "order", "limit"};
constexpr std::string_view behind_group[] = {"having", "order", "limit"};
constexpr std::string_view behind_having[] = {"order", "limit"};
constexpr std::string_view behind_order[] = {"limit"};

struct Range {
  std::size_t first;
  std::size_t end;

  bool empty() const { return first >= end; }
};

class Select {
 public:
  Select(std::span<const Token> tokens, const Expressions& expressions, Catalogue& catalogue, std::size_t verb,
         std::size_t end)
      : tokens_(tokens), expressions_(expressions), catalogue_(catalogue) {
    std::size_t first = verb + 1;
    if (is(first, "distinct") || is(first, "all")) ++first;
    if (is(first, "top")) first += is_symbol(first + 1, "(") ? 4 : 2;
    const std::size_t own_end = expressions.find(first, end, compounds);
    is_compound_ = own_end != end || (verb > 0 && (is_compound(verb - 1) || (verb > 1 && is_compound(verb - 2))));
    items_ = {first, expressions.find(first, own_end, ends_of_list)};
    std::size_t place = items_.end;
    const auto take = [&](std::string_view word, std::size_t words, std::span<const std::string_view> behind) {
      if (place >= own_end || !tokens_[place].is(word)) return Range{place, place};
      const std::size_t start = std::min(place + words, own_end);
      place = expressions.find(start, own_end, behind);
      return Range{start, place};
    };
    from_ = take("from", 1, behind_from);
    where_ = take("where", 1, behind_where);
    group_ = take("group", 2, behind_group);
    having_ = take("having", 1, behind_having);
    order_ = take("order", 2, behind_order);
  }

  void look_at() const {
    refuse_aliases(where_);
    const bool is_aggregate = has_aggregate(items_) || has_aggregate(having_);
    if (group_.empty() && !is_aggregate) return;
    for_each_item(items_, [this](Range item) {
      // The engine refuses a star that it can't spread.
      if (tokens_[item.end - 1].is_symbol("*") && (item.end - item.first == 1 || is_symbol(item.end - 2, "."))) {
        refuse(tokens_[item.end - 1]);
      }
      refuse_columns_outside({item.first, end_of_expression(expressions_, item.first, item.end)});
    });
    refuse_columns_outside(having_);
    if (!is_compound_) {
      for_each_item(order_, [this](Range item) {
        if (item.end - item.first > 0 && is_alias(tokens_[item.first]) && !is_symbol(item.first + 1, ".")) return;
        refuse_columns_outside(item);
      });
    }
  }

 private:
  bool is(std::size_t place, std::string_view word) const { return place < tokens_.size() && tokens_[place].is(word); }
  bool is_symbol(std::size_t place, std::string_view symbol) const {
    return place < tokens_.size() && tokens_[place].is_symbol(symbol);
  }
  bool is_compound(std::size_t place) const {
    return std::any_of(std::begin(compounds), std::end(compounds), [&](auto word) { return is(place, word); });
  }

  template <class Visitor>
  void for_each_item(Range list, Visitor visit) const {
    while (list.first < list.end) {
      const std::size_t end = expressions_.end_of_item(list.first, list.end);
      if (end > list.first) visit(Range{list.first, end});
      list.first = end + 1;
    }
  }

  // The columns that a range names; those in a SELECT within it are its own, those in an aggregate are visited if the
  // visitor wants them. `visit` is given the place of the column's own name.
  template <class Visitor>
  void for_each_column(Range range, bool in_aggregates, Visitor visit) const {
    for (std::size_t place = range.first; place < range.end;) {
      const Token& token = tokens_[place];
      if (token.is_symbol("(") && (is(place + 1, "select") || is(place + 1, "with"))) {
        place = expressions_.closing(place) + 1;
      } else if (token.is("as") || token.is("collate")) {
        place += 2;
      } else if (!token.is_name() || is_keyword(token)) {
        ++place;
      } else {
        const std::size_t end = expressions_.end_of_path(place, range.end);
        if (!is_symbol(end, "(")) {
          if (!is_word_of_expressions(token)) visit(end - 1);
          place = end;
        } else if (is_aggregate(place) && !in_aggregates) {
          place = expressions_.closing(end) + 1;
        } else {
          // The type in convert(int, x) is no column.
          place = token.is("convert") ? end + 2 : end + 1;
        }
      }
    }
  }

  static bool is_word_of_expressions(const Token& token) {
    return token.is("asc") || token.is("desc") || token.is("collate") || token.is("nocase") || token.is("binary") ||
           token.is("true") || token.is("false") || token.is("regexp");
  }

  // A call at a place.
  bool is_aggregate(std::size_t place) const {
    for (const std::string_view name : {"count", "sum", "max", "min", "avg", "total"}) {
      if (is(place, name) && is_symbol(place + 1, "(")) return true;
    }
    return false;
  }

  bool has_aggregate(Range range) const {
    for (std::size_t place = range.first; place < range.end; ++place) {
      if (is_symbol(place, "(") && is(place + 1, "select")) {
        place = expressions_.closing(place);
      } else if (is_aggregate(place)) {
        // A window's sum is a value of each row.
        if (!is(expressions_.closing(place + 1) + 1, "over")) return true;
      }
    }
    return false;
  }

  [[noreturn]] void refuse(const Token& column) const {
    const std::string name(bare_name(column));
    throw std::invalid_argument(group_.empty()
                                    ? "'" + name + "' stands beside an aggregate, and nothing is grouped by it."
                                    : "'" + name + "' is outside of the group.");
  }

  void refuse_columns_outside(Range range) const {
    for_each_column(range, false, [this](std::size_t column) {
      bool is_grouped = false;
      for_each_column(group_, true, [&](std::size_t grouped) {
        is_grouped = is_grouped || ado::same_name(bare_name(tokens_[grouped]), bare_name(tokens_[column]));
      });
      if (!is_grouped) refuse(tokens_[column]);
    });
  }

  bool is_alias(const Token& name) const {
    bool found = false;
    for_each_item(items_, [&](Range item) {
      const std::size_t end = end_of_expression(expressions_, item.first, item.end);
      found = found || (end < item.end && ado::same_name(bare_name(tokens_[item.end - 1]), bare_name(name)));
    });
    return found;
  }

  // Whether a table that the SELECT reads has a column of this name, or may have one: what a SELECT within it or a view
  // gives is not known here.
  bool may_be_column(std::string_view name) const {
    bool expected = true;
    for (std::size_t place = from_.first; place < from_.end; ++place) {
      const Token& token = tokens_[place];
      if (token.is("select")) return true;
      if (token.is("join") || token.is_symbol(",")) expected = true;
      if (!expected || !token.is_name() || is_keyword(token) || is_symbol(place + 1, ".")) continue;
      const TableDescription& table = catalogue_.table(bare_name(token));
      if (table.empty() || type_of_column(table, name)) return true;
      expected = false;
    }
    return false;
  }

  void refuse_aliases(Range condition) const {
    for_each_column(condition, true, [this](std::size_t column) {
      const Token& token = tokens_[column];
      if (is_symbol(column - 1, ".") || !is_alias(token) || may_be_column(bare_name(token))) return;
      throw std::invalid_argument("'" + std::string(bare_name(token)) +
                                  "' is an alias, and no column for a condition.");
    });
  }

  std::span<const Token> tokens_;
  const Expressions& expressions_;
  Catalogue& catalogue_;
  Range items_{};
  Range from_{};
  Range where_{};
  Range group_{};
  Range having_{};
  Range order_{};
  bool is_compound_ = false;
};

}  // namespace

void refuse_what_has_no_group(std::span<const Token> tokens, const Expressions& expressions, Catalogue& catalogue) {
  // The ends of the parentheses that are open.
  std::vector<std::size_t> ends{tokens.size()};
  for (std::size_t place = 0; place < tokens.size(); ++place) {
    if (tokens[place].is_symbol("(")) ends.push_back(expressions.closing(place));
    if (place == ends.back()) ends.pop_back();
    if (tokens[place].is("select")) Select(tokens, expressions, catalogue, place, ends.back()).look_at();
  }
}

}  // namespace brunvik::dialects
