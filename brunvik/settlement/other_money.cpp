#include "brunvik/settlement/other_money.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/settlement/receipt_bill.h"

namespace brunvik {

const Members& OtherMoneyRow::table() {
  using C = OtherMoneyRow;
  static const Members table{
      property<&C::Billid>("Billid", "Billid"),    property<&C::Rownum>("Rownum", "Rownum"),
      property<&C::Itemid>("Itemid", "Itemid"),    property<&C::Itemname>("Itemname", "Itemname"),
      property<&C::Unit>("Unit", "Unit"),          property<&C::Qty>("Qty", "Qty"),
      property<&C::Price>("Price", "Price"),       property<&C::Amount>("Amount", "Amount"),
      property<&C::Remarks>("Remarks", "Remarks"),
  };
  return table;
}

const Members& OtherMoneyDocument::table() {
  using C = OtherMoneyDocument;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::Supplier>("Supplier", "CCompany"),
      property<&C::Manager>("Manager", "Manager"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "Audittime"),
      property<&C::Paidamount>("Paidamount", "Paidamount"),
      property<&C::Closeamount>("Closeamount", "Closeamount"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Invoicename>("Invoicename", "Invoicename"),
      property<&C::Invoicetype>("Invoicetype", "Invoicetype"),
      property<&C::Taxrate>("Taxrate", "Taxrate"),
      property<&C::Discounttype>("Discounttype", "Discounttype"),
      property<&C::Discountcard>("Discountcard", "Discountcard"),
      property<&C::Discountrate>("Discountrate", "Discountrate"),
      property<&C::Deliverymethod>("Deliverymethod", "Deliverymethod"),
      property<&C::Closedtag>("Closedtag", "Closedtag"),
      property<&C::Nowpaybillid>("Nowpaybillid", "Nowpaybillid"),
      property<&C::Referflag>("Referflag", "Referflag"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      property<&C::Lastupdatetime>("Lastupdatetime", "Lastupdatetime"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      saving_and_audit_by_status<C>(),
      walk<C>(),
  };
  return table;
}

DocumentForm OtherMoneyDocument::made_form() const {
  const std::vector<ColumnSource> sources{constant("Type", kind().code.value()), argument("Status")};
  return form_reading_back(
      {"select * from OthersIEBill where Id={}", "delete from OthersIEBill where Id={}",
       "select * from OthersIEBillItems where BillId={} order by rownum",
       "delete from OthersIEBillItems where BillId={}"},
      Insert(table(), sources,
             "insert into OthersIEBill(Id,ManualId,CCompany,Manager,Creator,CreateTime,Type,Status,"
             "[Auditor,Audittime, ]Paidamount,Closeamount,Amount,Invoicename,Invoicetype,Taxrate,Discounttype,"
             "Discountcard,Discountrate, Deliverymethod,Closedtag,Nowpaybillid,Referflag,Referbillid,"
             "Lastupdatetime,Summary,Remarks) values("),
      Update(table(), sources,
             "update OthersIEBill set ManualId = ,CCompany = ,Manager = ,Type = ,Status = ,Paidamount = ,"
             "Closeamount = ,Amount = ,Invoicename = ,Invoicetype = ,Taxrate = ,Discounttype = ,Discountcard = ,"
             "Discountrate = ,Deliverymethod = ,Closedtag = ,Nowpaybillid = ,Referflag = ,Referbillid = ,"
             "Lastupdatetime = ,[Auditor = ,Audittime = ,]Summary = ,Remarks =  where Id="),
      Insert(OtherMoneyRow::table(), {},
             "insert into OthersIEBillItems(Billid,Rownum,Itemid,Itemname,Unit,Qty,Price,Amount,Remarks) values("));
}

Long OtherMoneyDocument::status_to_save(Saving saving) const {
  if (saving == Saving::draft) return status::draft;
  return GetKeyFlag(config::audit_of_accounts) ? status::saved : status::audited;
}

const WorkerTags& OtherMoneyDocument::tags() const {
  static constexpr WorkerTags tags{.save_bill = " SaveOthersIEBill(): ",
                                   .save_draft = " SaveOthersIEBillForSketch(): ",
                                   .insert_header = " AddOthersIEBill(): ",
                                   .update_header = " UpdateOthersIEBill(): ",
                                   .read_rows = " GetOthersIEBillItems(): ",
                                   .remove_rows = " DeleteOthersIEBillItems(): ",
                                   .find_last = " GetLastId(): ",
                                   .find_next = " GetNearId(): ",
                                   .find_previous = " GetNearId(): "};
  return tags;
}

void OtherMoneyDocument::save_row(const PublicObject& row) {
  worker(" AddOthersInDbBillItems(): ", [&] { Document::save_row(row); });
}

Long OtherMoneyDocument::UpdateAudited() noexcept { return change_status(true); }
Long OtherMoneyDocument::CancelAudited() noexcept { return change_status(false); }

Long OtherMoneyDocument::change_status(bool audited) noexcept {
  return trap_telling(audited ? audit_tag() : undo_tag(), [&] {
    if (ID.empty()) throw Stop{result_without_id};
    const auto stored = execute(sql(form().statements.select_header, ID));
    if (stored.at_end() || (stored.value("Status").as_long() == status::audited) == audited) return;
    const Long to = audited ? status::audited : status::saved;
    execute(
        sql("update OthersIEBill set Status = {},Auditor = {},AuditTime = {} where Id={}", to, Auditor, Audittime, ID));
    const std::string voucher = stored.value("Nowpaybillid").joined_text();
    audited ? audit_money(voucher) : undo_money(voucher);
  });
}

void OtherReceivable::audit_money(const std::string& voucher) const { audit_voucher<clsReceiptBill>(voucher); }
void OtherReceivable::undo_money(const std::string& voucher) const { undo_voucher<clsReceiptBill>(voucher); }
void OtherPayable::audit_money(const std::string& voucher) const { audit_voucher<clsPayBill>(voucher); }
void OtherPayable::undo_money(const std::string& voucher) const { undo_voucher<clsPayBill>(voucher); }

}  // namespace brunvik
