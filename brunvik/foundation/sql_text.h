// Statement text with values at places:
//
//   sql("update stockbill set Status={},Auditor={} where id={}", status, auditor, id)
//
// Each {} is one value and goes in as GetSqlVal writes it. {like} is a text key as GetSqlVal writes it with the
// escape of a LIKE pattern. {raw} goes in as it stands: for the names of tables and for the few values whose rule
// says so. The count of places and values is checked when the code is compiled.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "brunvik/ado/money.h"
#include "brunvik/ado/value.h"
#include "brunvik/foundation/statement_writer.h"

namespace brunvik {

// One value on its way into a statement; it refers to what it was made from.
class SqlValue {
 public:
  SqlValue(Byte number) : kind_(Kind::whole), whole_(number) {}
  SqlValue(Integer number) : kind_(Kind::whole), whole_(number) {}
  SqlValue(Long number) : kind_(Kind::whole), whole_(number) {}
  SqlValue(bool flag) : kind_(Kind::whole), whole_(flag ? 1 : 0) {}
  SqlValue(Single number) : kind_(Kind::single), single_(number) {}
  SqlValue(Double number) : kind_(Kind::real), real_(number) {}
  SqlValue(Money amount) : kind_(Kind::money), money_(amount) {}
  SqlValue(std::string_view text) : kind_(Kind::text), text_(text) {}
  SqlValue(const std::string& text) : SqlValue(std::string_view(text)) {}
  SqlValue(const char* text) : SqlValue(std::string_view(text)) {}
  SqlValue(const Value& value) : kind_(Kind::dynamic), dynamic_(&value) {}

  void append_to(std::string& statement) const;
  void write_to(StatementWriter& statement) const;
  void append_like_key_to(std::string& statement) const;
  void append_raw_to(std::string& statement) const;
  void write_raw_to(StatementWriter& statement) const;

 private:
  enum class Kind { whole, single, real, money, text, dynamic };

  Kind kind_;
  union {
    std::int64_t whole_;
    Single single_;
    Double real_;
    Money money_;
    std::string_view text_;
    const Value* dynamic_;
  };
};

// Where a value stands in a statement, and how it goes in.
struct TextPlace {
  enum class Kind : std::uint8_t { quoted, like, raw };

  Kind kind;
  std::uint16_t begin, end;
};

// Its places are found when the code is compiled, not at each of its uses.
template <std::size_t Places>
class StatementText {
 public:
  consteval StatementText(const char* text) : text_(text) {
    std::size_t places = 0;
    for (std::size_t at = text_.find('{'); at != std::string_view::npos; at = text_.find('{', at + 1)) {
      const std::size_t end = text_.find('}', at) + 1;
      const std::string_view place = text_.substr(at, end - at);
      if (place != "{}" && place != "{like}" && place != "{raw}") throw "a place is {}, {like} or {raw}";
      if (places == Places) throw "a statement has as many places as values";
      places_[places++] = {place == "{}"       ? TextPlace::Kind::quoted
                           : place == "{like}" ? TextPlace::Kind::like
                                               : TextPlace::Kind::raw,
                           static_cast<std::uint16_t>(at), static_cast<std::uint16_t>(end)};
    }
    if (places != Places) throw "a statement has as many places as values";
  }

  constexpr std::string_view text() const { return text_; }
  constexpr std::span<const TextPlace> places() const { return places_; }

 private:
  std::string_view text_;
  std::array<TextPlace, Places> places_{};
};

// As many values as places.
void fill_places(StatementWriter& filled, std::string_view statement, std::span<const TextPlace> places,
                 std::span<const SqlValue> values);

template <class... Values>
Statement sql(const std::type_identity_t<StatementText<sizeof...(Values)>>& statement, const Values&... values) {
  return Statement([&](StatementWriter& filled) {
    fill_places(filled, statement.text(), statement.places(),
                std::array<SqlValue, sizeof...(Values)>{SqlValue(values)...});
  });
}

}  // namespace brunvik
