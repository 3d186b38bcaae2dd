#include "drivers/dialects/own_words.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

namespace brunvik::dialects {

namespace {

constexpr std::string_view writing_verbs[] = {"insert", "update"};

[[noreturn]] void refuse_word(std::string_view word) {
  throw std::invalid_argument("Neither dialect knows '" + std::string(word) + "' as it stands here.");
}

class Words {
 public:
  Words(std::span<const Token> tokens, const Expressions& expressions, const Scope& scope)
      : tokens_(tokens), expressions_(expressions), scope_(scope) {}

  void look_at(std::size_t place) const {
    const Token& token = tokens_[place];
    if (token.is_symbol("==")) refuse_word(token.text);
    if (!token.is_name()) return;
    if (is_row_number(token) && !is_path_to_others(place) && !scope_.has_column(bare_name(token))) {
      refuse_word(token.text);
    }
    if (token.kind != TokenKind::word || is_part_of_path(place)) return;
    if (stands_for_itself(place) && !scope_.has_column(token.text)) refuse_word(token.text);
    if (token.is("max") || token.is("min")) look_at_call(place);
  }

 private:
  bool is(std::size_t place, std::string_view word) const { return place < tokens_.size() && tokens_[place].is(word); }
  bool is_symbol(std::size_t place, std::string_view symbol) const {
    return place < tokens_.size() && tokens_[place].is_symbol(symbol);
  }

  static bool is_row_number(const Token& token) {
    const std::string_view name = bare_name(token);
    return ado::same_name(name, "rowid") || ado::same_name(name, "_rowid_") || ado::same_name(name, "oid");
  }

  // The name of a table or of a function, or one that the statement itself gives.
  bool is_path_to_others(std::size_t place) const {
    return is_symbol(place + 1, ".") || is_symbol(place + 1, "(") || (place > 0 && is(place - 1, "as"));
  }

  bool is_part_of_path(std::size_t place) const {
    return is_symbol(place + 1, ".") || (place > 0 && tokens_[place - 1].is_symbol("."));
  }

  bool stands_for_itself(std::size_t place) const {
    const Token& token = tokens_[place];
    const bool is_call = is_symbol(place + 1, "(");
    if (token.is("glob") || token.is("isnull") || token.is("notnull")) return true;
    if (token.is("returning")) return !is_call;
    // A function of this name is known to both.
    if (token.is("replace")) return !is_call;
    if (token.is("or")) return place > 0 && (is(place - 1, "insert") || is(place - 1, "update"));
    if (token.is("conflict")) return place > 0 && is(place - 1, "on") && (is_call || is(place + 1, "do"));
    // Without IS in front of it.
    if (token.is("null")) return place > 1 && is(place - 1, "not") && !is(place - 2, "is");
    return false;
  }

  void look_at_call(std::size_t place) const {
    if (!is_symbol(place + 1, "(")) return;
    const std::size_t end = expressions_.closing(place + 1);
    if (end < tokens_.size() && expressions_.end_of_item(place + 2, end) < end) {
      throw std::invalid_argument("In both dialects " + std::string(tokens_[place].text) + " is of one argument.");
    }
  }

  std::span<const Token> tokens_;
  const Expressions& expressions_;
  const Scope& scope_;
};

class NamedColumns {
 public:
  void add(const Token& token) {
    const std::string_view name = bare_name(token);
    if (std::any_of(names_.begin(), names_.end(), [name](auto known) { return ado::same_name(known, name); })) {
      throw std::invalid_argument("The column '" + std::string(name) + "' is named twice.");
    }
    names_.push_back(name);
  }

 private:
  std::vector<std::string_view> names_;
};

// insert into T(A,B) ...
void look_at_insert(std::span<const Token> tokens, const Expressions& expressions, std::size_t verb) {
  static constexpr std::string_view into[] = {"into"};
  const std::size_t table = expressions.find(verb, tokens.size(), into) + 1;
  if (table >= tokens.size()) return;
  const std::size_t opening = expressions.end_of_path(table, tokens.size());
  if (opening >= tokens.size() || !tokens[opening].is_symbol("(")) return;
  NamedColumns columns;
  const std::size_t end = std::min(expressions.closing(opening), tokens.size());
  for (std::size_t place = opening + 1; place < end; ++place) {
    if (tokens[place].is("select")) return;
    if (tokens[place].is_name()) columns.add(tokens[place]);
  }
}

// update T set A=1,T.B=2 ...
void look_at_update(std::span<const Token> tokens, const Expressions& expressions, std::size_t verb) {
  static constexpr std::string_view set[] = {"set"};
  static constexpr std::string_view behind[] = {"where", "from"};
  const std::size_t list = expressions.find(verb, tokens.size(), set) + 1;
  const std::size_t end = list < tokens.size() ? expressions.find(list, tokens.size(), behind) : list;
  NamedColumns columns;
  for (std::size_t place = list; place < end; place = expressions.end_of_item(place, end) + 1) {
    if (!tokens[place].is_name()) continue;
    const std::size_t symbol = expressions.end_of_path(place, end);
    if (symbol < end && tokens[symbol].is_symbol("=")) columns.add(tokens[symbol - 1]);
  }
}

}  // namespace

void refuse_own_words(std::span<const Token> tokens, const Expressions& expressions, const Scope& scope) {
  const Words words(tokens, expressions, scope);
  for (std::size_t place = 0; place < tokens.size(); ++place) words.look_at(place);
}

void refuse_repeated_columns(std::span<const Token> tokens, const Expressions& expressions) {
  const std::size_t verb = expressions.find(0, tokens.size(), writing_verbs);
  if (verb == tokens.size()) return;
  if (tokens[verb].is("insert")) {
    look_at_insert(tokens, expressions, verb);
  } else {
    look_at_update(tokens, expressions, verb);
  }
}

}  // namespace brunvik::dialects
