#include "brunvik/purchasing/purchase_return.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/settlement/pay_bill.h"

namespace brunvik {

const Members& PurchaseReturn::table() {
  using C = PurchaseReturn;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Nowpaybillid>("Nowpaybillid", "NowpayBillId"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::Vendor>("Vendor", "Receiver"),
      property<&C::CkrId>("CkrId", "SManager"),
      property<&C::ThrId>("ThrId", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      property<&C::Closeamount>("Closeamount", "CloseAmount"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::BillCost>("BillCost", "BillCost"),
      property<&C::Deliverymethod>("Deliverymethod", "DeliveryMethod"),
      computed<&C::Closedtag>("Closedtag", "ClosedTag"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      verb<&C::Delete>("Delete"),
      last_by_id_and_neighbours<C>(),
      near_id<C>(),
      verb<&C::Audit>("Audit"),
      verb<&C::UndoAudit>("UndoAudit"),
  };
  return table;
}

DocumentForm PurchaseReturn::made_form() const {
  return stock_form(
      kind(), table(), WarehouseColumn::Supplier,
      "insert into StockBill(Id,ManualId,Receiver,SManager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,"
      "[Auditor,AuditTime,]PaidAmount,CloseAmount,Amount,DeliveryMethod,ClosedTag,ReferFlag,NowpayBillId,Summary,"
      "Remarks) values(",
      "update stockbill set ManualId = ,Receiver = ,SManager = ,Salesman = ,Type = ,InOutFlag = ,Status = ,"
      "[Auditor = ,AuditTime = ,]PaidAmount = ,CloseAmount = ,Amount = ,DeliveryMethod = ,ClosedTag = ,"
      "ReferFlag = ,NowpayBillId = ,Summary = ,Remarks =  where Id=",
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,Actualqty,price,"
      "Amount,Supplier,remarks,GoodStutas) values(",
      {from("ActualQty", "Qty"), constant("GoodStutas", stock_status::sound)});
}

Long PurchaseReturn::Audit() noexcept {
  return audit_with<clsPayBill>([&] {
    read_rows();
    cost_and_post(Stock::moves, [](const StockRow& row) {
      return cost_at_average(UndoAuditUpdateAverageCost(row.Gid, row.Unit, row.Class, row.Model1, row.Model2, row.Qty,
                                                        row.price, no_cost_delta),
                             row);
    });
    BillCost = write_bill_cost();
  });
}

Long PurchaseReturn::UndoAudit() noexcept {
  return undo_with<clsPayBill>([&] {
    read_rows();
    cost_rows([](const StockRow& row) {
      AuditUpdateAverageCost(row.Gid, row.Unit, row.Class, row.Model1, row.Model2, row.Qty, row.price, no_cost_delta);
      return Money();
    });
    BillCost = write_bill_cost();
    undo_stock();
  });
}

}  // namespace brunvik
