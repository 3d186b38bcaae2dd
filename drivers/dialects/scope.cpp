#include "drivers/dialects/scope.h"

#include <algorithm>

namespace brunvik::dialects {

namespace {

bool leaves_the_list_of_tables(const Token& token) {
  return token.is("where") || token.is("on") || token.is("set") || token.is("group") || token.is("order") ||
         token.is("values") || token.is("select");
}

}  // namespace

Scope::Scope(std::span<const Token> tokens, Catalogue& catalogue) {
  bool in_list = false;  // between FROM and what follows the tables
  bool expected = false;
  for (std::size_t place = 0; place < tokens.size(); ++place) {
    const Token& token = tokens[place];
    if (token.is("from") || token.is("join") || token.is("into") || token.is("update")) {
      in_list = in_list || token.is("from");
      expected = true;
    } else if (leaves_the_list_of_tables(token)) {
      in_list = expected = false;
    } else if (in_list && token.is_symbol(",")) {
      expected = true;
    } else if (expected && token.is_name() && !is_keyword(token)) {
      // A name in front of a point is that of a database.
      if (place + 1 < tokens.size() && tokens[place + 1].is_symbol(".")) {
        ++place;
        continue;
      }
      expected = false;
      std::size_t alias = place + 1;
      if (alias < tokens.size() && tokens[alias].is("as")) ++alias;
      const bool has_alias = alias < tokens.size() && tokens[alias].is_name() && !is_keyword(tokens[alias]);
      const std::string_view name = bare_name(token);
      const TableDescription& columns = catalogue.table(name);
      if (!columns.empty()) sources_.push_back({name, has_alias ? bare_name(tokens[alias]) : name, &columns});
    }
  }
}

ColumnType Scope::type_of(std::string_view table, std::string_view column) const {
  const auto is_named = [table](const Source& source) {
    return ado::same_name(source.name, table) || ado::same_name(source.alias, table);
  };
  const bool known = std::any_of(sources_.begin(), sources_.end(), is_named);
  ColumnType found = ColumnType::other;
  for (const Source& source : sources_) {
    if (known && !is_named(source)) continue;
    const auto type = type_of_column(*source.columns, column);
    if (type == ColumnType::money) return ColumnType::money;
    if (type && found == ColumnType::other) found = *type;
  }
  return found;
}

bool Scope::has_column(std::string_view name) const {
  return std::any_of(sources_.begin(), sources_.end(),
                     [name](const Source& source) { return type_of_column(*source.columns, name).has_value(); });
}

}  // namespace brunvik::dialects
