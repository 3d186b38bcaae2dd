// Shipment and freight settlement.
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"

namespace brunvik::test {

namespace {

const std::string shipment_sought = "bill|select * from SendGoodsBill where Id=";

Frame shipment_frame() {
  Frame frame = frame_over("SendGoodsBill", "SendGoodsBillItems");
  const Step goods_added = ends_telling("AddSendGoodsBillItems():", "bill|insert into SendGoodsBillItems(");
  const Step bill_added = ends_telling("AddSendBillItems():", "bill|insert into SendBillItems(");
  frame.header_sought = ends_telling("SaveSendGoodsBill():", shipment_sought);
  frame.header_read = ends_telling("GetSendGoodsBill():", shipment_sought);
  frame.header_added = ends_telling("AddSendGoodsBill():", frame.header_added.begins);
  frame.header_updated = ends_telling("UpdateSendGoodsBill():", frame.header_updated.begins);
  frame.rows_read = {ends_telling("GetSendGoodsBillItems():", "bill|select * from SendGoodsBillItems  where BillId="),
                     ends_telling("GetSendBillItems():", "bill|select * from SendBillItems  where BillId=")};
  frame.rows_removed = {
      ends_telling("DeleteSendGoodsBillItems():", "bill|delete from SendGoodsBillItems where BillId="),
      ends_telling("DeleteSendBillItems():", "bill|delete from SendBillItems where BillId=")};
  frame.rows_added = {goods_added, goods_added, bill_added, bill_added};
  frame.last = ends_telling("GetLastId():", "bill|select Max(Id) as BillId from SendGoodsBill");
  frame.next = ends_telling("GetNearId():", "bill|select Min(Id) as Id from SendGoodsBill where id > ");
  frame.previous = ends_telling("GetNearId():", "bill|select Max(Id) as Id from SendGoodsBill where Id < ");
  return frame;
}

// The mark goes off a bill in every table where it may stand.
Steps mark_taken_off(const std::string& bill) {
  Steps steps;
  for (const char* update :
       {"StockBill set FHBJ=0", "StockBillItems set SendStutas=0", "RGStockBill set FHBJ=0",
        "RGStockBillItems set SendStutas=0", "GBorrowBill set FHBJ=0", "GBorrowItems set SendStutas=0"}) {
    steps.push_back(
        holding(quoted(bill), ends_telling("UpdateGoodsSendStutas(): ", "bill|update " + std::string(update))));
  }
  return steps;
}

// What an account was moved by is taken back; a journal that fails tells so, and the shipment goes on.
Steps journal_taken_back() {
  const std::string rest = "journal", tag = "DeleteZHJYXX():";
  return {goes_on(tag, "session|select * from ZHJYXX where DYDJH=", {rest}),
          named(rest, goes_on(tag, "session|update ZHXX set YE=YE - ", {rest})),
          named(rest, goes_on(tag, "session|delete from ZHJYXX where DYDJH="))};
}

const Rehearsed shipment([] {
  RehearsedDocument document{.class_name = "clsSendGoodsBill", .prefix = "PHF"};
  document.lay_bills("insert into SendGoodsBill(Id,Receiver,Status) values(", ",'王',2)");
  document.lay_rows("insert into SendGoodsBillItems(Billid,Rownum,Gid) values(", {",1,'G1')", ",2,'G2')"});
  // The second of its bills stays marked when the shipment goes.
  document.lay_rows("insert into SendBillItems(Billid,Bid,DYType,DJBJ) values(",
                    {",'XSC24030500001',5,0)", ",'XSC24030500002',5,1)"});
  document.books.push_back("insert into ZHJYXX(ID,ZHID,JYJE,JYLX,DYDJH) values('7','A1',30,-1," +
                           quoted(document.bill()) + ")");
  const Frame frame = shipment_frame();
  const std::string sources = "bill|select  * from SendBillItems where billid= ";
  document.verbs = with_frame(
      document.class_name, document.prefix, frame,
      {
          {"SaveAsDraft",
           {1},
           frame.rows_removed + journal_taken_back() +
               Steps{
                   ends_telling("UpdateAsDraftSendGoodsBill():", "bill|update SendGoodsBill set Status=1 where Id=")} +
               frame.rows_added},
          {"Delete",
           {},
           Steps{ends_telling("DeleteSendGoodsBillAndItems():", sources)} + mark_taken_off("XSC24030500001") +
               frame.rows_removed +
               Steps{ends_telling("DeleteSendGoodsBillAndItems():", "bill|delete from SendGoodsBill where Id=")}},
          {"UpdateItems",
           {},
           Steps{ends_telling("UpdateItems():", sources)} + mark_taken_off("XSC24030500001") +
               mark_taken_off("XSC24030500002")},
      });
  return document;
});

Step told(const std::string& worker, const std::string& begins) {
  return ends_telling(" " + worker + "(): ", "bill|" + begins);
}

const Rehearsed freight_settlement([] {
  RehearsedDocument document{.class_name = "clsSendGoodsVouchersbill", .prefix = "WLX"};
  document.lay_bills("insert into SendGoodsVouchersbill(Id,Ccompany,Status) values(", ",'K1',2)");
  document.lay_rows("insert into SendGoodsVouchersbillItems(BID,RowNum,RPableBID,Amount) values(",
                    {",1,'PHF24030500001',60)", ",2,'PHF24030500002',40)"});
  const std::string sought = "select * from SendGoodsVouchersbill where Id=";
  const Step row_added = told("AddSendGoodsVouchersbillItems", "insert into SendGoodsVouchersbillItems(");
  Frame frame = frame_over("SendGoodsVouchersbill", "SendGoodsVouchersbillItems");
  frame.header_read = told("GetSGVBill", sought);
  frame.header_added = told("AddSGVBill", "insert into SendGoodsVouchersbill(");
  frame.header_updated = told("UpdateSGVBill", "update SendGoodsVouchersbill set ManualId = ");
  frame.header_removed = told("DeleteSGVBillAndItems", "delete from SendGoodsVouchersbill where Id=");
  frame.rows_read = {told("GetSendGoodsVouchersbillItems", "select SendGoodsVouchersbillItems.*,SendGoodsBill.")};
  frame.rows_removed = {told("DeleteSendGoodsVouchersbillItems", "delete from SendGoodsVouchersbillItems where BID=")};
  frame.rows_added = {row_added, row_added};
  frame.last = told("GetLastId", "select Max(Id) as Id from SendGoodsVouchersbill");
  frame.next = told("GetNextId", "select Min(Id) as Id from SendGoodsVouchersbill where id > ");
  frame.previous = told("GetPreviousId", "select Max(Id) as Id from SendGoodsVouchersbill where id < ");
  Verbs own{
      {"GetNextId", {document.number(1), ""}, {frame.next}},
      {"GetPreviousId", {document.number(3), ""}, {frame.previous}},
      {"Audite", {"u2", "2024-03-05"}, {told("Audite", "Update SendGoodsVouchersbill set Auditor='u2' ")}},
      {"UndoAudite", {}, {told("UndoAudite", "Update SendGoodsVouchersbill set Auditor=null ")}},
  };
  for (const bool draft : {false, true}) {
    const std::string verb = draft ? "SaveAsDraft" : "Save";
    Steps looked_up{told(draft ? "SaveSGVBillForDraft" : "SaveSGVBill", sought)};
    // A setting that can't be read is told of, and the document is born audited.
    Step setting = goes_on("", "session|select * from BasicConfig where keyname='启用帐款审核'");
    setting.notice = "错误信息|GetKeyValue():";
    if (!draft) looked_up.push_back(setting);
    own = own + saves(verb, looked_up, frame, document.number(9));
  }
  document.verbs = with_frame(document.class_name, document.prefix, frame, std::move(own));
  return document;
});

}  // namespace

}  // namespace brunvik::test
