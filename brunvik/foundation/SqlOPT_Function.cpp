#include "brunvik/foundation/SqlOPT_Function.h"

#include "brunvik/ado/recordset.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

inline namespace SqlOPT_Function {

Money GoodsUnitConverter(std::string_view Id, std::string_view Unit) {
  Money factor;
  trap("GoodsUnitConverter():", [&] {
    ado::Recordset set;
    Open_Recordset(set);
    set.Open(sql("select id,Unit,UnitConverter from GoodsUnit where id={} and Unit={}", Id, Unit));
    Money stored;
    if (!set.at_end()) {
      const Value& field = set.value("UnitConverter");
      if (!field.is_null()) stored = field.as_money();
    }
    factor = stored.is_zero() ? Money::from_whole(1) : stored;
  });
  return factor;
}

}  // namespace SqlOPT_Function

}  // namespace brunvik
