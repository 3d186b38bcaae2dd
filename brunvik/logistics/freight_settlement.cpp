#include "brunvik/logistics/freight_settlement.h"

#include <utility>

#include "brunvik/foundation/error_trap.h"
#include "brunvik/settlement/voucher_members.h"
#include "brunvik/settlement/voucher_status.h"

namespace brunvik {

const Members& FreightRow::table() {
  using C = FreightRow;
  static const Members table{
      property<&C::BID>("BID", "BID"),
      property<&C::Rownum>("Rownum", "RowNum"),
      property<&C::Rpablebid>("Rpablebid", "RPableBID"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Paidamount>("Paidamount", "Paidamount"),
      property<&C::Ccompany>("Ccompany", "Ccompany"),
      property<&C::Fhtime>("Fhtime", "Fhtime"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::ReceptId>("ReceptId").read_from("ReceptId"),
      property<&C::PayId>("PayId").read_from("PayId"),
      property<&C::Sendgoodstel>("Sendgoodstel").read_from("SendGoodsTel"),
  };
  return table;
}

const Members& clsSendGoodsVouchersbill::members() const {
  using C = clsSendGoodsVouchersbill;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colSGVItems>("colSGVItems"),
      voucher_heading<C, &C::Manager>("Manager"),
      voucher_marks<C>(),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::Sxfbl>("Sxfbl", "Sxfbl"),
      property<&C::Sxfzd>("Sxfzd", "Sxfzd"),
      property<&C::Dszh>("Dszh", "Dszh"),
      advance_verbs<C>(),
  };
  return table;
}

// The rows come in the order of the senders' telephones. A shipment that is gone leaves its row without one.
const DocumentForm& clsSendGoodsVouchersbill::form() const {
  static const DocumentForm form = [this] {
    RowMembers read;
    for (const Member& member : FreightRow::table()) read.push_back(&member);
    return DocumentForm{
        {"select * from SendGoodsVouchersbill where Id={}", "delete from SendGoodsVouchersbill where Id={}",
         "select SendGoodsVouchersbillItems.*,SendGoodsBill.SendGoodsTel from SendGoodsVouchersbillItems left join "
         "SendGoodsBill on SendGoodsBill.id  = SendGoodsVouchersbillItems.Rpablebid where bid={} order by "
         "SendGoodsBill.SendGoodsTel",
         "delete from SendGoodsVouchersbillItems where BID={}"},
        Insert(members(), {argument("Status")},
               "insert into SendGoodsVouchersbill(Id,Manualid,Manager,Ccompany,Paidamount,Amount,Status,Creator,"
               "Createtime,[Auditor,Audittime,]Sxfbl,Sxfzd,Dszh,Remarks) values("),
        Update(members(), {argument("Status")},
               "update SendGoodsVouchersbill set ManualId = ,Manager = ,Ccompany = ,Paidamount = ,Amount = ,Status = ,"
               "[Auditor = ,AuditTime = ,]Remarks =  where Id="),
        Insert(FreightRow::table(), {},
               "insert into SendGoodsVouchersbillItems(BID,RowNum,RPableBID,Amount,Paidamount,Ccompany,Fhtime,"
               "Remarks) values("),
        std::move(read)};
  }();
  return form;
}

Long clsSendGoodsVouchersbill::status_to_save(Saving saving) const {
  return saving == Saving::draft ? status::draft : status_of_saved_voucher();
}

const WorkerTags& clsSendGoodsVouchersbill::tags() const {
  static constexpr WorkerTags tags{.save_bill = " SaveSGVBill(): ",
                                   .save_draft = " SaveSGVBillForDraft(): ",
                                   .insert_header = " AddSGVBill(): ",
                                   .update_header = " UpdateSGVBill(): ",
                                   .read_header = " GetSGVBill(): ",
                                   .read_rows = " GetSendGoodsVouchersbillItems(): ",
                                   .remove_rows = " DeleteSendGoodsVouchersbillItems(): ",
                                   .remove_header = " DeleteSGVBillAndItems(): "};
  return tags;
}

void clsSendGoodsVouchersbill::save_rows() {
  worker(" SaveSendGoodsVouchersbillItems(): ", [&] {
    Integer position = 0;
    for_each_row(colSGVItems, [&](const PublicObject& row) {
      FreightRow written = static_cast<const FreightRow&>(row);
      written.BID = ID;
      written.Rownum = ++position;
      worker(" AddSendGoodsVouchersbillItems(): ", [&] { save_row(written); });
    });
  });
}

void clsSendGoodsVouchersbill::read_rows() {
  colSGVItems.clear();
  TellingDocument::read_rows();
}

void clsSendGoodsVouchersbill::find_last(std::string& last, std::string_view) {
  worker(" GetLastId(): ", [&] { last = aggregated_id(execute("select Max(Id) as Id from SendGoodsVouchersbill")); });
}

void clsSendGoodsVouchersbill::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  worker(next ? " GetNextId(): " : " GetPreviousId(): ", [&] {
    near = aggregated_id(
        next ? execute(sql("select Min(Id) as Id from SendGoodsVouchersbill where id > {like}", current))
             : execute(sql("select Max(Id) as Id from SendGoodsVouchersbill where id < {like}", current)));
  });
}

Long clsSendGoodsVouchersbill::Audite(const std::string& auditor, const std::string& audit_time) noexcept {
  return trap(" Audite(): ", [&] {
    execute(sql("Update SendGoodsVouchersbill set Auditor={} ,AuditTime={},Status={}  where id={}", auditor, audit_time,
                status::audited, ID));
  });
}

Long clsSendGoodsVouchersbill::UndoAudite() noexcept {
  return trap(" UndoAudite(): ", [&] {
    execute(
        sql("Update SendGoodsVouchersbill set Auditor=null ,AuditTime=null,Status={}  where id={}", status::saved, ID));
  });
}

}  // namespace brunvik
