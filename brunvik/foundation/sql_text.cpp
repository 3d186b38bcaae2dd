#include "brunvik/foundation/sql_text.h"

#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/text.h"

namespace brunvik {

void append_quoted(std::string& statement, std::string_view text) {
  text = trimmed(text);
  statement += '\'';
  for (auto apostrophe = text.find('\''); apostrophe != std::string_view::npos; apostrophe = text.find('\'')) {
    statement.append(text.substr(0, apostrophe + 1)) += '\'';
    text.remove_prefix(apostrophe + 1);
  }
  statement.append(text) += '\'';
}

void SqlValue::append_to(std::string& statement) const {
  switch (kind_) {
    case Kind::text:
      append_quoted(statement, text_);
      break;
    case Kind::dynamic:
      statement += GetSqlVal(*dynamic_);
      break;
    default:
      append_raw_to(statement);
  }
}

void SqlValue::append_like_key_to(std::string& statement) const {
  statement += GetSqlVal(kind_ == Kind::dynamic ? *dynamic_ : Value(text_), true, drop, drop);
}

void SqlValue::append_raw_to(std::string& statement) const {
  switch (kind_) {
    case Kind::whole:
      ado::append_number(statement, whole_);
      break;
    case Kind::single:
      ado::append_number(statement, single_);
      break;
    case Kind::real:
      ado::append_number(statement, real_);
      break;
    case Kind::money:
      money_.append_to(statement);
      break;
    case Kind::text:
      statement += text_;
      break;
    case Kind::dynamic:
      statement += dynamic_->joined_text();
      break;
  }
}

std::string fill_places(std::string_view statement, std::span<const SqlValue> values) {
  std::string filled;
  filled.reserve(statement.size() + 24 * values.size());
  for (const SqlValue& value : values) {
    const auto place = statement.find('{');
    filled += statement.substr(0, place);
    statement.remove_prefix(place + 1);
    switch (statement.front()) {
      case 'l':
        value.append_like_key_to(filled);
        break;
      case 'r':
        value.append_raw_to(filled);
        break;
      default:
        value.append_to(filled);
    }
    statement.remove_prefix(statement.find('}') + 1);
  }
  return filled.append(statement);
}

}  // namespace brunvik
