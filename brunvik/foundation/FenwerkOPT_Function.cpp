#include "brunvik/foundation/FenwerkOPT_Function.h"

#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

inline namespace FenwerkOPT_Function {

Long GetGoodsById(std::string_view Id, GoodsRecord& Goods) {
  return trap("GetGoodsById():", [&] {
    ado::Recordset set;
    Open_Recordset(set);
    set.Open(sql("select * from goods where id={}", Id));
    if (set.at_end()) return;
    for (const Member& member : Goods.members()) {
      const Value& field = set.value(member.read_column());
      if (!field.is_null() || member.type() == Type::Text) member.read(Goods, field);
    }
  });
}

}  // namespace FenwerkOPT_Function

}  // namespace brunvik
