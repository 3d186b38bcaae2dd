// A shape of statements in MariaDB's words: takes the values of one statement of the shape and carries it out.
//
// A SELECT is kept prepared and its values are bound: the engine reads its text once. Everything else is sent as a text
// with its values in it, which costs the engine no more than a prepared one, and leaves each number what it is written
// as: a decimal that is bound would become a double.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/recordset.h"
#include "drivers/odbc/link.h"
#include "drivers/odbc/mariadb_rewriting.h"
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
  struct Piece {
    std::string words;
    std::size_t value;  // which stands behind the words
  };

  bool can_be_bound(std::span<const dialects::Literal> literals) const noexcept;
  ado::Recordset run_prepared(std::span<const dialects::Literal> literals, const Link& link);
  ado::Recordset run_direct(std::span<const dialects::Literal> literals, const Statement& direct,
                            std::string_view statement) const;

  MariaDbText text_;
  std::vector<Piece> pieces_;
  std::string end_;
  Statement prepared_;
  std::vector<ResultColumns> columns_;  // one, where it was prepared
};

}  // namespace brunvik::odbc
