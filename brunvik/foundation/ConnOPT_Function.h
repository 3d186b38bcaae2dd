// Statements on the session connection, and values on their way into statement text.
//
// Procedures trap their errors: each shows the Error Notice (its own name, "():", the error's text) and returns, so
// that the caller carries on as if the work had been done.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/recordset.h"
#include "brunvik/ado/value.h"

namespace brunvik {

inline namespace ConnOPT_Function {

// The argument that was not given, for WildCard and Position; compared without regard to case.
inline constexpr std::string_view drop = "[Drop]";

// The text of a value in a statement. Null and empty: null. Numbers: plain decimal text. Boolean: 1 or 0. Date: in
// the quote of the session's dialect, the zero date null. Text: trimmed, in apostrophes, apostrophes doubled; with
// IsLike the LIKE escape is applied, and with a WildCard the result is the whole condition behind the column,
// " like '%...'", the wildcard at the "Start", the "End" or "Both". An object or an array: nothing at all.
std::string GetSqlVal(const Value& Value, bool IsLike = false, std::string_view WildCard = drop,
                      std::string_view Position = drop);

// The text as a LIKE pattern that finds just this text: trimmed, apostrophes doubled, [ _ % in brackets.
Value EscapeLike(std::string_view Text);

// The date in the quote of the session's dialect, empty without a dialect. DateFormat: 1 month, 2 day, 3 time, any
// other the whole timestamp; up to the year 1900 the default conversion takes the timestamp's place.
std::string Get_DateStr(Date Value, Integer DateFormat);

// Runs a statement on the session connection and drops its result. The whole text is put in upper case, values
// included, and the words TRUE and FALSE beside a comma or an equals sign become 1 and 0; the argument is left so.
// ExecuteSql leaves in silence where the connection is gone; ExecuteNonQuerySql shows its notice.
void ExecuteSql(std::string& Sql);
void ExecuteNonQuerySql(std::string& Sql);

// The session connection is set and open.
bool IsConnected() noexcept;

// Replaces the set by a new one on the session connection, ready for Open.
void Open_Recordset(ado::Recordset& Recordset);

// Closes the set; raises and shows nothing.
void Close_Recordset(ado::Recordset& Recordset) noexcept;

}  // namespace ConnOPT_Function

}  // namespace brunvik
