// SQL Server 2016 and later.
#include "schema/engine_words.h"

namespace brunvik::schema {

namespace {

// An index has 1,700 bytes, a primary key 900, 2 for a character: four keys and a number stand in one. Neither case nor
// trailing blanks tell texts apart; accents, the width of a character and the two Japanese scripts do. Collations
// without the 100 in their names hold rare Chinese characters for nothing, and so for equal.
Declaration declaration(Type type) {
  switch (type) {
    case Type::Key:
      return {"nvarchar(190) COLLATE Chinese_Simplified_Pinyin_100_CI_AS_KS_WS_SC"};
    case Type::Text:
      return {"nvarchar(500) COLLATE Chinese_Simplified_Pinyin_100_CI_AS_KS_WS_SC"};
    case Type::Memo:
      return {"nvarchar(max) COLLATE Chinese_Simplified_Pinyin_100_CI_AS_KS_WS_SC"};
    case Type::Date:
      return {"datetime"};
    case Type::Byte:
      return {"tinyint"};
    case Type::Integer:
      return {"smallint"};
    case Type::Long:
      return {"int"};
    case Type::Boolean:
      return {"bit"};
    case Type::Single:
      return {"real"};
    case Type::Money:
      return {"money"};
  }
  return {};
}

}  // namespace

// What a column is that doesn't say whether it takes a null depends on the connection, so each says it. An index over
// some rows alone would stop the inserts of every connection with settings of older times: all indexes hold all rows.
const EngineWords& sqlserver_words() {
  static constexpr EngineWords words{
      .opening_quote = "[",
      .closing_quote = "]",
      .declaration = declaration,
      .no_key = " NULL",
      .add = "ADD ",
      .initial_for_rows = " WITH VALUES",
  };
  return words;
}

}  // namespace brunvik::schema
