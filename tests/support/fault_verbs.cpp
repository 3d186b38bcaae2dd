#include "tests/support/fault_verbs.h"

namespace brunvik::test {

namespace {

// ---------------------------------------------------------------- what the procedures on the session's road do

Step factor(const std::string& unit) {
  return holding("Unit='" + unit + "'", goes_on("GoodsUnitConverter():", "session|select id,Unit,UnitConverter from "));
}

// The two rows of every bill: the goods, its own unit, the unit of the row.
struct Row {
  std::string goods, own_unit, unit;
  bool has_balance;
};
const std::vector<Row> both_rows{{"G1", "个", "箱", true}, {"G2", "只", "盒", false}};

// The average of a row's goods moves. Where its first statement fails, an error's number takes the place of the cost.
Steps average(const std::string& procedure, const Row& row) {
  const std::string rest = "average of " + row.goods;
  return {goes_on(procedure + "():", "session|select goods.AverageCost,sum(", {rest}),
          named(rest, goes_on("GetGoodsById():", "session|select * from goods where id=", {rest})),
          named(rest, factor(row.own_unit)), named(rest, factor(row.unit)),
          named(rest, goes_on("ExecuteNonQuerySql():", "session|UPDATE GOODS SET AVERAGECOST="))};
}

Step row_cost() { return goes_on("UpdateBillItemCost():", "session|Update StockBillItems set cost="); }
Step bill_cost() { return goes_on("UpdateBillCost():", "session|Update StockBill set BillCost="); }
Step average_read() { return goes_on("GetAverageCost():", "session|select AverageCost from goods  where "); }

// The quantity of a row in the goods' own unit. Without the factor of that unit it can't be worked out: division by 0.
Steps base_quantity(const Row& row) {
  return {ends_telling("GetGoodsById():", "session|select * from goods where id="), factor(row.unit),
          ending_with(11, factor(row.own_unit))};
}

Steps post(const Row& row) {
  return base_quantity(row) +
         Steps{ends("session|select * from Inventory where "),
               ends(row.has_balance ? "session|update Inventory set " : "session|insert into Inventory(")};
}

// A bill's stock is taken back row by row.
Steps undo_post() {
  Steps steps{ends("session|select * from StockBillItems where BillId=")};
  for (const Row& row : both_rows) steps = steps + base_quantity(row) + Steps{ends("session|update Inventory set ")};
  return steps;
}

// The same where nobody looks at what comes of it.
Steps undo_post_ignored() {
  Steps steps = undo_post();
  for (Step& step : steps) {
    if (step.ends) step.result = 0;
  }
  return steps;
}

Step next_number() { return goes_on("Get_BillMaxId():", "session|select max(ID)  from "); }

// ------------------------------------------------------------------------------------ vouchers on their own

struct VoucherWords {
  std::string header, money, settled;
  std::string read_tag, save_tag, save_draft_tag;
  bool receipt = false;
};
const VoucherWords pay{"RPVouchers",      "RPBItems",         "RPBRPItems",
                       " GetPayBill(): ", " SavePayBill(): ", " SavePayBillForDraft(): "};
const VoucherWords receipt{
    "RPVouchers", "RPBItems", "RPBRPItems", " GetReceipt(): ", " SaveReceipt(): ", " SaveReceiptIntoDraft(): ", true};
const VoucherWords advance{
    "AdvanceBill", "", "AdvanceItems", " GetPayBill(): ", " SavePayBill(): ", " SavePayBillForDraft(): "};

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
    if (words.receipt) steps.push_back(goes_on("ExecuteSql():", "session|DELETE FROM " + upper + " WHERE BID= "));
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
    if (!words.receipt) steps = steps + voucher_rows_removed(words);
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

// ---------------------------------------------------------------- a voucher or an advance at the side of a bill

// It is read and then settled, whatever came of the reading: rows that could not be read are not settled. Each of its
// failures is told by its own worker, and the bill goes on.
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

// ------------------------------------------------------------------------------------- the frame of stock documents

const Step header_read = ends("bill|select * from StockBill where Id=");
const Step rows_read = ends("bill|select StockBillItems.*,warehouse.WName from StockBillItems ");
const Step rows_removed = ends("bill|delete from StockBillItems where BillId=");
const Step header_removed = ends("bill|delete from stockbill where Id=");
const Step row_added = ends("bill|insert into StockBillItems(");
const Step marked = ends("bill|update stockbill set Status=");

// ------------------------------------------------------------------------------------------------------ the verbs

using Verbs = std::vector<Verb>;

void add_frame(Verbs& verbs, const std::string& class_name, const std::string& prefix, const std::string& get_bill) {
  const bool issue = class_name.starts_with("clsSalesOut");
  const std::string first = prefix + "24030500001", second = prefix + "24030500002", unknown = prefix + "24030500009";
  const auto with_series = [&](std::vector<Value> arguments) {
    if (issue) arguments.emplace_back(prefix);
    return arguments;
  };
  const Steps read{header_read, rows_read};
  const Steps added{header_read, ends("bill|insert into StockBill("), row_added, row_added};
  const Steps updated{header_read, rows_removed, ends("bill|update stockbill set ManualId = "), row_added, row_added};
  const Step last = ends(class_name == "clsTZBill" ? "bill|select TOP 1 * from StockBill where type="
                         : issue                   ? "bill|select max(Id) as Id from StockBill where type="
                                                   : "bill|select Max(Id) as Id from StockBill where type=");
  const Step next = ends(issue ? "bill|select min(Id) as Id from StockBill where id > "
                               : "bill|select Min(Id) as Id from StockBill where id > ");
  const Step previous = ends(issue ? "bill|select max(Id) as Id from StockBill where Id < "
                                   : "bill|select Max(Id) as Id from StockBill where Id < ");

  for (const char* save : {"Save", "SaveAsDraft"}) {
    verbs.push_back({class_name, save, {}, added, unknown, {}, "for_the_first_time"});
    verbs.push_back({class_name, save, {}, updated, {}, {}, "again"});
  }
  if (!get_bill.empty()) verbs.push_back({class_name, get_bill, {}, read});
  verbs.push_back({class_name, "LoadById", {second}, read});
  verbs.push_back({class_name, "Delete", {}, {rows_removed, header_removed}});
  verbs.push_back({class_name, "LoadLast", with_series({}), Steps{last} + read});
  verbs.push_back({class_name, "GetLastId", with_series({""}), {last}});
  verbs.push_back({class_name, "LoadNext", with_series({}), Steps{next} + read});
  verbs.push_back({class_name, "LoadPreviou", with_series({}), Steps{previous} + read});
  verbs.push_back({class_name, "GetNewId", with_series({""}), {next_number()}});
  if (class_name == "clsTZBill") return;
  verbs.push_back({class_name, "GetNearId", with_series({first, "", true}), {next}, {}, {}, "forward"});
  verbs.push_back({class_name, "GetNearId", with_series({second, "", false}), {previous}, {}, {}, "backward"});
}

void add_purchase_receipt(Verbs& verbs) {
  const std::string name = "clsPurchaseInBill";
  add_frame(verbs, name, "JHR", "");
  verbs.push_back({name, "LoadById", {"JHR24030500002", 1, false}, {header_read, rows_read}, {}, {}, "one_row"});
  const Step arrivals_read = ends("bill|select StockBillItems.*,warehouse.WName,AdjustStockBill.MeansOfPayment,");
  verbs.push_back({name, "LoadById", {"JHR24030500002", -1, true}, {header_read, arrivals_read}, {}, {}, "arrivals"});
  for (const bool stock_moves : {true, false}) {
    Steps audit = Steps{marked} + beside(pay, "Audite") + beside(advance, "Audite") + Steps{rows_read};
    for (const Row& row : both_rows) {
      audit = audit + average("AuditUpdateAverageCost", row) + Steps{factor(row.unit), row_cost()};
      if (stock_moves) audit = audit + post(row);
      audit.push_back(ends("bill|select StockBillItems.*,Goods.AverageCost from "));
      if (row.goods == "G1") {
        audit = audit + Steps{factor("箱"), ends("bill|update StockBillItems set Cost="),
                              ends("bill|update StockBill set BillCost=BillCost+")};
      }
    }
    audit.push_back(bill_cost());
    Steps undo =
        Steps{goes_on("ExecuteNonQuerySql():", "session|UPDATE STOCKBILL SET STATUS=2,AUDITOR='',AUDITTIME=''")} +
        beside(pay, "UndoAudite") + beside(advance, "UndoAudite");
    for (const Row& row : both_rows) undo = undo + average("UndoAuditUpdateAverageCost", row) + Steps{row_cost()};
    undo.push_back(bill_cost());
    if (stock_moves) undo = undo + undo_post_ignored();
    const std::string remark = stock_moves ? "with_stock" : "without_stock";
    verbs.push_back({name, "Audit", {stock_moves}, audit, {}, {}, remark});
    verbs.push_back({name, "UndoAudit", {stock_moves}, undo, {}, {}, remark});
  }

  const std::string opening = "clsPurchaseInBjkcBill";
  add_frame(verbs, opening, "JQC", "");
  verbs.push_back({opening, "Audit", {true}, Steps{marked} + beside(pay, "Audite")});
  verbs.push_back(
      {opening,
       "UndoAudit",
       {true},
       Steps{goes_on("ExecuteNonQuerySql():", "session|UPDATE STOCKBILL SET STATUS=2")} + beside(pay, "UndoAudite")});
}

void add_purchase_return(Verbs& verbs) {
  const std::string name = "clsPurchaseOutBill";
  add_frame(verbs, name, "JTC", "");
  Steps audit = Steps{marked} + beside(pay, "Audite") + Steps{rows_read};
  Steps undo = Steps{marked} + beside(pay, "UndoAudite") + Steps{rows_read};
  for (const Row& row : both_rows) {
    audit = audit + average("UndoAuditUpdateAverageCost", row) + Steps{factor(row.unit), row_cost()} + post(row);
    undo = undo + average("AuditUpdateAverageCost", row) + Steps{row_cost()};
  }
  verbs.push_back({name, "Audit", {}, audit + Steps{bill_cost()}});
  verbs.push_back({name, "UndoAudit", {}, undo + Steps{bill_cost()} + undo_post()});

  const std::string opening = "clsPurchaseOutBjkcBill";
  add_frame(verbs, opening, "JTQ", "");
  for (const char* verb : {"Audit", "UndoAudit"}) {
    verbs.push_back({opening, verb, {}, Steps{marked} + beside(pay, std::string(verb) + "e")});
  }
}

void add_sales(Verbs& verbs, const std::string& name, const std::string& prefix, bool has_advance) {
  add_frame(verbs, name, prefix, "");
  for (const bool stock_stays : {false, true}) {
    Steps audit = Steps{marked} + beside(receipt, "Audite");
    Steps undo = Steps{marked} + beside(receipt, "UndoAudite");
    if (has_advance) {
      audit = audit + beside(advance, "Audite");
      undo = undo + beside(advance, "UndoAudite");
    }
    audit.push_back(rows_read);
    for (const Row& row : both_rows) {
      audit = audit + Steps{average_read(), factor(row.unit), row_cost()};
      if (!stock_stays) audit = audit + post(row);
      undo.push_back(row_cost());
    }
    undo.push_back(bill_cost());
    if (!stock_stays) undo = undo + undo_post();
    const std::string remark = stock_stays ? "without_stock" : "with_stock";
    verbs.push_back({name, "Audit", {stock_stays}, audit + Steps{bill_cost()}, {}, {}, remark});
    verbs.push_back({name, "UndoAudit", {stock_stays}, undo, {}, {}, remark});
  }
}

void add_opening_sales(Verbs& verbs, const std::string& name, const std::string& prefix) {
  add_frame(verbs, name, prefix, "");
  for (const char* verb : {"Audit", "UndoAudit"}) {
    verbs.push_back({name, verb, {}, Steps{marked} + beside(receipt, std::string(verb) + "e")});
  }
}

void add_other_stock_document(Verbs& verbs, const std::string& name, const std::string& prefix, bool reads_rows_first) {
  add_frame(verbs, name, prefix, "GetBill");
  Steps audit{marked}, undo{marked};
  if (reads_rows_first) {
    audit.push_back(rows_read);
    undo.push_back(rows_read);
  }
  for (const Row& row : both_rows) {
    audit = audit + Steps{row_cost()} + post(row);
    undo.push_back(row_cost());
  }
  verbs.push_back({name, "Audit", {}, audit + Steps{bill_cost(), rows_read}});
  verbs.push_back({name, "UndoAudit", {}, undo + Steps{bill_cost()} + undo_post()});
}

void add_count_report(Verbs& verbs, const std::string& name, const std::string& prefix, const std::string& get_bill) {
  add_frame(verbs, name, prefix, get_bill);
  const Steps worker{header_read, ends("bill|update stockbill set Status = "), rows_read, row_cost(), row_cost(),
                     bill_cost()};
  verbs.push_back({name, "UpdateAudited", {}, worker + post(both_rows[0]) + post(both_rows[1])});
  verbs.push_back({name,
                   "CancelAudited",
                   {},
                   worker + undo_post(),
                   {},
                   {"update StockBill set Status=3 where Id='" + prefix + "24030500002'"}});
}

void add_voucher(Verbs& verbs, const std::string& name, const std::string& prefix, const VoucherWords& words) {
  const std::string second = prefix + "24030500002", unknown = prefix + "24030500009";
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
    verbs.push_back({name, verb, {}, voucher_saved(words, draft, false), unknown, {}, "for_the_first_time"});
    verbs.push_back({name, verb, {}, voucher_saved(words, draft, true), {}, {}, "again"});
  }
  verbs.push_back({name, "LoadById", {second}, voucher_read(words)});
  verbs.push_back(
      {name,
       "Delete",
       {},
       voucher_rows_removed(words) +
           Steps{ends_telling(" DeletePayBillAndItems(): ", "bill|delete from " + words.header + " where Id=")}});
  verbs.push_back({name, "LoadLast", {}, Steps{last} + neighbour_read});
  verbs.push_back({name, "LoadNext", {}, Steps{next} + neighbour_read});
  verbs.push_back({name, "LoadPreviou", {}, Steps{previous} + neighbour_read});
  verbs.push_back({name, "GetLastId", {""}, {last}});
  verbs.push_back({name, "GetNextId", {second, ""}, {next}});
  verbs.push_back({name, "GetPreviousId", {second, ""}, {previous}});
  verbs.push_back({name, "GetNewId", {""}, {next_number()}});
  verbs.push_back({name, "Audite", {"u9", "2024-03-05 10:00:00"}, voucher_settled(words, "Audite")});
  verbs.push_back({name, "UndoAudite", {}, voucher_settled(words, "UndoAudite")});
}

}  // namespace

const std::vector<Verb>& fault_verbs() {
  static const Verbs verbs = [] {
    Verbs all;
    add_purchase_receipt(all);
    add_purchase_return(all);
    add_sales(all, "clsSalesOutBill", "XSC", true);
    add_sales(all, "clsSalesInBill", "XTR", false);
    add_opening_sales(all, "clsSalesOutBjkcBill", "XSQ");
    add_opening_sales(all, "clsSalesInBjkcBill", "XTQ");
    all.push_back({"clsSalesInBill", "DeleteSalesInBillAndItems", {}, {rows_removed, header_removed}});
    all.push_back({"clsSalesInBjkcBill", "DeleteSalesInBillAndItems", {}, {rows_removed, header_removed}});
    add_other_stock_document(all, "clsOthersInBill", "QTR", false);
    add_other_stock_document(all, "clsOthersOutBill", "QTC", true);
    add_count_report(all, "clsReportOfOverflowBill", "BYR", "");
    add_count_report(all, "clsReportOfLossesBill", "BSC", "GetBill");
    add_frame(all, "clsTZBill", "TZD", "GetBill");
    all.push_back({"clsTZBill", "Audit", {}, {marked}});
    all.push_back({"clsTZBill", "UndoAudit", {}, {marked}});
    add_voucher(all, "clsPayBill", "FKD", pay);
    add_voucher(all, "clsReceiptBill", "SKD", receipt);
    add_voucher(all, "clsAdvanceBill", "YFX", advance);
    add_voucher(all, "clsAdvanceYSBill", "YSX", advance);
    return all;
  }();
  return verbs;
}

std::string name_of(const Verb& verb) {
  return verb.class_name + "_" + verb.verb + (verb.remark.empty() ? "" : "_" + verb.remark);
}

}  // namespace brunvik::test
