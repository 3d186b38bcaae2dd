#include "brunvik/repair/factory_return.h"

#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/settlement/pay_bill.h"

namespace brunvik {

const Members& FactoryReturn::table() {
  using C = FactoryReturn;
  static const Members table = repair_members({
      .behind_kind = {property<&C::GongYingShangBH>("GongYingShangBH", "Supplier"),
                      property<&C::BillAmount>("BillAmount", "Amount"), property<&C::PayMethod>("PayMethod"),
                      property<&C::Paidamount>("Paidamount", "Paidamount"),
                      property<&C::Closeamount>("Closeamount", "Closeamount"),
                      computed<&C::Closedtag>("Closedtag", "ClosedTag"), property<&C::RuKuRen>("RuKuRen", "RManager"),
                      property<&C::Nowpaybillid>("Nowpaybillid", "NowPayBillId")},
  });
  return table;
}

DocumentForm FactoryReturn::made_form() const {
  return repair_form(
      kind(), table(),
      {.insert = "insert into RGStockBill(Id,ManualId,Supplier,ProcessFlag,RManager,Amount,Paidamount,Closeamount,"
                 "InOutFlag,Status,Creator,CreateTime,Summary,Remarks,NowPayBillId,[Auditor,AuditTime,]ClosedTag) "
                 "values(",
       .update = "Update RGStockBill set ManualId = ,Supplier = ,ProcessFlag = ,RManager = ,Amount = ,Paidamount = ,"
                 "Closeamount = ,Status = ,Summary = ,Remarks = ,NowPayBillId = ,[Auditor = ,AuditTime = ,]"
                 "ClosedTag =  where Id=",
       .insert_row = "Insert into RGStockBillItems(BillId,RowNum,GId,GName,GBarcode,Class,Model1,Model2,unit,qty,price,"
                     "Amount,StoreHouse,BrokenDspt,FixMeans,OutFactoryDate,Buydate,EquipCode,Accessory,Remarks,"
                     "GuanLianBill,DYRowNum" +
                     std::string(own_row_columns()) + ") values("});
}

void FactoryReturn::audit_money() const {
  if (Nowpaybillid.empty()) return;
  if (GetKeyValue(config::audit_of_accounts) == "0") audit_voucher<clsPayBill>(Nowpaybillid);
}

void FactoryReturn::undo_money() const { undo_voucher<clsPayBill>(Nowpaybillid); }

}  // namespace brunvik
