#include "brunvik/warehouse/internal_movement.h"

#include <string>

namespace brunvik {

DocumentForm InternalMovement::movement_form(const Kind& kind, const Members& members, std::string_view managers) {
  return stock_form(
      kind, members, WarehouseColumn::both,
      "insert into StockBill(Id,ManualId,Supplier,Receiver," + std::string(managers) +
          ",Creator,CreateTime,Type,InOutFlag,Status,[Auditor,AuditTime,]ReferFlag,Summary,Remarks) values(",
      "update stockbill set ManualId = ,Supplier = ,Receiver = ,RManager = ,SManager = ,Type = ,InOutFlag = ,Status = ,"
      "[Auditor = ,AuditTime = ,]ReferFlag = ,Summary = ,Remarks =  where Id=",
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
      "Supplier,Receiver,remarks) values(",
      {from("ActualQty", "Qty")});
}

}  // namespace brunvik
