// Goods lent and borrowed, their opening balances and their returns.
#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

const Step header_of_the_goods = ends("session|select * from GBorrowBill where Id=");
const Step stored_goods = ends("session|select * from GBorrowItems where BillId=");

// Three documents; the second has two rows, the goods of which all came back or changed hands.
void lay_documents(RehearsedDocument& document) {
  const Long type = automation::class_named(document.class_name).kind->code.value();
  document.lay_bills("insert into GBorrowBill(Id,Type,InOutFlag,Status) values(", "," + std::to_string(type) + ",1,2)");
  document.lay_rows(
      "insert into GBorrowItems(BillId,RowNum,GId,Class,Model1,Model2,unit,Uqty,ActualQty,Receiver,Supplier,GoodStutas)"
      " values(",
      {",1,'G1','五金','M6','','箱',2,2,'W1','W1',0)", ",2,'G2','五金','M8','','盒',3,3,'W1','W1',0)"});
}

Steps undo(const PostedRow& row) { return base_quantity(row) + Steps{ends("session|update Inventory set ")}; }

// Goods that come in are posted row by row and taken back as the books hold them, the others the other way round.
Verbs audits(bool comes_in, const Frame& frame) {
  const Steps one_header{header_of_the_goods};
  const PostedRow &screws = both_rows()[0], &nuts = both_rows()[1];
  const Steps rows_posted = frame.rows_read + one_header + post(screws) + one_header + post(nuts);
  const Steps all_posted = Steps{header_of_the_goods, stored_goods} + post(screws) + post(nuts);
  const Steps rows_back = frame.rows_read + one_header + undo(screws) + one_header + undo(nuts);
  const Steps all_back = Steps{header_of_the_goods, stored_goods} + undo(screws) + undo(nuts);
  const Step audited = ends("bill|update GBorrowBill set Status=3,");
  const Step saved = ends("bill|update GBorrowBill set Status=2,");
  return {{"Audit", {}, Steps{audited} + (comes_in ? rows_posted : all_posted)},
          {"UndoAudit", {}, Steps{saved} + (comes_in ? all_back : rows_back)}};
}

// An opening balance is marked, and that is all.
Verbs audits_of_opening() {
  return {{"Audit", {}, {ends("bill|update GBorrowBill set Status=3,")}},
          {"UndoAudit", {}, {ends("bill|update GBorrowBill set Status=2,")}}};
}

Value record(const std::shared_ptr<RowCollection>& records) {
  return ado::ObjectReference(std::shared_ptr<PublicObject>(records, &records->at(1)));
}

// One or two links to two boxes of screws of the loan.
std::shared_ptr<RowCollection> links(const RehearsedDocument& document, int count) {
  auto made = automation::create_rows("BorrowLink");
  for (int place = 0; place < count; ++place) {
    PublicObject& link = made->add();
    automation::put(link, "BorrowId", document.bill());
    automation::put(link, "StcokId", "B1");
    automation::put(link, "BorrowRowNum", 1);
    automation::put(link, "Goodsid", "G1");
    automation::put(link, "unit", "箱");
    automation::put(link, "Qty", 2);
  }
  return made;
}

// The verbs by which the host turns rows of a loan into a purchase or a sale; `side` is In or Out.
Verbs conversion(const RehearsedDocument& document, const std::string& side, const std::string& read_links) {
  const Value link = record(links(document, 1));
  const Step link_added = ends("bill|insert into GBorrowList(");
  const Step rows_read = ends("bill|select * from GBorrowItems where BillId=");
  const std::string update = "bill|update GBorrowItems set ActualQty=ActualQty";
  const std::string close = "bill|update GBorrowBill set ClosedTag=";
  const std::string bill = document.bill();
  return {
      {read_links, {bill, "B1"}, {ends("bill|select * from GBorrowList where BorrowId=")}},
      {"AddBorrowPurQty", {link}, {factor("箱"), ends(update + "+")}},
      {"ReduceBorrowPurQty", {link}, {factor("箱"), ends(update + "-")}},
      {"DeteleBorrowPurList", {"B1"}, {ends("bill|delete from GBorrowList where StcokId=")}},
      {"SetBorrow" + side + "ClosedTag", {bill}, {rows_read, ends(close + "1")}},
      {"UndoSetBorrow" + side + "ClosedTag", {bill}, {ends(close + "0")}},
      {"ExitReturnGoods", {bill}, {rows_read}},
      {"SaveBorrow" + side + "PurLists", {ado::ObjectReference(links(document, 2))}, {link_added, link_added}},
  };
}

RehearsedDocument borrow_document(const std::string& class_name, Verbs (*own)(const RehearsedDocument&, const Frame&)) {
  RehearsedDocument document{.class_name = class_name};
  document.prefix = automation::class_named(class_name).kind->prefix;
  lay_documents(document);
  Frame frame = frame_over("GBorrowBill", "GBorrowItems");
  if (class_name == "clsBorrowInReturn") frame.last = ends("bill|select TOP 1 * from GBorrowBill where type=30 ");
  document.verbs = with_frame(class_name, document.prefix, frame, own(document, frame));
  return document;
}

const Rehearsed goods_borrowed([] {
  return borrow_document("clsBorrowIn", [](const RehearsedDocument& document, const Frame& frame) {
    return audits(true, frame) + conversion(document, "In", "GetBorrowPurInBillItems");
  });
});

const Rehearsed goods_borrowed_at_the_start([] {
  return borrow_document("clsBorrowInBjkc", [](const RehearsedDocument& document, const Frame&) {
    return audits_of_opening() + conversion(document, "In", "GetBorrowPurInBillItems");
  });
});

const Rehearsed goods_lent([] {
  return borrow_document("clsBorrowOut", [](const RehearsedDocument& document, const Frame& frame) {
    Verbs verbs = audits(false, frame);
    Verb to_draft = verbs.back();
    to_draft.verb = "UndoAuditSaveAsDraft";
    to_draft.arguments = {document.bill()};
    to_draft.steps.front() = ends("bill|update GBorrowBill set Status=1,");
    return verbs + Verbs{to_draft} + conversion(document, "Out", "GetBorrowSaleOutBillItems");
  });
});

const Rehearsed goods_lent_at_the_start([] {
  return borrow_document("clsBorrowOutBjkc", [](const RehearsedDocument& document, const Frame&) {
    const Verb to_draft{"UndoAuditSaveAsDraft", {document.bill()}, {ends("bill|update GBorrowBill set Status=1,")}};
    return audits_of_opening() + Verbs{to_draft} + conversion(document, "Out", "GetBorrowSaleOutBillItems");
  });
});

// What is returned is counted on the rows of the loan.
Verbs drawing(const RehearsedDocument& document, const std::string& side) {
  const auto rows = automation::create_rows("BorrowRow");
  PublicObject& row = rows->add();
  automation::put(row, "Rownum", 1);
  automation::put(row, "Gid", "G1");
  automation::put(row, "Uqty", 2);
  const std::string update = "bill|update GBorrowItems set ActualQty=ActualQty";
  return {{"AddBorrow" + side + "Qty", {record(rows), document.bill()}, {ends(update + "+2 ")}},
          {"ReduceBorrow" + side + "Qty", {record(rows), document.bill()}, {ends(update + "-2 ")}}};
}

const Rehearsed borrowed_goods_returned([] {
  return borrow_document("clsBorrowInReturn", [](const RehearsedDocument& document, const Frame& frame) {
    return audits(false, frame) + drawing(document, "In");
  });
});

const Rehearsed lent_goods_returned([] {
  return borrow_document("clsBorrowOutReturn", [](const RehearsedDocument& document, const Frame& frame) {
    return audits(true, frame) + drawing(document, "Out");
  });
});

}  // namespace

}  // namespace brunvik::test
