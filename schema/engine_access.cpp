// Access, of the 2000 format and later. The statements are to be sent through ADO: Access itself knows no DEFAULT in
// its own window.
#include "schema/engine_words.h"

namespace brunvik::schema {

namespace {

Declaration declaration(Type type) {
  switch (type) {
    case Type::Key:
      return {"TEXT(190)"};
    case Type::Text:
      // There is no wider text that isn't a memo.
      return {"TEXT(255)"};
    case Type::Memo:
      return {"MEMO"};
    case Type::Date:
      return {"DATETIME"};
    case Type::Byte:
    case Type::Boolean:
      // A YESNO keeps the 1 that a statement writes as -1, and `ClosedTag=1` would find no row ever after.
      return {"BYTE"};
    case Type::Integer:
      return {"SHORT"};
    case Type::Long:
      return {"LONG"};
    case Type::Single:
      return {"SINGLE"};
    case Type::Money:
      return {"CURRENCY"};
  }
  return {};
}

}  // namespace

const EngineWords& access_words() {
  static constexpr EngineWords words{
      .opening_quote = "[",
      .closing_quote = "]",
      .declaration = declaration,
      .updates_rows = true,
  };
  return words;
}

}  // namespace brunvik::schema
