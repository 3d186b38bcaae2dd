#include "brunvik/stock/InitBrunvikVariable.h"

#include <memory>

#include "brunvik/ado/clock.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/stock/StockPoster.h"

namespace brunvik {

void InitBrunvikVariable::InitClase_PublicVariable() {
  SessionGlobals& globals = session();
  globals.ADOConn = ADOConn;
  globals.DATAType = DATAType;
  globals.StockPoster = std::make_shared<StockPoster>();
  globals.StockPoster->ADOConn = ADOConn;
  globals.StockPoster->DATAType = DATAType;
  globals.OperatorId = OperatorId;
  if (DATAType != sql_server_dialect && DATAType != access_dialect) {
    ado::show_notice("InitClase_PublicVariable():DATAType 不是可识别的数据库类型：" + DATAType);
  }
}

const Members& InitBrunvikVariable::members() const {
  using C = InitBrunvikVariable;
  static const Members table{
      property<&C::DATAType>("DATAType"),
      property<&C::OperatorId>("OperatorId"),
      connection<&C::ADOConn>("ADOConn"),
      verb<&C::InitClase_PublicVariable>("InitClase_PublicVariable"),
  };
  return table;
}

}  // namespace brunvik
