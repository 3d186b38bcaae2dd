#include "brunvik/logistics/shipment.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/billframe/bill_number.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/settlement/ledger.h"

namespace brunvik {

namespace {

const Insert& insert_shipped_bill() {
  static const Insert insert(ShippedBillRow::table(), {},
                             "insert into SendBillItems(Billid,Bid,DYType,Closeamount,Paidamount,Creator,Createtime,"
                             "Auditor,Audittime,Remarks,DJBJ,SKLX) values(");
  return insert;
}

}  // namespace

const Members& clsSendGoodsBill::members() const {
  using C = clsSendGoodsBill;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      collection<&C::colSendBillItems>("colSendBillItems"),
      property<&C::YFZFZH>("YFZFZH", "YFZFZH").not_read(),
      property<&C::Jsbj>("Jsbj", "JSBJ").not_read(),
      property<&C::ID>("ID", "Id"),
      property<&C::Receiveunit>("Receiveunit", "Receiveunit"),
      property<&C::Receiver>("Receiver", "Receiver"),
      property<&C::Receiveaddress>("Receiveaddress", "Receiveaddress"),
      property<&C::Receivetel>("Receivetel", "Receivetel"),
      property<&C::Sendgoodsunit>("Sendgoodsunit", "Sendgoodsunit"),
      property<&C::Sendgoodser>("Sendgoodser", "Sendgoodser"),
      property<&C::Sendgoodstel>("Sendgoodstel", "Sendgoodstel"),
      property<&C::Logisticcompany>("Logisticcompany", "Logisticcompany"),
      property<&C::Logisticfare>("Logisticfare", "Logisticfare"),
      property<&C::Collecttag>("Collecttag", "Collecttag"),
      property<&C::Receiptcasher>("Receiptcasher", "Receiptcasher"),
      property<&C::Openingbank>("Openingbank", "Openingbank"),
      property<&C::Bankaccount>("Bankaccount", "Bankaccount"),
      property<&C::Receiptmoney>("Receiptmoney", "Receiptmoney"),
      property<&C::Sendgoodsdate>("Sendgoodsdate", "Sendgoodsdate"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::Operater>("Operater", "Operater"),
      property<&C::Operatedate>("Operatedate", "Operatedate"),
      property<&C::Status>("Status", "Status").required(),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft", in_out("Status")),
      verb<&C::Delete>("Delete"),
      verb<&C::UpdateItems>("UpdateItems"),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      last_by_id_and_neighbours<C>(),
      near_id<C>(),
  };
  return table;
}

// A save again leaves the maker, the settlement mark and the status as they are stored.
const DocumentForm& clsSendGoodsBill::form() const {
  static const DocumentForm form = [this] {
    return form_reading_back(
        {"select * from SendGoodsBill where Id={}", "delete from SendGoodsBill where Id={}",
         "select * from SendGoodsBillItems  where BillId={} order by rownum",
         "delete from SendGoodsBillItems where BillId={}"},
        Insert(members(), {},
               "insert into SendGoodsBill(Id,Receiveunit,Receiver,Receiveaddress,Receivetel,Sendgoodsunit,Sendgoodser,"
               "Sendgoodstel,Logisticcompany,Logisticfare,Collecttag,Receiptcasher,Openingbank,Bankaccount,"
               "Receiptmoney,Sendgoodsdate,Remarks,Operater,Operatedate,YFZFZH,JSBJ,Status) values("),
        Update(members(), {},
               "update SendGoodsBill set Id=,Receiveunit=,Receiver=,Receiveaddress=,Receivetel=,Sendgoodsunit=,"
               "Sendgoodser=,Sendgoodstel=,Logisticcompany=,Logisticfare=,Collecttag=,Receiptcasher=,Openingbank=,"
               "Bankaccount=,Receiptmoney=,Sendgoodsdate=,Remarks=,YFZFZH= where Id="),
        Insert(ShipmentRow::table(), {},
               "insert into SendGoodsBillItems(Billid,Rownum,Gstutas,Businessclass,Gid,Gbarcode,Gname,Class,"
               "Model1,Model2,Unit,Qty,Price,Amount,Supplier,Receiver,Outfactorydate,Equipcode,Buydate,"
               "Accessory,Remarks,Bid,BType,BillDate) values("));
  }();
  return form;
}

const WorkerTags& clsSendGoodsBill::tags() const {
  static constexpr WorkerTags tags{.save_bill = "SaveSendGoodsBill():",
                                   .save_draft = "SaveSendGoodsBill():",
                                   .insert_header = "AddSendGoodsBill():",
                                   .update_header = "UpdateSendGoodsBill():",
                                   .read_header = "GetSendGoodsBill():",
                                   .read_rows = "GetSendGoodsBillItems():",
                                   .remove_rows = "DeleteSendGoodsBillItems():"};
  return tags;
}

void clsSendGoodsBill::save_rows() {
  const auto add = [&](std::string_view tag, RowCollection& rows, std::string_view row_tag, const Insert& insert) {
    worker(tag, [&] {
      for_each_row(rows, [&](const PublicObject& row) { worker(row_tag, [&] { execute(insert.text(row)); }); });
    });
  };
  add("SaveSendGoodsBillItems():", colBillItems, "AddSendGoodsBillItems():", form().insert_row);
  add("SaveSendBillItems():", colSendBillItems, "AddSendBillItems():", insert_shipped_bill());
}

Value clsSendGoodsBill::SaveAsDraft(Long to) noexcept {
  return trap([&] {
    worker("SaveAsDraftSendGoodsBill():", [&] {
      if (ID.empty()) throw Stop{result_without_id};
      worker("UpdateAsDraftSendGoodsBill():", [&] {
        remove_rows();
        // A journal that can't be undone has told so, and the shipment is stepped back all the same.
        DeleteZHJYXX(ID);
        execute(sql("update SendGoodsBill set Status={} where Id={}", to, ID));
      });
    });
    save_rows();
  });
}

void clsSendGoodsBill::read_rows() {
  TellingDocument::read_rows();
  worker("GetSendBillItems():", [&] {
    brunvik::read_rows<ShippedBillRow>(
        colSendBillItems, execute(sql("select * from SendBillItems  where BillId={} order by bid", ID)),
        insert_shipped_bill().members_written(), [](ShippedBillRow&, const ado::Recordset&) {});
  });
}

void clsSendGoodsBill::remove_rows() {
  TellingDocument::remove_rows();
  worker("DeleteSendBillItems():", [&] { execute(sql("delete from SendBillItems where BillId={}", ID)); });
}

Long clsSendGoodsBill::Delete() noexcept {
  return trap("DeleteSendGoodsBillAndItems():", [&] {
    take_marks_off(Marks::of_free_bills);
    remove_rows();
    remove_header();
  });
}

Long clsSendGoodsBill::UpdateItems() noexcept {
  return trap("UpdateItems():", [&] { take_marks_off(Marks::all); });
}

void clsSendGoodsBill::take_marks_off(Marks marks) const {
  auto bills = execute(sql("select  * from SendBillItems where billid= {}", ID));
  for (; !bills.at_end(); bills.MoveNext()) {
    const Value& held = bills.value("Djbj");
    if (marks == Marks::of_free_bills && !held.is_null() && held.as_long() > 0) continue;
    take_mark_off(bills.value("BID").joined_text());
  }
}

void clsSendGoodsBill::take_mark_off(const std::string& bill) const {
  worker("UpdateGoodsSendStutas(): ", [&] {
    execute(sql("update StockBill set FHBJ=0 where Id={}", bill));
    execute(sql("update StockBillItems set SendStutas=0 where BillId={}", bill));
    execute(sql("update RGStockBill set FHBJ=0 where Id={}", bill));
    execute(sql("update RGStockBillItems set SendStutas=0 where BillId={}", bill));
    execute(sql("update GBorrowBill set FHBJ=0 where Id={}", bill));
    execute(sql("update GBorrowItems set SendStutas=0 where BillId={}", bill));
  });
}

void clsSendGoodsBill::find_last(std::string& last, std::string_view) {
  worker("GetLastId():",
         [&] { last = aggregated_number(execute("select Max(Id) as BillId from SendGoodsBill"), "BillId"); });
}

void clsSendGoodsBill::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  worker("GetNearId():", [&] {
    near = aggregated_id(next ? execute(sql("select Min(Id) as Id from SendGoodsBill where id > {like}", current))
                              : execute(sql("select Max(Id) as Id from SendGoodsBill where Id < {like}", current)));
  });
}

Long clsSendGoodsBill::GetNewId(std::string& BID) noexcept {
  return trap("GetNewId():", [&] { BID = proposed_number(kind().header_table(), kind().prefix); });
}

}  // namespace brunvik
