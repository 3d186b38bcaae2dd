#include "brunvik/foundation/GetValue_Function.h"

#include "brunvik/ado/clock.h"
#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/names.h"
#include "brunvik/ado/numbers.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/foundation/text.h"

namespace brunvik {

inline namespace GetValue_Function {

namespace {

// A bill number is a prefix of three characters, a day of six and the running number.
constexpr std::size_t running_number_position = 10;

Long one_more_than(Long number) { return ado::to_long(static_cast<double>(number) + 1); }

}  // namespace

Long Get_BillMaxId(std::string_view Table, std::string_view Field, std::string_view Where, std::string_view DateText) {
  Long next = 0;
  trap("Get_BillMaxId():", [&] {
    const std::string day = ado::bill_day_text(DateText.empty() ? ado::now() : ado::parse_date(DateText));
    const std::string where = replaced(Where, "%", day + "%");
    const auto set = ado::execute(session().ADOConn, sql("select max({raw})  from {raw}{raw}", Field, Table, where));
    constexpr ado::Column highest{0};
    if (set.at_end() || set.value(highest).is_null()) {
      next = 1;
    } else {
      const std::string key = set.value(highest).as_text();
      next = one_more_than(Value(text_from(key, running_number_position)).as_long());
    }
  });
  return next;
}

Long Get_UniqV(std::string_view Table, std::string_view Field) {
  Long next = 0;
  trap("Get_UniqV():", [&] {
    const std::string dialect = upper_case(session().DATAType);
    std::string statement;
    if (dialect == upper_case(sql_server_dialect)) {
      statement = sql("select max(convert(int,{raw})) as ls_bm from {raw}", Field, Table);
    } else if (dialect == upper_case(access_dialect)) {
      statement = sql("select max(clng({raw})) as ls_bm from {raw}", Field, Table);
    } else {
      ado::raise(ado::error::object_not_set);
    }
    const auto set = ado::execute(session().ADOConn, statement);
    if (set.at_end() || set.value("ls_bm").is_null()) {
      next = 1;
    } else {
      next = one_more_than(set.value("ls_bm").as_long());
    }
  });
  return next;
}

std::string GetKeyValue(std::string_view Key) {
  std::string value;
  trap(
      "GetKeyValue():",
      [&] {
        const auto set = ado::execute(session().ADOConn, sql("select * from BasicConfig where keyname='{raw}'", Key));
        if (!set.at_end()) value = set.value("keyvalue").joined_text();
      },
      "错误信息");
  return value;
}

bool GetKeyFlag(std::string_view Key) {
  const std::string value = GetKeyValue(Key);
  const std::string_view text = trimmed(value);
  if (ado::same_name(text, "True")) return true;
  if (ado::same_name(text, "False")) return false;
  return ado::parse_double(text) != 0;
}

std::string GetContactsCompanyField(std::string_view Id, std::string_view Column) {
  std::string field;
  if (Id.empty()) return field;
  trap("查找用户名称时出错，详细信息：", [&] {
    ado::Recordset set;
    Open_Recordset(set);
    set.Open(sql("select * from ContactsCompany where id={}", Id));
    if (!set.at_end()) field = set.value(Column).joined_text();
  });
  return field;
}

}  // namespace GetValue_Function

}  // namespace brunvik
