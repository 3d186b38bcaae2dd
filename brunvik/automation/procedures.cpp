// The module procedures by their names.
#include "brunvik/automation/automation.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/FenwerkOPT_Function.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "brunvik/settlement/ledger.h"
#include "brunvik/stock/moving_average_cost.h"

namespace brunvik::automation {

namespace {

template <auto pointer>
Procedure cost_procedure(std::string_view name) {
  return procedure<pointer>(name, in_out("GoodsId"), in_out("Unit"), in_out("Class"), in_out("Model1"),
                            in_out("Model2"), in_out("Qty"), in_out("Price"), in_out("CostDelta"));
}

}  // namespace

std::span<const Procedure> procedures() {
  static const std::vector<Procedure> procedures{
      procedure<&GetSqlVal>("GetSqlVal", in_out("Value"), optional(in("IsLike"), false), optional(in("WildCard"), drop),
                            optional(in("Position"), drop)),
      procedure<&EscapeLike>("EscapeLike", in("Text")),
      procedure<&Get_DateStr>("Get_DateStr", in("Value"), in_out("DateFormat")),
      procedure<&ExecuteSql>("ExecuteSql", in_out("Sql")),
      procedure<&ExecuteNonQuerySql>("ExecuteNonQuerySql", in_out("Sql")),
      procedure<&IsConnected>("IsConnected"),
      procedure<&Open_Recordset>("Open_Recordset", optional(in_out("Recordset"), ado::Null())),
      procedure<&Close_Recordset>("Close_Recordset", optional(in_out("Recordset"), ado::Null())),
      procedure<&Get_BillMaxId>("Get_BillMaxId", in("Table"), in("Field"), in("Where"), in("DateText")),
      procedure<&Get_UniqV>("Get_UniqV", in("Table"), in("Field")),
      procedure<&GetKeyValue>("GetKeyValue", in("Key")),
      procedure<&GetContactsCompanyField>("GetContactsCompanyField", in("Id"), in("Column")),
      procedure<&GetGoodsById>("GetGoodsById", in("Id"), in_out("Goods")),
      procedure<&GoodsUnitConverter>("GoodsUnitConverter", in("Id"), in("Unit")),
      cost_procedure<&AuditUpdateAverageCost>("AuditUpdateAverageCost"),
      cost_procedure<&UndoAuditUpdateAverageCost>("UndoAuditUpdateAverageCost"),
      procedure<&GetAverageCost>("GetAverageCost", in("GoodsId"), in("Class"), in("Model1"), in("Model2")),
      procedure<&UpdateBillItemCost>("UpdateBillItemCost", in("BillId"), in("RowNum"), in("Cost"), in("ShareCost")),
      procedure<&CalcBillCost>("CalcBillCost", in("Rows"), in_out("Type")),
      procedure<&UpdateBillCost>("UpdateBillCost", in("BillId"), in("Type"), in("BillCost")),
      procedure<&CreateZHJYXX_LX>("CreateZHJYXX_LX", in("BillId"), in("Amount"), in("AccountId"), in("Responsible"),
                                  in("Direction"), in("TypeCode"), in("Item"), in_out("Voucher"), in_out("DateText"),
                                  in_out("Payer")),
      procedure<&DeleteZHJYXX>("DeleteZHJYXX", in_out("BillId")),
  };
  return procedures;
}

}  // namespace brunvik::automation
