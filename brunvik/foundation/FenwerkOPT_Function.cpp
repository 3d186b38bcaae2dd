#include "brunvik/foundation/FenwerkOPT_Function.h"

#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/member_columns.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

inline namespace FenwerkOPT_Function {

Long GetGoodsById(std::string_view Id, GoodsRecord& Goods) {
  return trap("GetGoodsById():", [&] {
    ado::Recordset set;
    Open_Recordset(set);
    set.Open(sql("select * from goods where id={}", Id));
    if (set.at_end()) return;
    MemberColumns::take(Goods.members(), Goods, set, MemberColumns::Null::leaves_numbers);
  });
}

}  // namespace FenwerkOPT_Function

}  // namespace brunvik
