// Purchase receipt and return, with their opening balances; cost sharing and goods arrival.
#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"
#include "tests/support/faults/voucher.h"

namespace brunvik::test {

namespace {

Steps receipt_audit(bool stock_moves) {
  Steps steps =
      Steps{marked()} + beside(payment_words(), "Audite") + beside(advance_words(), "Audite") + Steps{rows_read()};
  for (const PostedRow& row : both_rows()) {
    steps = steps + average("AuditUpdateAverageCost", row) + Steps{factor(row.unit), row_cost()};
    if (stock_moves) steps = steps + post(row);
    steps.push_back(ends("bill|select StockBillItems.*,Goods.AverageCost from "));
    if (row.goods == "G1") {
      steps = steps + Steps{factor("箱"), ends("bill|update StockBillItems set Cost="),
                            ends("bill|update StockBill set BillCost=BillCost+")};
    }
  }
  return steps + Steps{bill_cost()};
}

Steps receipt_undo(bool stock_moves) {
  Steps steps =
      Steps{goes_on("ExecuteNonQuerySql():", "session|UPDATE STOCKBILL SET STATUS=2,AUDITOR='',AUDITTIME=''")} +
      beside(payment_words(), "UndoAudite") + beside(advance_words(), "UndoAudite");
  for (const PostedRow& row : both_rows()) {
    steps = steps + average("UndoAuditUpdateAverageCost", row) + Steps{row_cost()};
  }
  steps.push_back(bill_cost());
  return stock_moves ? steps + undo_post_ignored() : steps;
}

const Rehearsed receipt([] {
  const Step arrivals_read = ends("bill|select StockBillItems.*,warehouse.WName,AdjustStockBill.MeansOfPayment,");
  return stock_document("clsPurchaseInBill",
                        {
                            {"LoadById", {"JHR24030500002"}, {header_read(), rows_read()}},
                            {"LoadById", {"JHR24030500002", 1, false}, {header_read(), rows_read()}, "one_row"},
                            {"LoadById", {"JHR24030500002", -1, true}, {header_read(), arrivals_read}, "arrivals"},
                            {"Audit", {true}, receipt_audit(true), "with_stock"},
                            {"Audit", {false}, receipt_audit(false), "without_stock"},
                            {"UndoAudit", {true}, receipt_undo(true), "with_stock"},
                            {"UndoAudit", {false}, receipt_undo(false), "without_stock"},
                        },
                        {.voucher = "FKD", .advance = "YFX"});
});

const Rehearsed opening_receipt([] {
  const Step unmarked = goes_on("ExecuteNonQuerySql():", "session|UPDATE STOCKBILL SET STATUS=2");
  return stock_document("clsPurchaseInBjkcBill",
                        {
                            {"Audit", {true}, Steps{marked()} + beside(payment_words(), "Audite")},
                            {"UndoAudit", {true}, Steps{unmarked} + beside(payment_words(), "UndoAudite")},
                        },
                        {.voucher = "FKD", .advance = "YFX"});
});

const Rehearsed purchase_return([] {
  Steps audit = Steps{marked()} + beside(payment_words(), "Audite") + Steps{rows_read()};
  Steps undo = Steps{marked()} + beside(payment_words(), "UndoAudite") + Steps{rows_read()};
  for (const PostedRow& row : both_rows()) {
    audit = audit + average("UndoAuditUpdateAverageCost", row) + Steps{factor(row.unit), row_cost()} + post(row);
    undo = undo + average("AuditUpdateAverageCost", row) + Steps{row_cost()};
  }
  return stock_document("clsPurchaseOutBill",
                        {
                            {"Audit", {}, audit + Steps{bill_cost()}},
                            {"UndoAudit", {}, undo + Steps{bill_cost()} + undo_post()},
                        },
                        {.voucher = "FKD"});
});

const Rehearsed opening_return([] {
  return stock_document("clsPurchaseOutBjkcBill",
                        {
                            {"Audit", {}, Steps{marked()} + beside(payment_words(), "Audite")},
                            {"UndoAudit", {}, Steps{marked()} + beside(payment_words(), "UndoAudite")},
                        },
                        {.voucher = "FKD"});
});

// The sharing over a receipt whose rows are in the object, without a cost: the goods are taken in at their mean price.
Steps shared(const std::string& procedure) {
  Steps steps;
  for (const PostedRow& row : both_rows()) {
    steps = steps + Steps{factor(row.unit)} + average(procedure, row) + Steps{factor(row.unit), row_cost()};
  }
  return steps + Steps{bill_cost()};
}

void read_receipt(PublicObject& sharing) {
  std::vector<Value> receipt{"JHR24030500002"};
  automation::call(sharing, "GetPurchaseInBillItems", receipt);
}

const Rehearsed cost_sharing([] {
  RehearsedDocument document{.class_name = "clsShareCost", .prefix = "FTD"};
  document.lay_bills("insert into PurchaseShareCost(Id,PurChaseBill,BillCost) values(", ",'JHR24030500002',12)");
  for (const char* row : {"1", "2"}) {
    document.books.push_back("insert into PurChaseCostItems(BillId,RowNum,Amount) values(" + quoted(document.bill()) +
                             "," + row + ",6)");
    document.books.push_back("insert into PuchaseBillItems(Billid,GRowNum,Sharecost) values(" +
                             quoted(document.bill()) + "," + row + ",6)");
  }
  const Step header_gone = ends("bill|delete from PurchaseShareCost where Id=");
  const Step kinds_gone = ends("bill|delete from PurChaseCostItems where BillId=");
  const Step shares_gone = ends("bill|delete from PuchaseBillItems where BillId=");
  const Step kind_added = ends("bill|insert into PurChaseCostItems(");
  const Step share_added = ends("bill|insert into PuchaseBillItems(");
  const Steps read{ends("bill|select PurchaseShareCost.*,ContactsCompany.FullName from "),
                   ends("bill|select * from PurChaseCostItems where BillId="),
                   ends("bill|select * from PuchaseBillItems where BillId=")};
  Frame frame = frame_over("PurchaseShareCost", "");
  frame.header_updated = ends("bill|Update PurchaseShareCost set Vendors=");
  frame.rows_removed = {};
  frame.rows_added = {kinds_gone, shares_gone, kind_added, kind_added, share_added, share_added};
  document.verbs = with_frame(document.class_name, document.prefix, frame,
                              {
                                  {"LoadById", {document.bill()}, read},
                                  {"LoadById", {"", "JHR24030500002"}, read, "by_the_receipt"},
                                  {"Delete", {}, {header_gone, kinds_gone, shares_gone}},
                                  {"DeleteShareCostBill", {}, {header_gone}},
                                  {"DeleteShareCostBillItems", {}, {kinds_gone}},
                                  {"DeleteShareGoodCostBillItems", {}, {shares_gone}},
                                  {"GetPurchaseInBillItems", {"JHR24030500002"}, {rows_read()}},
                                  {.verb = "AuditShareCostBillItems",
                                   .arguments = {true},
                                   .steps = shared("AuditUpdateAverageCost"),
                                   .remark = "in",
                                   .prepare = read_receipt},
                                  {.verb = "AuditShareCostBillItems",
                                   .arguments = {false},
                                   .steps = shared("UndoAuditUpdateAverageCost"),
                                   .remark = "out",
                                   .prepare = read_receipt},
                              });
  return document;
});

// A receipt of one row, and without vouchers, that an arrival names.
struct ArrivedReceipt {
  std::string number;
  PostedRow row;
};
std::vector<ArrivedReceipt> arrived_receipts() {
  return {{"JHR24020100001", both_rows().front()}, {"JHR24020100002", both_rows().back()}};
}

// A step that the arrival doesn't look at: it goes on without the steps of these names.
Step ignored(Step step, std::vector<std::string> skips) {
  step.ends = false;
  step.result = 0;
  step.skips = std::move(skips);
  return step;
}

Steps arrival_audit() {
  Steps steps{ends("bill|update AdjustInBill set Status=3,"),
              ends("bill|select distinct Stockid from AdjustStockBill ")};
  for (const auto& [number, row] : arrived_receipts()) {
    const std::string loaded = "loaded rows of " + number;
    steps =
        steps + Steps{ignored(header_read(), {loaded}), named(loaded, ignored(rows_read(), {})), marked(), rows_read()};
    steps = steps + average("AuditUpdateAverageCost", row) + Steps{factor(row.unit), row_cost()} + post(row);
    steps.push_back(ends("bill|select StockBillItems.*,Goods.AverageCost from "));
    if (row.has_balance) {
      steps = steps + Steps{factor(row.unit), ends("bill|update StockBillItems set Cost="),
                            ends("bill|update StockBill set BillCost=BillCost+")};
    }
    steps.push_back(bill_cost());
  }
  return steps;
}

Steps arrival_undo() {
  Steps steps{ends("bill|update AdjustInBill set Status=2,"),
              ends("bill|select distinct Stockid from AdjustStockBill ")};
  for (const auto& [number, row] : arrived_receipts()) {
    // An undo works on the rows that were loaded: without them it has none to cost.
    const std::string loaded = "loaded rows of " + number, costs = "costs of " + number, stock = "stock of " + number;
    const std::vector<std::string> without_rows{loaded, costs, "average of " + row.goods};
    steps = steps + Steps{ignored(header_read(), without_rows), named(loaded, ignored(rows_read(), without_rows)),
                          goes_on("ExecuteNonQuerySql():", "session|UPDATE STOCKBILL SET STATUS=2,")};
    for (Step step : average("UndoAuditUpdateAverageCost", row) + Steps{row_cost()}) {
      if (step.name.empty()) step.name = costs;
      steps.push_back(std::move(step));
    }
    steps.push_back(bill_cost());
    for (Step step : undo_post({row}))
      steps.push_back(named(stock, step.ends ? ignored(std::move(step), {stock}) : step));
  }
  return steps;
}

const Rehearsed arrival([] {
  RehearsedDocument document{.class_name = "ClsAdjustInBill", .prefix = "DHR"};
  document.lay_bills("insert into AdjustInBill(Id,Status) values(", ",2)");
  int place = 0;
  for (const auto& [number, row] : arrived_receipts()) {
    document.books.push_back("insert into StockBill(Id,Type,InOutFlag,Status) values(" + quoted(number) + ",2,1,2)");
    document.books.push_back(
        "insert into StockBillItems(BillId,RowNum,GId,Class,Model1,Model2,unit,qty,ActualQty,price,Receiver) values(" +
        quoted(number) + ",1," + quoted(row.goods) + ",'五金'," + (row.goods == "G1" ? "'M6'" : "'M8'") + ",''," +
        quoted(row.unit) + ",2,2,120,'W1')");
    document.books.push_back("insert into AdjustStockBill(AdjustId,StockId,RowNum,StockRowNum) values(" +
                             quoted(document.bill()) + "," + quoted(number) + "," + std::to_string(++place) + ",1)");
  }
  Frame frame = frame_over("AdjustInBill", "AdjustStockBill");
  frame.rows_read = {ends("bill|select * from AdjustStockBill where AdjustId=")};
  frame.rows_removed = {};
  frame.last = ends("bill|select TOP 1 * from AdjustInBill order by Id desc");
  const Value named_row = [&] {
    const auto rows = automation::create_rows("ArrivalRow");
    PublicObject& row = rows->add();
    automation::put(row, "StockId", arrived_receipts().front().number);
    return ado::ObjectReference(std::shared_ptr<PublicObject>(rows, &row));
  }();
  document.verbs = with_frame(
      document.class_name, document.prefix, frame,
      {
          {"SaveAdjustInBillItems", {true}, frame.rows_added},
          {"DeleteAdjustInBillItems", {named_row}, {ends("bill|delete from AdjustStockBill where StockId=")}},
          {"Audit", {}, arrival_audit()},
          {"UndoAudit", {}, arrival_undo()},
      });
  return document;
});

}  // namespace

}  // namespace brunvik::test
