#include "brunvik/foundation/ConnOPT_Function.h"

#include <array>
#include <type_traits>
#include <utility>

#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/foundation/statement_writer.h"
#include "brunvik/foundation/text.h"

namespace brunvik {

inline namespace ConnOPT_Function {

namespace {

std::string escaped(std::string_view text) {
  // In this order: the brackets that the last two write must not be escaped themselves.
  return replaced(replaced(replaced(replaced(trimmed(text), "'", "''"), "[", "[[]"), "_", "[_]"), "%", "[%]");
}

std::string like_text(std::string_view text, std::string_view wildcard, std::string_view position) {
  const std::string pattern = escaped(text);
  if (upper_case(wildcard) != upper_case(drop)) {
    const std::string place = upper_case(position);
    if (place == "START") return std::string(" like '").append(wildcard) + pattern + "'";
    if (place == "END") return " like '" + pattern + std::string(wildcard) + "'";
    if (place == "BOTH") return std::string(" like '").append(wildcard) + pattern + std::string(wildcard) + "'";
  }
  return "'" + pattern + "'";
}

// A statement that a host wrote with the literal words; databases know 1 and 0. Blind: it reaches into texts too.
void rewrite_booleans(std::string& statement) {
  if (statement.find("TRUE") == std::string::npos && statement.find("FALSE") == std::string::npos) return;
  static constexpr std::array<std::pair<std::string_view, std::string_view>, 8> replacements{{{",TRUE", ",1"},
                                                                                              {"TRUE,", "1,"},
                                                                                              {"= TRUE", "= 1"},
                                                                                              {"=TRUE", "=1"},
                                                                                              {",FALSE", ",0"},
                                                                                              {"FALSE,", "0,"},
                                                                                              {"= FALSE", "= 0"},
                                                                                              {"=FALSE", "=0"}}};
  for (const auto& [search, replacement] : replacements) {
    if (statement.find(search) != std::string::npos) statement = replaced(statement, search, replacement);
  }
}

// Not inline, so that the common values pay for nothing of it.
[[gnu::noinline]] std::string value_text(const Value& value, std::string_view wildcard, std::string_view position) {
  std::string text;
  value.visit([&](const auto& content) {
    using Type = std::decay_t<decltype(content)>;
    if constexpr (std::is_same_v<Type, ado::Empty> || std::is_same_v<Type, ado::Null>) {
      text = "null";
    } else if constexpr (std::is_same_v<Type, std::string>) {
      text = like_text(content, wildcard, position);
    } else if constexpr (std::is_same_v<Type, Date>) {
      std::string date = Get_DateStr(content, 0);
      text = content == Date{} ? "null" : std::move(date);
    } else if constexpr (std::is_arithmetic_v<Type> || std::is_same_v<Type, Money>) {
      SqlValue(content).append_to(text);
    }
  });
  return text;
}

void run_in_upper_case(std::string& statement) {
  statement = upper_case(statement);
  rewrite_booleans(statement);
  ado::execute(session().ADOConn, statement);
}

}  // namespace

// The types of nearly all values stand in front of the general road, each in a text that is returned where it was made.
std::string GetSqlVal(const Value& Value, bool IsLike, std::string_view WildCard, std::string_view Position) try {
  if (const auto* words = Value.get_if<std::string>(); words && !IsLike) return quoted(*words);
  if (const auto* number = Value.get_if<Long>()) return ado::number_text(*number);
  if (const auto* amount = Value.get_if<Money>()) return amount->text();
  return value_text(Value, WildCard, Position);
} catch (...) {
  detail::notify_of_current_exception("GetSqlVal():", notice_title);
  return {};
}

Value EscapeLike(std::string_view Text) { return escaped(Text); }

std::string Get_DateStr(Date Value, Integer DateFormat) {
  std::string text;
  trap("Get_DateStr():", [&] {
    const std::string working =
        ado::parts_of(Value).year <= 1900 ? ado::default_text(Value) : ado::timestamp_text(Value);
    std::string_view quote;
    if (session().DATAType == sql_server_dialect) {
      quote = "'";
    } else if (session().DATAType == access_dialect) {
      quote = "#";
    } else {
      return;
    }
    std::string body = working;
    if (DateFormat == 1) body = ado::month_text(ado::parse_date(working));
    if (DateFormat == 2) body = ado::day_text(ado::parse_date(working));
    if (DateFormat == 3) body = ado::time_text(ado::parse_date(working));
    text.append(quote).append(body).append(quote);
  });
  return text;
}

bool IsConnected() noexcept { return session().ADOConn && session().ADOConn->State() != 0; }

void ExecuteSql(std::string& Sql) {
  trap("ExecuteSql():", [&] {
    if (!Sql.empty() && IsConnected()) run_in_upper_case(Sql);
  });
}

void ExecuteNonQuerySql(std::string& Sql) {
  trap("ExecuteNonQuerySql():", [&] {
    if (!Sql.empty()) run_in_upper_case(Sql);
  });
}

void Open_Recordset(ado::Recordset& Recordset) {
  trap("Open_Recordset():", [&] {
    Recordset.Close();
    Recordset.set_active_connection(nullptr);
    if (!session().ADOConn) ado::raise(ado::error::object_not_set);
    Recordset.set_active_connection(session().ADOConn);
  });
}

void Close_Recordset(ado::Recordset& Recordset) noexcept { Recordset.Close(); }

}  // namespace ConnOPT_Function

}  // namespace brunvik
