#include "brunvik/repair/factory_dispatch.h"

#include "brunvik/foundation/late_binding.h"

namespace brunvik {

const Members& FactoryDispatch::table() {
  using C = FactoryDispatch;
  static const Members table = repair_members({
      .behind_kind = {property<&C::GongYingShangBM>("GongYingShangBM", "Receiver"),
                      property<&C::ChuKuRen>("ChuKuRen", "SManager"),
                      property<&C::Deliverymethod>("Deliverymethod", "Deliverymethod"),
                      property<&C::QtyStutas>("QtyStutas", "QtyStutas").not_read(),
                      property<&C::BaoXiuDate>("BaoXiuDate", "BaoXiuDate")},
      .verbs = {verb<&C::GetRgStockBillitems>("GetRgStockBillitems", in("cBillid"))},
  });
  return table;
}

// What is broken and how it is to be repaired isn't read back: a document that is loaded and saved again loses both.
DocumentForm FactoryDispatch::made_form() const {
  return repair_form(
      kind(), table(),
      {.insert = "insert into RGStockBill(Id,ManualId,Receiver,ProcessFlag,SManager,Deliverymethod,InOutFlag,Status,"
                 "Creator,CreateTime,Summary,Remarks,[Auditor,AuditTime,]QtyStutas,BaoXiuDate) values(",
       .update = "Update RGStockBill set ManualId = ,Receiver = ,ProcessFlag = ,SManager = ,Deliverymethod = ,"
                 "Status = ,Summary = ,Remarks = ,[Auditor = ,AuditTime = ,]QtyStutas = ,BaoXiuDate =  where Id=",
       .insert_row = "Insert into RGStockBillItems(BillId,RowNum,GId,GName,GBarcode,Class,Model1,Model2,unit,qty,price,"
                     "Amount,StoreHouse,EquipCode,OutFactoryDate,BuyDate,BrokenDspt,FixMeans,remarks,YfQty) values( ",
       .unread = {"BrokenDspt", "FixMeans"}});
}

}  // namespace brunvik
