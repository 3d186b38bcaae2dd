// Walks through a statement and writes it in an engine's words.
//
// What the dialects have in common with every engine's language is written as it stands. TOP becomes LIMIT, `delete *`
// loses its star; two minus signs stay two minus signs (there are no comments). What an engine says otherwise it writes
// itself: values, what is assigned to a column, arithmetic, calls, patterns.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "drivers/dialects/columns.h"
#include "drivers/dialects/expression.h"
#include "drivers/dialects/scope.h"
#include "drivers/dialects/tokens.h"
#include "drivers/dialects/writer.h"

namespace brunvik::dialects {

class Rewriter {
 public:
  Rewriter(const Rewriter&) = delete;
  Rewriter& operator=(const Rewriter&) = delete;
  virtual ~Rewriter() = default;

 protected:
  // The tokens and the catalogue outlive the rewriter. Throws std::invalid_argument as Expressions does.
  Rewriter(std::span<const Token> tokens, Catalogue& catalogue);

  // The whole statement. Throws std::invalid_argument with the reason where the engine would take what neither original
  // database does.
  std::string rewritten();

  // A SELECT whose verb stands at a place, and that isn't a part of another statement. The answer is whether the engine
  // has written all of it in its own words.
  virtual bool select(std::size_t verb, std::size_t end) = 0;

  // An expression whose value goes into a column of a type.
  virtual void assign(std::size_t first, std::size_t end, ColumnType type) = 0;

  // LIKE at a place, with the text behind it.
  virtual void like(std::size_t place) = 0;

  // An expression that isn't assigned.
  virtual void arithmetic(std::size_t first, const Run& run) = 0;

  // A call whose name stands at a place; the place behind it is returned.
  virtual std::size_t call(std::size_t name, std::size_t opening) = 0;

  // A value that was cut out, or a date that stays in the text.
  virtual std::string value(const Token& token) = 0;

  // A name in brackets or quotation marks.
  virtual std::string name(const Token& token) = 0;

  bool is(std::size_t place, std::string_view word) const { return place < tokens_.size() && tokens_[place].is(word); }
  bool is_symbol(std::size_t place, std::string_view symbol) const {
    return place < tokens_.size() && tokens_[place].is_symbol(symbol);
  }

  // Whether a range is a column and nothing else.
  bool is_column(std::size_t first, std::size_t end) const;

  // Everything whose value isn't assigned. The parentheses in it are closed in it.
  void range(std::size_t place, std::size_t end, std::optional<std::string> top = {});

  // The operands of a run with what joins them. `divide` stands for a division sign.
  void operands(std::size_t place, std::size_t end, std::string_view divide = "/");

  // A call under another name, or under its own, with its arguments from a place on; the place behind it is returned.
  std::size_t call_as(std::string_view function, std::size_t name, std::size_t arguments, std::size_t closing);
  std::size_t call_as_it_stands(std::size_t name, std::size_t opening);

  void write(std::size_t place);

  std::span<const Token> tokens_;
  Catalogue& catalogue_;
  Scope scope_;
  Expressions expressions_;
  Writer out_;

 private:
  void statement(std::size_t verb, std::size_t end);
  void insert(std::size_t place, std::size_t end);
  std::vector<ColumnType> types_of_columns(std::size_t table, std::size_t place, std::size_t end);
  void assign_items(std::size_t first, std::size_t end, std::span<const ColumnType> types);
  void update(std::size_t place, std::size_t end);
  void assignment(std::size_t place, std::size_t end, const TableDescription* columns);
  std::size_t select_words(std::size_t place, std::size_t end, std::optional<std::string>& top);
  std::size_t parentheses(std::size_t opening);
  std::size_t write_path(std::size_t place, std::size_t end);
};

// The tokens of a shape without the semicolons at its end.
std::vector<Token> statement_tokens(std::string_view shape);

}  // namespace brunvik::dialects
