// Sales issue and return, with their opening balances.
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"
#include "tests/support/faults/voucher.h"

namespace brunvik::test {

namespace {

// An issue asks for the last and the near numbers in small letters.
Frame issue_frame() {
  Frame frame = stock_frame();
  frame.last = ends("bill|select max(Id) as Id from StockBill where type=");
  frame.next = ends("bill|select min(Id) as Id from StockBill where id > ");
  frame.previous = ends("bill|select max(Id) as Id from StockBill where Id < ");
  return frame;
}

Steps money_beside(const std::string& verb, bool has_advance) {
  const Steps steps = beside(receipt_words(), verb);
  return has_advance ? steps + beside(advance_words(), verb) : steps;
}

Steps audit(bool stock_stays, bool has_advance) {
  Steps steps = Steps{marked()} + money_beside("Audite", has_advance) + Steps{rows_read()};
  for (const PostedRow& row : both_rows()) {
    steps = steps + Steps{average_read(), factor(row.unit), row_cost()};
    if (!stock_stays) steps = steps + post(row);
  }
  return steps + Steps{bill_cost()};
}

Steps undo(bool stock_stays, bool has_advance) {
  const Steps steps =
      Steps{marked()} + money_beside("UndoAudite", has_advance) + Steps{row_cost(), row_cost(), bill_cost()};
  return stock_stays ? steps : steps + undo_post();
}

Verbs audits(bool has_advance) {
  return {{"Audit", {false}, audit(false, has_advance), "with_stock"},
          {"Audit", {true}, audit(true, has_advance), "without_stock"},
          {"UndoAudit", {false}, undo(false, has_advance), "with_stock"},
          {"UndoAudit", {true}, undo(true, has_advance), "without_stock"}};
}

Verbs opening_audits() {
  return {{"Audit", {}, Steps{marked()} + beside(receipt_words(), "Audite")},
          {"UndoAudit", {}, Steps{marked()} + beside(receipt_words(), "UndoAudite")}};
}

// A return publishes the worker of its `Delete`, too.
Verbs with_removal(Verbs verbs) {
  verbs.push_back({"DeleteSalesInBillAndItems", {}, {rows_removed(), header_removed()}});
  return verbs;
}

const Rehearsed issue([] {
  return stock_document("clsSalesOutBill", audits(true),
                        {.prefix = "XSC", .voucher = "SKD", .advance = "YSX", .frame = issue_frame()});
});

const Rehearsed opening_issue([] {
  return stock_document("clsSalesOutBjkcBill", opening_audits(),
                        {.prefix = "XSQ", .voucher = "SKD", .advance = "YSX", .frame = issue_frame()});
});

const Rehearsed sales_return([] {
  return stock_document("clsSalesInBill", with_removal(audits(false)), {.voucher = "SKD"});
});

const Rehearsed opening_return([] {
  return stock_document("clsSalesInBjkcBill", with_removal(opening_audits()), {.voucher = "SKD"});
});

}  // namespace

}  // namespace brunvik::test
