#include "brunvik/purchasing/goods_arrival.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/purchasing/purchase_receipt.h"

namespace brunvik {

const Members& ArrivalRow::table() {
  using C = ArrivalRow;
  static const Members table{
      property<&C::AdjustId>("AdjustId", "AdjustId"), property<&C::StockId>("StockId", "StockId"),
      property<&C::RowNum>("RowNum", "RowNum"),       property<&C::Meansofpayment>("Meansofpayment", "Meansofpayment"),
      property<&C::Amount>("Amount", "Amount"),       property<&C::StockRowNum>("StockRowNum", "StockRowNum"),
  };
  return table;
}

const Members& ClsAdjustInBill::members() const {
  using C = ClsAdjustInBill;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      collection<&C::colPurchaseInItems>("colPurchaseInItems"),
      collection<&C::colPayBillInItems>("colPayBillInItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::Manager>("Manager", "Manager"),
      property<&C::Salesman>("Salesman", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Deliverymethod>("Deliverymethod", "Deliverymethod"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      texts_and_saving<C>(),
      verb<&C::SaveAdjustInBillItems>("SaveAdjustInBillItems", in("bStatues")),
      verb<&C::DeleteAdjustInBillItems>("DeleteAdjustInBillItems", in("clsAdjustIn")),
      number_last_and_neighbours<C>(),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      near_id<C>(),
      verb<&C::Audit>("Audit"),
      verb<&C::UndoAudit>("UndoAudit"),
  };
  return table;
}

const DocumentForm& ClsAdjustInBill::form() const {
  static const DocumentForm form = [this] {
    return form_reading_back(
        {"select * from AdjustInBill where Id={}", "delete from AdjustInBill where Id={}",
         "select * from AdjustStockBill where AdjustId={} order by Rownum ",
         "delete from AdjustStockBill where StockId={}"},
        Insert(members(), {argument("Status")},
               "insert into AdjustInBill(Id,ManualId,Manager,Salesman,Creator,CreateTime,Status,Deliverymethod,"
               "[Auditor,AuditTime,]ReferFlag,Referbillid,Summary,Remarks) values("),
        Update(members(), {argument("Status")},
               "update AdjustInBill set ManualId = ,Manager = ,Salesman = ,Status = ,Deliverymethod = ,"
               "[Auditor = ,AuditTime = ,]ReferFlag = ,Referbillid = ,Summary = ,Remarks =  where Id="),
        Insert(ArrivalRow::table(), {},
               "insert into AdjustStockBill(AdjustId,StockId,RowNum,Meansofpayment,Amount,StockRowNum) values("));
  }();
  return form;
}

void ClsAdjustInBill::find_last(std::string& last, std::string_view) {
  last = aggregated_id(execute("select TOP 1 * from AdjustInBill order by Id desc"));
}

Long ClsAdjustInBill::SaveAdjustInBillItems(bool) noexcept {
  return trap([&] { save_rows(); });
}

Long ClsAdjustInBill::DeleteAdjustInBillItems(const ArrivalRow& clsAdjustIn) noexcept {
  return trap([&] { execute(sql(form().statements.delete_rows, clsAdjustIn.StockId)); });
}

template <class Act>
Long ClsAdjustInBill::mark_with_receipts(Long status, Act&& act) noexcept {
  return trap([&] {
    if (ID.empty()) return;
    execute(
        sql("update AdjustInBill set Status={},Auditor={},AuditTime={} where id={}", status, Auditor, Audittime, ID));
    auto receipts = execute(sql("select distinct Stockid from AdjustStockBill where AdjustId={}", ID));
    for (; !receipts.at_end(); receipts.MoveNext()) {
      clsPurchaseInBill receipt;
      receipt.ADOConn = ADOConn;
      // A receipt that can't be read is acted on by its number alone.
      receipt.LoadById(receipts.value("Stockid").joined_text());
      receipt.Status = status;
      receipt.Auditor = Auditor;
      receipt.Audittime = Audittime;
      stop_unless_done(act(receipt));
    }
  });
}

Long ClsAdjustInBill::Audit() noexcept {
  return mark_with_receipts(status::audited, [](clsPurchaseInBill& receipt) { return receipt.Audit(true); });
}

Long ClsAdjustInBill::UndoAudit() noexcept {
  return mark_with_receipts(status::saved, [](clsPurchaseInBill& receipt) { return receipt.UndoAudit(true); });
}

}  // namespace brunvik
