// A shape of statements in MariaDB's words: takes the values of one statement of the shape and carries it out.
//
// A statement is kept prepared with places for its values: the engine reads its text once. A decimal that is bound
// would become a double, so that a value is written into the text where the engine itself would reckon with one; behind
// a sign of arithmetic its place is that of a decimal.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "drivers/odbc/link.h"
#include "drivers/odbc/mariadb_rewriting.h"
#include "drivers/odbc/parameter.h"
#include "drivers/odbc/result_columns.h"

namespace brunvik::odbc {

class MariaDbShape {
 public:
  explicit MariaDbShape(MariaDbText text);

  // How many values a statement of the shape has.
  std::size_t values() const noexcept { return text_.targets.size(); }
  std::size_t held_bytes() const noexcept;

  // `direct` is a statement for what isn't kept prepared. The statement's text is for the errors that are found in the
  // values themselves. Throws a Failure, or a RuntimeError for such a value.
  ado::Recordset run(std::span<const dialects::Literal> literals, const Link& link, const Statement& direct,
                     std::string_view statement);

 private:
  // What is bound for a value: a text, a whole number, the digits of a column's number, or the digits of one that the
  // engine reckons with as a decimal.
  enum class Binding { text, whole_number, number, decimal };

  struct Piece {
    std::string words;
    std::size_t value;  // which stands behind the words
    Binding binding;
  };

  Binding binding_of(std::size_t value, char mark, std::string_view words) const noexcept;
  static bool can_be_bound(Binding binding, const dialects::Literal& literal) noexcept;
  bool can_be_bound(std::span<const dialects::Literal> literals) const noexcept;
  void prepare(const Link& link);
  void put_values(std::span<const dialects::Literal> literals, std::string_view statement);
  ado::Recordset run_prepared(std::span<const dialects::Literal> literals, const Link& link,
                              std::string_view statement);
  ado::Recordset run_direct(std::span<const dialects::Literal> literals, const Link& link, const Statement& direct,
                            std::string_view statement) const;

  MariaDbText text_;
  std::vector<Piece> pieces_;
  std::string end_;
  Statement prepared_;
  std::vector<Parameter> parameters_;
  std::vector<ResultColumns> columns_;  // one, where it was prepared
};

}  // namespace brunvik::odbc
