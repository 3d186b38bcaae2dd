// Other receivable and payable, their opening balances.
#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"
#include "tests/support/faults/voucher.h"

namespace brunvik::test {

namespace {

// The tags of audit and undo; a payable's audit fails in silence.
struct AuditTags {
  std::string audit, undo;
};
const AuditTags receivable_tags{" UpdateOthersIEInAudited(): ", " CancelOthersIEInAudited(): "};
const AuditTags payable_tags{"", " CancelOthersIEOutAudited(): "};

Step told(const std::string& tag, const std::string& begins) {
  return tag.empty() ? ends(begins) : ends_telling(tag, begins);
}

Step header_read(const std::string& tag) { return told(tag, "bill|select * from OthersIEBill where Id="); }

Frame frame() {
  Frame frame = frame_over("OthersIEBill", "OthersIEBillItems");
  const Step row_added = ends_telling(" AddOthersInDbBillItems(): ", "bill|insert into OthersIEBillItems(");
  frame.header_added = ends_telling(" AddOthersIEBill(): ", frame.header_added.begins);
  frame.header_updated = ends_telling(" UpdateOthersIEBill(): ", frame.header_updated.begins);
  frame.rows_read = {ends_telling(" GetOthersIEBillItems(): ", "bill|select * from OthersIEBillItems where BillId=")};
  frame.rows_removed = {
      ends_telling(" DeleteOthersIEBillItems(): ", "bill|delete from OthersIEBillItems where BillId=")};
  frame.rows_added = {row_added, row_added};
  frame.last = ends_telling(" GetLastId(): ", frame.last.begins);
  frame.next = ends_telling(" GetNearId(): ", frame.next.begins);
  frame.previous = ends_telling(" GetNearId(): ", frame.previous.begins);
  return frame;
}

// Three bills; the second has two rows and a voucher at its side.
RehearsedDocument other_money(const std::string& class_name, const AuditTags& tags, const VoucherWords& words) {
  const Kind& kind = *automation::class_named(class_name).kind;
  RehearsedDocument document{.class_name = class_name, .prefix = std::string(kind.prefix)};
  const std::string voucher = words.is_receipt ? "SKD24030500002" : "FKD24030500002";
  const std::string values = "," + std::to_string(*kind.code) + ",2,40,40,";
  document.lay_bills("insert into OthersIEBill(Id,Type,Status,Closeamount,Amount,Nowpaybillid) values(", values + "'')",
                     values + quoted(voucher) + ")");
  document.lay_rows("insert into OthersIEBillItems(Billid,Rownum,Itemid) values(", {",1,'X1')", ",2,'X2')"});
  const std::string status_of = " where Id=" + quoted(document.bill());
  Verbs own;
  for (const bool draft : {false, true}) {
    const std::string verb = draft ? "SaveAsDraft" : "Save";
    const Frame shared = frame();
    Steps looked_up{header_read(draft ? " SaveOthersIEBillForSketch(): " : " SaveOthersIEBill(): ")};
    if (!draft) looked_up.push_back(truth_setting("启用帐款审核", " SaveOthersIEBill(): "));
    own = own + saves(verb, looked_up, shared, document.number(9));
  }
  own.push_back({.verb = "UpdateAudited",
                 .steps = Steps{header_read(tags.audit), told(tags.audit, "bill|update OthersIEBill set Status = 3")} +
                          beside(words, "Audite")});
  own.push_back({.verb = "CancelAudited",
                 .steps = Steps{header_read(tags.undo), told(tags.undo, "bill|update OthersIEBill set Status = 2")} +
                          beside(words, "UndoAudite"),
                 .before = {"update OthersIEBill set Status=3" + status_of}});
  document.verbs = with_frame(class_name, document.prefix, frame(), std::move(own));
  return document;
}

const Rehearsed receivable([] { return other_money("ClsOthersIncomeBill", receivable_tags, receipt_words()); });
const Rehearsed opening_receivable([] {
  return other_money("clsOthersIncomeBjkcBill", receivable_tags, receipt_words());
});
const Rehearsed payable([] { return other_money("clsOthersExpenseBill", payable_tags, payment_words()); });
const Rehearsed opening_payable([] { return other_money("clsOthersExpenseBjkcBill", payable_tags, payment_words()); });

}  // namespace

}  // namespace brunvik::test
