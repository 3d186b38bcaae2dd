#include "brunvik/sales/sales_issue.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/settlement/advance.h"

namespace brunvik {

Members SalesIssue::issue_members(const Kind& kind) {
  using C = SalesIssue;
  const bool advance = !kind.opening;
  const Parameter series = optional(in_out("sIDQZ"), "");
  return Members{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::JQBJ>("JQBJ").read_from("Closedtag"),
      property<&C::FHBJ>("FHBJ").read_from("FHBJ"),
      property<&C::CreateFlag>("CreateFlag", "CreateFlag"),
      property<&C::Nowpaybillid>("Nowpaybillid", "Nowpaybillid"),
      only_if(advance, property<&C::NowAdvanceBillID>("NowAdvanceBillID", "NowAdvanceBillID")),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::ClientId>("ClientId", "Receiver"),
      property<&C::CkrId>("CkrId", "SManager"),
      property<&C::Salesman>("Salesman", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      only_if(advance, property<&C::AdvanceAmount>("AdvanceAmount", "AdvanceAmount")),
      property<&C::Closeamount>("Closeamount", "CloseAmount"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::BillCost>("BillCost", "BillCost"),
      computed<&C::Closedtag>("Closedtag", "ClosedTag"),
      property<&C::Invoicename>("Invoicename", "InvoiceName"),
      property<&C::Invoicetype>("Invoicetype", "InvoiceType"),
      property<&C::Taxrate>("Taxrate", "TaxRate"),
      property<&C::Discounttype>("Discounttype", "DiscountType"),
      property<&C::Discountcard>("Discountcard", "DiscountCard"),
      property<&C::Discountrate>("Discountrate", "DiscountRate"),
      property<&C::Deliverymethod>("Deliverymethod", "DeliveryMethod"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      texts_and_saving<C>(),
      verb<&C::LoadLast>("LoadLast", series),
      verb<&C::GetLastId>("GetLastId", out("LastId"), series),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::LoadNext>("LoadNext", series),
      verb<&C::LoadPreviou>("LoadPreviou", series),
      verb<&C::GetNewId>("GetNewId", out("BID"), series),
      verb<&C::GetNearId>("GetNearId", in("CurBillID"), out("NearBillID"), optional(in("NextPreviousId"), false),
                          series),
      verb<&C::Audit>("Audit", optional(in_out("bJKC"), false)),
      verb<&C::UndoAudit>("UndoAudit", optional(in_out("bJKC"), false)),
  };
}

DocumentForm SalesIssue::made_form() const {
  return stock_form(
      kind(), members(), WarehouseColumn::Supplier,
      "insert into StockBill(Id,ManualId,Receiver,SManager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,"
      "[Auditor,AuditTime,]PaidAmount,<AdvanceAmount,>CloseAmount,Amount,InvoiceName,InvoiceType,TaxRate,"
      "DiscountType,DiscountCard,DiscountRate,DeliveryMethod,ClosedTag,CreateFlag,ReferFlag,Referbillid,"
      "[nowpaybillid|Nowpaybillid],<NowAdvanceBillID,>Summary,Remarks) values(",
      "update stockbill set ManualId = ,Receiver = ,SManager = ,Salesman = ,Type = ,InOutFlag = ,Status = ,"
      "[Auditor = ,AuditTime = ,]PaidAmount = ,<AdvanceAmount = ,>CloseAmount = ,Amount = ,InvoiceName = ,"
      "InvoiceType = ,TaxRate = ,DiscountType = ,DiscountCard = ,DiscountRate = ,DeliveryMethod = ,ClosedTag = ,"
      "CreateFlag = ,ReferFlag = ,Referbillid = ,Nowpaybillid = ,<NowAdvanceBillID = ,>Summary = ,Remarks = "
      " where Id=",
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,Actualqty,price,"
      "Amount,Receiver,Supplier,Outfactorydate,Equipcode,Buydate,Accessory,SendStutas,remarks,GoodStutas) values(",
      {constant("SendStutas", 0), constant("GoodStutas", stock_status::sound)});
}

const Members& clsSalesOutBill::members() const {
  static const Members table = issue_members(kind());
  return table;
}

const Members& clsSalesOutBjkcBill::members() const {
  static const Members table = issue_members(kind());
  return table;
}

Long SalesIssue::LoadLast(const std::string& sIDQZ) noexcept { return load_last_of_series(sIDQZ); }

Long SalesIssue::GetLastId(std::string& LastId, const std::string& sIDQZ) noexcept {
  return last_of_series(LastId, sIDQZ);
}

Long SalesIssue::LoadNext(const std::string& sIDQZ) noexcept { return load_neighbour_in_series(true, sIDQZ); }
Long SalesIssue::LoadPreviou(const std::string& sIDQZ) noexcept { return load_neighbour_in_series(false, sIDQZ); }
Long SalesIssue::GetNewId(std::string& BID, const std::string& sIDQZ) noexcept { return propose_number(BID, sIDQZ); }

Long SalesIssue::GetNearId(const std::string& CurBillID, std::string& NearBillID, bool NextPreviousId,
                           const std::string& sIDQZ) noexcept {
  return neighbour_in_series(CurBillID, NearBillID, NextPreviousId, sIDQZ);
}

// The number and the prefix are joined in as they stand, so a wildcard in a prefix works as one.
void SalesIssue::find_last(std::string& last, std::string_view series) {
  last = aggregated_id(
      execute(sql("select max(Id) as Id from StockBill where type={} and id like '{raw}%'", *kind().code, series)));
}

void SalesIssue::find_near(const std::string& current, std::string& near, bool next, std::string_view series) {
  const Long type = *kind().code;
  near = aggregated_id(
      next ? execute(sql("select min(Id) as Id from StockBill where id > '{raw}' and id like '{raw}%'  and type={}",
                         current, series, type))
           : execute(sql("select max(Id) as Id from StockBill where Id < '{raw}' and id like '{raw}%'  and type={}",
                         current, series, type)));
}

void SalesIssue::audit_advance() { audit_voucher<clsAdvanceYSBill>(NowAdvanceBillID); }
void SalesIssue::undo_advance() { undo_voucher<clsAdvanceYSBill>(NowAdvanceBillID); }

}  // namespace brunvik
