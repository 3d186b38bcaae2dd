#include "brunvik/foundation/sql_text.h"

#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/ConnOPT_Function.h"

namespace brunvik {

namespace {

// Not inline, so that the common values pay for nothing of it.
[[gnu::noinline]] void write_appended(const SqlValue& value, StatementWriter& statement) {
  std::string text;
  value.append_to(text);
  statement.add(text);
}

}  // namespace

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

void SqlValue::write_to(StatementWriter& statement) const {
  // Nine in ten values are among these; the others may take a text of their own.
  switch (kind_) {
    case Kind::whole:
      return statement.add(whole_);
    case Kind::text:
      return statement.add_quoted(text_);
    case Kind::money:
      return statement.add(money_);
    case Kind::single:
      return statement.add(single_);
    default:
      return write_appended(*this, statement);
  }
}

// Names of tables, columns and settings nearly all.
void SqlValue::write_raw_to(StatementWriter& statement) const {
  if (kind_ == Kind::text) return statement.add(text_);
  std::string text;
  append_raw_to(text);
  statement.add(text);
}

void fill_places(StatementWriter& filled, std::string_view statement, std::span<const TextPlace> places,
                 std::span<const SqlValue> values) {
  std::size_t done = 0;
  for (std::size_t number = 0; number < places.size(); ++number) {
    const TextPlace& place = places[number];
    filled.add({statement.data() + done, place.begin - done});
    done = place.end;
    const SqlValue& value = values[number];
    switch (place.kind) {
      case TextPlace::Kind::quoted:
        value.write_to(filled);
        break;
      case TextPlace::Kind::raw:
        value.write_raw_to(filled);
        break;
      case TextPlace::Kind::like: {
        std::string text;
        value.append_like_key_to(text);
        filled.add(text);
        break;
      }
    }
  }
  filled.add({statement.data() + done, statement.size() - done});
}

}  // namespace brunvik
