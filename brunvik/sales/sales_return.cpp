#include "brunvik/sales/sales_return.h"

#include "brunvik/billframe/bill_members.h"

namespace brunvik {

Members SalesReturn::return_members(const Kind& kind, MemberGroup audit) {
  using C = SalesReturn;
  return Members{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::Nowpaybillid>("Nowpaybillid", "NowPayBillId"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::RkrId>("RkrId", "RManager"),
      property<&C::ClientId>("ClientId", "Supplier"),
      property<&C::Manager>("Manager", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      property<&C::Closeamount>("Closeamount", "CloseAmount"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::BillCost>("BillCost", "BillCost"),
      property<&C::Invoicename>("Invoicename", "InvoiceName"),
      property<&C::Invoicetype>("Invoicetype", "InvoiceType"),
      property<&C::Taxrate>("Taxrate", "TaxRate"),
      computed<&C::Closedtag>("Closedtag", "ClosedTag"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      kind.opening ? property<&C::Referbillid>("Referbillid") : property<&C::Referbillid>("Referbillid", "Referbillid"),
      texts_and_saving<C>(),
      verb<&C::DeleteSalesInBillAndItems>("DeleteSalesInBillAndItems"),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      near_id<C>(),
      std::move(audit),
  };
}

DocumentForm SalesReturn::made_form() const {
  return stock_form(
      kind(), members(), WarehouseColumn::Receiver,
      "insert into StockBill(Id,ManualId,Supplier,RManager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,"
      "[Auditor,AuditTime,]PaidAmount,CloseAmount,Amount,InvoiceName,InvoiceType,TaxRate,ClosedTag,ReferFlag,"
      "<Referbillid,>NowPayBillId,Summary,Remarks) values(",
      "update stockbill set ManualId = ,Supplier = ,RManager = ,Salesman = ,Type = ,InOutFlag = ,Status = ,"
      "[Auditor = ,AuditTime = ,]PaidAmount = ,CloseAmount = ,Amount = ,InvoiceName = ,InvoiceType = ,TaxRate = ,"
      "ClosedTag = ,ReferFlag = ,<Referbillid = ,>NowPayBillId = ,Summary = ,Remarks =  where Id=",
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,"
      "Amount,Receiver,Outfactorydate,Equipcode,Buydate,Accessory,remarks,GoodStutas) values(",
      {constant("GoodStutas", stock_status::sound)});
}

const Members& clsSalesInBill::members() const {
  using C = clsSalesInBill;
  const Parameter stock_stays = optional(in_out("IsBJKC"), false);
  static const Members table =
      return_members(kind(), {verb<&C::Audit>("Audit", stock_stays), verb<&C::UndoAudit>("UndoAudit", stock_stays)});
  return table;
}

const Members& clsSalesInBjkcBill::members() const {
  using C = clsSalesInBjkcBill;
  static const Members table = return_members(kind(), {verb<&C::Audit>("Audit"), verb<&C::UndoAudit>("UndoAudit")});
  return table;
}

}  // namespace brunvik
