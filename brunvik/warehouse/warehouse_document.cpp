#include "brunvik/warehouse/warehouse_document.h"

namespace brunvik {

DocumentForm WarehouseDocument::warehouse_form(const Kind& kind, const Members& members, std::string_view person_column,
                                               WarehouseColumn warehouse, std::string_view insert_row,
                                               const std::vector<ColumnSource>& row_sources) {
  const std::string person(person_column);
  return stock_form(
      kind, members, warehouse,
      "insert into StockBill(Id,ManualId," + person +
          ",Creator,CreateTime,Type,InOutFlag,Status,[Auditor,AuditTime,]ReferFlag,Summary,Remarks) values(",
      "update stockbill set ManualId = ," + person +
          " = ,Type = ,InOutFlag = ,Status = ,[Auditor = ,AuditTime = ,]ReferFlag = ,Summary = ,Remarks = "
          " where Id=",
      insert_row, row_sources);
}

}  // namespace brunvik
