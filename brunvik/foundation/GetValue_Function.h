// Reads on the session connection: numbers for new bills and rows, the configuration, a company's field.
//
// Procedures trap their errors, show a notice and return what they hold.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/types.h"

namespace brunvik {

inline namespace GetValue_Function {

// The next running number of a day. Table and Field are plain names; Where is a condition with its word, such as
// " where ID like 'QTR%' ", in which every % gets the day ("yyMMdd") in front of it, or empty. DateText is the day as
// text, empty for today. The number is read from position 10 of the highest key; 1 where there is none. It is a
// proposal: nothing reserves it. 0 after an error.
Long Get_BillMaxId(std::string_view Table, std::string_view Field, std::string_view Where, std::string_view DateText);

// The next free value of a numeric text column, 1 in an empty table. 0 after an error.
Long Get_UniqV(std::string_view Table, std::string_view Field);

// The value of a configuration key; empty where the key is missing or its value null. Read at each call. The notice
// has the title 错误信息.
std::string GetKeyValue(std::string_view Key);

// The same for a switch whose text is taken as a truth value: True or False in any case, or a number, of which any but
// 0 is true; blanks around them count for nothing. Error 13 for any other text, also where the key is missing or can't
// be read, in which case GetKeyValue has told so.
bool GetKeyFlag(std::string_view Key);

// One column of a company as text; empty for an empty id (nothing is read), an unknown id or a null.
std::string GetContactsCompanyField(std::string_view Id, std::string_view Column);

}  // namespace GetValue_Function

}  // namespace brunvik
