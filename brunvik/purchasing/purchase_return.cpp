#include "brunvik/purchasing/purchase_return.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/stock/moving_average_cost.h"

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
      verb<&C::GetNewId>("GetNewId", {out("BID")}),
      verb<&C::Delete>("Delete"),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::GetLastId>("GetLastId", {out("LastId")}),
      verb<&C::LoadById>("LoadById", {in_out("BID")}),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
      verb<&C::GetNearId>("GetNearId", {in("CurBillID"), out("NearBillID"), optional(in("NextPreviousId"), false)}),
      verb<&C::Audit>("Audit"),
      verb<&C::UndoAudit>("UndoAudit"),
  };
  return table;
}

StockForm PurchaseReturn::return_form(const Kind& kind) {
  return {kind,
          table(),
          WarehouseColumn::Supplier,
          "insert into StockBill(Id,ManualId,Receiver,SManager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,"
          "[Auditor,AuditTime,]PaidAmount,CloseAmount,Amount,DeliveryMethod,ClosedTag,ReferFlag,NowpayBillId,Summary,"
          "Remarks) values(",
          "update stockbill set ManualId = ,Receiver = ,SManager = ,Salesman = ,Type = ,InOutFlag = ,Status = ,"
          "[Auditor = ,AuditTime = ,]PaidAmount = ,CloseAmount = ,Amount = ,DeliveryMethod = ,ClosedTag = ,"
          "ReferFlag = ,NowpayBillId = ,Summary = ,Remarks =  where Id=",
          "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,Actualqty,price,"
          "Amount,Supplier,remarks,GoodStutas) values(",
          {from("ActualQty", "Qty"), constant("GoodStutas", stock_status::sound)}};
}

const StockForm& clsPurchaseOutBill::form() const {
  static const StockForm form = return_form(kind());
  return form;
}

const StockForm& clsPurchaseOutBjkcBill::form() const {
  static const StockForm form = return_form(kind());
  return form;
}

Long PurchaseReturn::Audit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::audited);
    audit_voucher<clsPayBill>(Nowpaybillid);
    if (kind().opening) return;
    read_rows();
    for_each_stock_row([&](StockRow& row) {
      const Money average = UndoAuditUpdateAverageCost(row.Gid, row.Unit, row.Class, row.Model1, row.Model2, row.Qty,
                                                       row.price, Money::from_whole(-1));
      write_row_cost(row, cost_at_average(average, row));
      Long result = 0;
      poster().PostStockOut(row, true, false, result);
      stop_unless_done(result);
    });
    BillCost = write_bill_cost();
  });
}

Long PurchaseReturn::UndoAudit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::saved);
    undo_voucher<clsPayBill>(Nowpaybillid);
    if (kind().opening) return;
    read_rows();
    for_each_stock_row([&](StockRow& row) {
      AuditUpdateAverageCost(row.Gid, row.Unit, row.Class, row.Model1, row.Model2, row.Qty, row.price,
                             Money::from_whole(-1));
      write_row_cost(row, Money());
    });
    BillCost = write_bill_cost();
    Long result = 0;
    poster().UndoStockOut(ID, true, false, result);
    stop_unless_done(result);
  });
}

}  // namespace brunvik
