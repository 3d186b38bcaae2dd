#include "tests/support/faults/voucher.h"

#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

std::string settled_read_tag(const VoucherWords& words) { return " Get" + words.settled + "(): "; }

Steps voucher_read(const VoucherWords& words) {
  Steps steps{ends_telling(words.read_tag, "bill|select * from " + words.header + " where Id=")};
  if (!words.money.empty()) steps.push_back(ends_telling(" GetRPBItems(): ", "bill|select * from RPBItems where bid="));
  steps.push_back(ends_telling(settled_read_tag(words), "bill|select * from " + words.settled + " where bid="));
  steps.push_back(ends_telling(settled_read_tag(words), "bill|Select stockbill.amount as billamount,"));
  steps.push_back(ends_telling(settled_read_tag(words), "bill|Select OthersIEBill.amount as billamount,"));
  return steps;
}

Steps voucher_rows_removed(const VoucherWords& words) {
  Steps steps;
  for (const std::string& table : {words.money, words.settled}) {
    if (!table.empty())
      steps.push_back(ends_telling(" Delete" + table + "(): ", "bill|delete from " + table + " where BID="));
  }
  return steps;
}

Steps voucher_rows_added(const VoucherWords& words) {
  Steps steps;
  for (const std::string& table : {words.money, words.settled}) {
    if (table.empty()) continue;
    // A receipt removes the old rows here, on the session's road, in upper case.
    const std::string upper = table == "RPBItems" ? "RPBITEMS" : "RPBRPITEMS";
    if (words.is_receipt) steps.push_back(goes_on("ExecuteSql():", "session|DELETE FROM " + upper + " WHERE BID= "));
    for (int row = 0; row < 2; ++row)
      steps.push_back(ends_telling(" Add" + table + "(): ", "bill|insert into " + table + "("));
  }
  return steps;
}

Steps voucher_saved(const VoucherWords& words, bool draft, bool stored) {
  Steps steps{
      ends_telling(draft ? words.save_draft_tag : words.save_tag, "bill|select * from " + words.header + " where Id=")};
  if (!draft) {
    Step setting = goes_on("", "session|select * from BasicConfig where keyname='启用帐款审核'");
    setting.notice = "错误信息|GetKeyValue():";
    steps.push_back(setting);
  }
  if (!stored) {
    steps.push_back(ends_telling(" AddPayBill(): ", "bill|insert into " + words.header + "("));
  } else {
    if (!words.is_receipt) steps = steps + voucher_rows_removed(words);
    steps.push_back(ends_telling(" UpdatePayBill(): ", "bill|update " + words.header + " set "));
  }
  return steps + voucher_rows_added(words);
}

Steps voucher_settled(const VoucherWords& words, const std::string& verb) {
  const std::string tag = " " + verb + "(): ";
  const std::string sign = verb == "Audite" ? "+" : "-";
  Steps steps{ends_telling(tag, "bill|Update " + words.header + " set Auditor=")};
  for (const char* table : {"stockbill", "OthersIEBill"}) {
    const std::string update = "bill|update " + std::string(table) + " set ";
    steps.push_back(ends_telling(tag, update + "paidAmount= paidAmount " + sign));
    steps.push_back(ends_telling(tag, update + "ClosedTag= "));
  }
  return steps;
}

void lay_vouchers(RehearsedDocument& document, const VoucherWords& words) {
  const Long type = automation::class_named(document.class_name).kind->code.value();
  document.lay_bills("insert into " + words.header + "(Id,Type,Status,Paidamount,Amount,Nowpay) values(",
                     "," + std::to_string(type) + ",2,100,100,0)");
  if (!words.money.empty()) {
    document.lay_rows("insert into " + words.money + "(BID,RowNum,MeansOfPayment,Amount) values(",
                      {",1,1,60)", ",2,2,40)"});
  }
  document.lay_rows("insert into " + words.settled + "(BID,RowNum,RPableBID,RPableBType,Amount) values(",
                    {",1,'JHR24030500001',2,60)", ",2,'QTS24030500001',17,40)"});
}

Verbs voucher_verbs(const RehearsedDocument& document, const VoucherWords& words) {
  const std::string second = document.bill(), unknown = document.number(9);
  Verbs verbs;
  const std::string aggregate = "(Id) as Id from " + words.header + " where ";
  const Step last = ends_telling(" GetLastId(): ", "bill|select Max" + aggregate + "type=");
  const Step next = ends_telling(" GetNextId(): ", "bill|select Min" + aggregate + "id > ");
  const Step previous = ends_telling(" GetPreviousId(): ", "bill|select Max" + aggregate + "id < ");
  // The neighbours of the second voucher have no rows.
  const Steps neighbour_read = [&] {
    Steps steps = voucher_read(words);
    steps.resize(steps.size() - 2);
    return steps;
  }();

  for (const bool draft : {false, true}) {
    const char* verb = draft ? "SaveAsDraft" : "Save";
    verbs.push_back(
        {.verb = verb, .steps = voucher_saved(words, draft, false), .remark = "for_the_first_time", .number = unknown});
    verbs.push_back({.verb = verb, .steps = voucher_saved(words, draft, true), .remark = "again"});
  }
  verbs.push_back({"LoadById", {second}, voucher_read(words)});
  verbs.push_back(
      {"Delete",
       {},
       voucher_rows_removed(words) +
           Steps{ends_telling(" DeletePayBillAndItems(): ", "bill|delete from " + words.header + " where Id=")}});
  verbs.push_back({"LoadLast", {}, Steps{last} + neighbour_read});
  verbs.push_back({"LoadNext", {}, Steps{next} + neighbour_read});
  verbs.push_back({"LoadPreviou", {}, Steps{previous} + neighbour_read});
  verbs.push_back({"GetLastId", {""}, {last}});
  verbs.push_back({"GetNextId", {second, ""}, {next}});
  verbs.push_back({"GetPreviousId", {second, ""}, {previous}});
  verbs.push_back({"GetNewId", {""}, {next_number()}});
  verbs.push_back({"Audite", {"u9", "2024-03-05 10:00:00"}, voucher_settled(words, "Audite")});
  verbs.push_back({"UndoAudite", {}, voucher_settled(words, "UndoAudite")});
  return verbs;
}

}  // namespace

VoucherWords payment_words() {
  return {"RPVouchers", "RPBItems", "RPBRPItems", " GetPayBill(): ", " SavePayBill(): ", " SavePayBillForDraft(): "};
}

VoucherWords receipt_words() {
  return {
      "RPVouchers", "RPBItems", "RPBRPItems", " GetReceipt(): ", " SaveReceipt(): ", " SaveReceiptIntoDraft(): ", true};
}

VoucherWords advance_words() {
  return {"AdvanceBill", "", "AdvanceItems", " GetPayBill(): ", " SavePayBill(): ", " SavePayBillForDraft(): "};
}

Steps beside(const VoucherWords& words, const std::string& verb) {
  const std::string own = words.settled;  // one voucher and one advance at most
  Steps reading = voucher_read(words);
  Steps settling = voucher_settled(words, verb);
  const std::size_t opens = reading.size() - 2;
  for (std::size_t place = 0; place < reading.size(); ++place) {
    Step& step = reading[place];
    step.ends = false;
    step.result = 0;
    step.name = own + (place >= opens ? " open" : " read");
    step.skips = {own + " read", own + " open", own + " second row"};
    if (place <= opens) step.skips.push_back(own + " first row");
  }
  for (std::size_t place = 0; place < settling.size(); ++place) {
    Step& step = settling[place];
    step.ends = false;
    step.result = 0;
    if (place > 0) step.name = own + (place <= 2 ? " first row" : " second row");
    step.skips = {own + " first row", own + " second row"};
  }
  return reading + settling;
}

RehearsedDocument voucher(const std::string& class_name, const VoucherWords& words) {
  RehearsedDocument document{.class_name = class_name,
                             .prefix = std::string(automation::class_named(class_name).kind->prefix)};
  lay_vouchers(document, words);
  document.verbs = voucher_verbs(document, words);
  return document;
}

}  // namespace brunvik::test
