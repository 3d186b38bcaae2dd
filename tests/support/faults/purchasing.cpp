// Purchase receipt and return, with their opening balances.
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

}  // namespace

}  // namespace brunvik::test
