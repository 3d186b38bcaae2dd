#include "brunvik/purchasing/purchase_receipt.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/settlement/advance.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/stock/zero_cost_issues.h"

namespace brunvik {

namespace {

// A row without a number counts as the first.
void number_unnumbered_row(PublicObject& read, const ado::Recordset& set) {
  auto& row = static_cast<StockRow&>(read);
  if (row.Rownum == 0 && set.value("RowNum").is_null()) row.Rownum = 1;
}

void read_arrival(PublicObject& row, const ado::Recordset& set) {
  number_unnumbered_row(row, set);
  for (const char* name : {"xfmount", "MeansOfPayment"}) {
    const Member& member = StockRow::table().named(name);
    member.read(row, set.value(member.read_column()));
  }
}

}  // namespace

// The members of both classes; an opening balance has no advance.
Members PurchaseReceipt::receipt_members(const Kind& kind) {
  using C = PurchaseReceipt;
  const bool advance = !kind.opening;
  return Members{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::CreateFlag>("CreateFlag", "CreateFlag"),
      property<&C::Nowpaybillid>("Nowpaybillid", "Nowpaybillid"),
      only_if(advance, property<&C::NowAdvanceBillID>("NowAdvanceBillID", "NowAdvanceBillID")),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::Vendor>("Vendor", "Supplier"),
      property<&C::RkrId>("RkrId", "RManager"),
      property<&C::Salesman>("Salesman", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      computed<&C::Inoutflag>("Inoutflag", "InOutFlag"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      only_if(advance, property<&C::AdvanceAmount>("AdvanceAmount", "AdvanceAmount")),
      property<&C::Closeamount>("Closeamount", "CloseAmount"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::BillCost>("BillCost", "BillCost"),
      computed<&C::Closedtag>("Closedtag", "ClosedTag"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      texts_and_saving<C>(),
      number_last_and_neighbours<C>(),
      verb<&C::LoadById>("LoadById", in_out("BID"), optional(in("lRowNum"), Long{-1}), optional(in("bDHBJ"), false)),
      near_id<C>(),
      verb<&C::Audit>("Audit", optional(in_out("bJKC"), false)),
      verb<&C::UndoAudit>("UndoAudit", optional(in_out("bJKC"), false)),
  };
}

DocumentForm PurchaseReceipt::made_form() const {
  return stock_form(
      kind(), members(), WarehouseColumn::Receiver,
      "insert into StockBill(Id,ManualId,Supplier,RManager,Salesman,Creator,CreateTime,Type,InOutFlag,Status,"
      "[Auditor,AuditTime,]PaidAmount,<AdvanceAmount,>CloseAmount,Amount,ClosedTag,ReferFlag,Referbillid,"
      "Nowpaybillid,<NowAdvanceBillID,>Summary,Remarks,CreateFlag) values(",
      "update stockbill set ManualId = ,Supplier = ,RManager = ,Salesman = ,Type = ,InOutFlag = ,Status = ,"
      "[Auditor = ,AuditTime = ,]PaidAmount = ,<AdvanceAmount = ,>CloseAmount = ,Amount = ,ClosedTag = ,"
      "ReferFlag = ,Referbillid = ,Nowpaybillid = ,<NowAdvanceBillID = ,>Summary = ,Remarks = ,CreateFlag = "
      " where Id=",
      "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,"
      "qty,ActualQty,price,Amount,Cost,Receiver,Equipcode,remarks,Supplier,GoodStutas) values(",
      {from("ActualQty", "Qty"), constant("GoodStutas", stock_status::sound)});
}

const Members& clsPurchaseInBill::members() const {
  static const Members table = receipt_members(kind());
  return table;
}

const Members& clsPurchaseInBjkcBill::members() const {
  static const Members table = receipt_members(kind());
  return table;
}

Long PurchaseReceipt::LoadById(const std::string& BID, Long lRowNum, bool bDHBJ) noexcept {
  return trap([&] {
    ID = BID;
    read_header();
    if (!ID.empty()) read_rows_of(lRowNum, bDHBJ);
  });
}

void PurchaseReceipt::read_rows_of(Long row_number, bool with_arrivals) {
  constexpr Long all_rows = -1;
  if (!with_arrivals) {
    if (row_number == all_rows) return read_rows();
    return take_rows(execute(sql("select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
                                 "stockbillitems.Receiver = Warehouse.id where stockbillitems.RowNum={} and "
                                 "stockbillitems.BillId={} order by stockbillitems.rownum",
                                 row_number, ID)),
                     number_unnumbered_row);
  }
  std::string statement =
      "select StockBillItems.*,warehouse.WName,AdjustStockBill.MeansOfPayment,AdjustStockBill.Amount as XFMount"
      " from (StockBillItems left join Warehouse "
      " on stockbillitems.Receiver = Warehouse.id) left join AdjustStockBill on "
      " (StockBillItems.BillID=AdjustStockBill.StockID and StockBillItems.RowNum=AdjustStockBill.StockRowNum)";
  statement += row_number == all_rows ? sql("where stockbillitems.BillId={} order by stockbillitems.StockRowNum", ID)
                                      : sql("where AdjustStockBill.StockRowNum={} and stockbillitems.BillId={} "
                                            "order by AdjustStockBill.StockRowNum",
                                            row_number, ID);
  take_rows(execute(statement), read_arrival);
}

void PurchaseReceipt::read_receipt_rows(Collection<StockRow>& rows, const ado::ConnectionReference& connection,
                                        const std::string& number) {
  const clsPurchaseInBill receipt;
  const DocumentForm& form = static_cast<const PurchaseReceipt&>(receipt).form();
  brunvik::read_rows<StockRow>(rows,
                               ado::execute(connection, sql(form.statements.select_rows, number), ado::Road::bill),
                               form.row_members_read, number_unnumbered_row);
}

Document::FinishRow PurchaseReceipt::finish_row() const { return number_unnumbered_row; }

Long PurchaseReceipt::Audit(bool bJKC) noexcept {
  return audit_with<clsPayBill>([&] {
    audit_voucher<clsAdvanceBill>(NowAdvanceBillID);
    read_rows();
    cost_and_post(bJKC ? Stock::moves : Stock::stays, [](const StockRow& row) {
      return cost_at_average(AuditUpdateAverageCost(row.Gid, row.Unit, row.Class, row.Model1, row.Model2, row.Qty,
                                                    row.price, no_cost_delta),
                             row);
    });
    BillCost = write_bill_cost();
  });
}

void PurchaseReceipt::row_posted(const StockRow& row) {
  update_zero_cost_issues(ADOConn, row.Gid, [&](const std::string& statement) { execute(statement); });
}

// On the session's road, in upper case, and the auditor is cleared where the other trade documents write it.
void PurchaseReceipt::mark_undone() {
  std::string mark = sql("update stockbill set Status={},Auditor='',AuditTime='' where id={}", status::saved, ID);
  ExecuteNonQuerySql(mark);
}

Long PurchaseReceipt::UndoAudit(bool bJKC) noexcept {
  return undo_with<clsPayBill>([&] {
    undo_voucher<clsAdvanceBill>(NowAdvanceBillID);
    cost_rows([](const StockRow& row) {
      UndoAuditUpdateAverageCost(row.Gid, row.Unit, row.Class, row.Model1, row.Model2, row.Qty, row.price,
                                 no_cost_delta);
      return Money();
    });
    BillCost = write_bill_cost();
    if (!bJKC) return;
    const StockPoster& stock = poster();
    // A stock balance that can't be taken back doesn't hold up the undo.
    trap([&] { stock.Undo(operation::StockIn, ID); });
  });
}

}  // namespace brunvik
