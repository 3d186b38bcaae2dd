// Other receipts and issues, the two count reports, stock adjustment.
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

// An issue reads its rows again where a receipt takes those that it holds.
RehearsedDocument other_stock_document(const std::string& class_name, bool reads_rows_first) {
  const Steps before = reads_rows_first ? Steps{marked(), rows_read()} : Steps{marked()};
  Steps audit = before, undo = before;
  for (const PostedRow& row : both_rows()) {
    audit = audit + Steps{row_cost()} + post(row);
    undo.push_back(row_cost());
  }
  return stock_document(class_name, {{"Audit", {}, audit + Steps{bill_cost(), rows_read()}},
                                     {"UndoAudit", {}, undo + Steps{bill_cost()} + undo_post()}});
}

RehearsedDocument count_report(const std::string& class_name, const std::string& bill) {
  const Steps worker{header_read(), ends("bill|update stockbill set Status = "), rows_read(), row_cost(), row_cost(),
                     bill_cost()};
  return stock_document(class_name, {{"UpdateAudited", {}, worker + post(both_rows()[0]) + post(both_rows()[1])},
                                     {.verb = "CancelAudited",
                                      .steps = worker + undo_post(),
                                      .before = {"update StockBill set Status=3 where Id='" + bill + "'"}}});
}

const Rehearsed other_receipt([] { return other_stock_document("clsOthersInBill", false); });
const Rehearsed other_issue([] { return other_stock_document("clsOthersOutBill", true); });
const Rehearsed overage_report([] { return count_report("clsReportOfOverflowBill", "BYR24030500002"); });
const Rehearsed loss_report([] { return count_report("clsReportOfLossesBill", "BSC24030500002"); });

// It takes the first record in descending order where the others ask for the highest number.
const Rehearsed adjustment([] {
  Frame frame = stock_frame();
  frame.last = ends("bill|select TOP 1 * from StockBill where type=");
  return stock_document("clsTZBill", {{"Audit", {}, {marked()}}, {"UndoAudit", {}, {marked()}}}, {.frame = frame});
});

}  // namespace

}  // namespace brunvik::test
