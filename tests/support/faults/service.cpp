// After-service tickets. All three stand in one table, so each has numbers of its own beginning here.
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"

namespace brunvik::test {

namespace {

Step told(const std::string& verb, const std::string& begins) {
  return ends_telling(" " + verb + "(): ", "bill|" + begins);
}

// Three tickets at a stage, with these columns beside.
void lay_tickets(RehearsedDocument& document, int stage, const std::string& columns, const std::string& values) {
  document.lay_bills("insert into AfterServiceBill(BillId,ProcessFlag" + columns + ") values(",
                     "," + std::to_string(stage) + values + ")");
}

// Reading and walking; `walked` is how a search for a number begins behind "where ".
Verbs walks(const RehearsedDocument& document, const std::string& walked, const std::string& in_front) {
  const std::string from = "(BillId) as BillId from AfterServiceBill where ";
  const Step read = told("LoadById", "select * from AfterServiceBill where BillId=");
  const Step first = told("GetFirstId", "select Min" + from + walked);
  const Step last = told("GetLastId", "select Max" + from + walked);
  const Step next = told("GetNextId", "select Min" + from + in_front + "BillId > ");
  const Step previous = told("GetPreviousId", "select Max" + from + in_front + "BillId < ");
  return {
      {"LoadById", {document.bill()}, {read}},
      {"LoadLast", {}, {last, read}},
      {"LoadNext", {}, {next, read}},
      {"LoadPreviou", {}, {previous, read}},
      {"GetPreviousId", {document.bill(), ""}, {previous}},
      {"GetFirstId", {""}, {first}},
      {"GetLastId", {""}, {last}},
      {"GetNextId", {document.bill(), ""}, {next}},
  };
}

// A request is looked up, then added or changed.
Verbs requests(const RehearsedDocument& document, const std::string& verb) {
  const Step sought = told("SaveRequest", "select BillId from AfterServiceBill where BillId= ");
  return {
      {.verb = verb,
       .steps = {sought, told("SaveRequest", "insert into AfterServiceBill(")},
       .remark = "for_the_first_time",
       .number = document.number(9)},
      {.verb = verb,
       .steps = {sought, told("SaveRequest", "update AfterServiceBill set BillId = ")},
       .remark = "again"},
  };
}

const Verb number_proposed{"GetNewId", {""}, {goes_on("Get_BillMaxId():", "session|select max(BillId)  from ")}};
const Step removed = told("Delete", "delete from AfterServiceBill  where BillId=");

void add(RehearsedDocument& document, const Verbs& verbs) {
  document.verbs.insert(document.verbs.end(), verbs.begin(), verbs.end());
}

const Rehearsed staged_ticket([] {
  RehearsedDocument document{.class_name = "clsAfterServiceBillInfoOLD", .prefix = "SFD"};
  lay_tickets(document, 2, ",KeHuBH,PayType,PaidAmount", ",'C1','A1',30");
  const Step completed = told("Complete", "update AfterServiceBill set KeHuBH = ");
  const std::string balance = "balance";
  add(document, requests(document, "SaveRequest"));
  add(document,
      {
          {"Delete", {}, {removed}},
          {"SetBillProccess",
           {4},
           {told("SetBillProccess", "Update AfterServiceBill set ProcessFlag=4 where BillId=")}},
          {"Forecast", {}, {told("Forecast", "update AfterServiceBill set KeHuBH = ")}},
          {"Complete",
           {},
           {completed, goes_on("查找用户名称时出错，详细信息：", "session|select * from ContactsCompany where id="),
            goes_on("Get_UniqV():", "session|select max(convert(int,id)) as ls_bm from ZHJYXX"),
            goes_on("CreateZHJYXX_LX():", "session|insert into ZHJYXX(", {balance}),
            named(balance, goes_on("CreateZHJYXX_LX():", "session|update ZHXX set YE=YE + 30 "))}},
          {"Feedback", {}, {told("Feedback", "update AfterServiceBill set ProcessFlag = 4,")}},
          number_proposed,
      });
  add(document, walks(document, "type is null and ProcessFlag>=2", "type is null and "));
  return document;
});

const Rehearsed short_ticket([] {
  RehearsedDocument document{.class_name = "clsAfterServiceBillInfo", .prefix = "SFE"};
  lay_tickets(document, 1, ",Type,BorrowBill", ",34,'GJC24030500001'");
  add(document, requests(document, "SaveRequest"));
  add(document, requests(document, "SaveAfterServiceBillInfo"));
  add(document,
      {
          {"UpdateAfterServiceBillInfoAsDraft",
           {1},
           {told("UpdateAfterServiceBillInfoAsDraft", "update AfterServiceBill set Status=1 where BillId = ")}},
          {"Delete", {}, {told("Delete", "delete from GBorrowBill where Id="), removed}},
          number_proposed,
      });
  add(document, walks(document, "Type=34", ""));
  return document;
});

const Rehearsed closing([] {
  RehearsedDocument document{.class_name = "clsAfterServiceWGBill", .prefix = "SFF"};
  lay_tickets(document, 3, ",Type", ",34");
  add(document, {
                    {"Delete", {}, {removed}},
                    {"Save",
                     {},
                     {told("Save", "select BillId from AfterServiceBill where BillId="),
                      told("UpdateBill", "update AfterServiceBill set KeHuBH = ")}},
                });
  add(document, walks(document, "Type=34 and ProcessFlag=3", ""));
  return document;
});

}  // namespace

}  // namespace brunvik::test
