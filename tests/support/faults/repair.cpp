// The road of a broken item: intake, dispatch to the factory, what comes back from there, what goes back to the
// customer.
#include "brunvik/automation/automation.h"
#include "brunvik/repair/sales_return_link.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"
#include "tests/support/faults/voucher.h"

namespace brunvik::test {

namespace {

// What a document does with each row beside saving it.
enum class Books { nothing, stock, exchange, stock_and_links };

struct Repair {
  Books books = Books::stock;
  // The number of the voucher at its side, and its words.
  std::string voucher = {};
  VoucherWords voucher_words = {};
  // The audit asks whether accounts are audited, in front of the voucher.
  bool asks_for_accounts = false;
  bool deletes_voucher = false;
};

std::string row_name(std::size_t row) { return "row " + std::to_string(row + 1); }
std::string mark_name(std::size_t row) { return "mark " + std::to_string(row + 1); }

// What is kept of the row drawn on, and of its document.
Steps linked(std::size_t row, bool posted) {
  const std::string tag = posted ? " updataYfQty(): " : " updataUndoYfQty(): ";
  const std::string sign = posted ? "+" : "-";
  return {named(row_name(row), goes_on(tag, "bill|Update RGStockBillItems set YfQty= YfQty " + sign)),
          named(row_name(row),
                goes_on(" updataQtyStutas(): ", "bill|SELECT sum(RGStockBillItems.qty) as qty,", {mark_name(row)})),
          named(mark_name(row), goes_on(" updataQtyStutas(): ", "bill|Update RGStockBill set  QtyStutas= "))};
}

// A row is posted. There is no balance of broken or repaired goods yet.
Steps posted(const Repair& repair, std::size_t row) {
  if (repair.books == Books::nothing) return {};
  PostedRow goods = both_rows()[row];
  goods.has_balance = false;
  Steps steps;
  if (repair.books == Books::exchange) steps = apart("in " + row_name(row), post(goods), false);
  for (const Step& step : post(goods)) steps.push_back(named(row_name(row), step));
  return repair.books == Books::stock_and_links ? steps + linked(row, true) : steps;
}

Steps taken_back(const PostedRow& row) { return base_quantity(row) + Steps{ends("session|update Inventory set ")}; }

Steps undone(const Repair& repair, std::size_t row) {
  if (repair.books == Books::nothing) return {};
  Steps steps = taken_back(both_rows()[row]);
  if (repair.books == Books::exchange) steps = steps + taken_back(both_rows()[row]);
  return repair.books == Books::stock_and_links ? steps + linked(row, false) : steps;
}

// In front of a delete: nothing that fails holds it up, and the last operation's failure is the result.
Steps undone_in_front_of_a_delete(const Repair& repair) {
  Steps steps;
  for (std::size_t row = 0; row < both_rows().size(); ++row) {
    const std::size_t operations = repair.books == Books::exchange ? 2 : 1;
    for (std::size_t operation = 0; operation < operations; ++operation) {
      const bool last = row + 1 == both_rows().size() && operation + 1 == operations;
      steps =
          steps + apart("undo " + row_name(row) + " " + std::to_string(operation), taken_back(both_rows()[row]), last);
    }
    if (repair.books == Books::stock_and_links) steps = steps + linked(row, false);
  }
  return steps;
}

// The rows with what follows each: the setting, and where it says so the posting.
Steps rows_saved(const Repair& repair, bool draft) {
  Steps steps;
  for (std::size_t row = 0; row < both_rows().size(); ++row) {
    steps.push_back(ends_telling(" SaveBillAndItem(): ", "bill|Insert into RGStockBillItems("));
    if (repair.books == Books::nothing) continue;
    steps.push_back(setting("启用坏件审核", {row_name(row), mark_name(row), "in " + row_name(row)}));
    if (!draft) steps = steps + posted(repair, row);
  }
  return steps;
}

Verbs saving_verbs(const Repair& repair, const std::string& unknown) {
  Verbs verbs;
  for (const bool draft : {false, true}) {
    const std::string verb = draft ? "SaveAsDraft" : "Save";
    Steps looked_up;
    if (!draft) looked_up.push_back(setting("启用坏件审核"));
    looked_up.push_back(ends_telling(" " + verb + "(): ", "bill|select ID from RGStockBill where ID="));
    const Step added = ends_telling(" AddNewBill(): ", "bill|insert into RGStockBill(");
    const Step updated = ends_telling(" UpdateBillInfo(): ", "bill|Update RGStockBill set ManualId = ");
    const Step removed = ends_telling(" SaveBillAndItem(): ", "bill| Delete from RGStockBillItems where BillId=");
    verbs.push_back({.verb = verb,
                     .steps = looked_up + Steps{added} + rows_saved(repair, draft),
                     .remark = "for_the_first_time",
                     .number = unknown});
    verbs.push_back(
        {.verb = verb, .steps = looked_up + Steps{updated, removed} + rows_saved(repair, draft), .remark = "again"});
  }
  return verbs;
}

// The voucher at the side is taken along, or, where the setting can't be read, left alone.
Steps money(const Repair& repair, const std::string& verb) {
  if (repair.voucher.empty()) return {};
  Steps steps = beside(repair.voucher_words, verb);
  if (verb == "UndoAudite" || !repair.asks_for_accounts) return steps;
  std::vector<std::string> names;
  for (Step& step : steps) {
    if (step.name.empty()) step.name = "voucher marked";
    names.push_back(step.name);
  }
  return Steps{setting("启用帐款审核", names)} + steps;
}

Steps voucher_deleted(const Repair& repair) {
  Steps steps;
  for (const Step& step : beside(repair.voucher_words, "Audite")) {
    if (step.begins.starts_with("bill|Update RPVouchers ")) break;
    steps.push_back(step);
  }
  const std::string gone = "voucher gone";
  steps.push_back(goes_on(" DeleteRPBItems(): ", "bill|delete from RPBItems where BID=", {gone}));
  steps.push_back(named(gone, goes_on(" DeleteRPBRPItems(): ", "bill|delete from RPBRPItems where BID=", {gone})));
  steps.push_back(named(gone, goes_on(" DeletePayBillAndItems(): ", "bill|delete from RPVouchers where Id=")));
  return steps;
}

Frame repair_frame() {
  Frame frame = frame_over("RGStockBill", "RGStockBillItems");
  frame.header_read = ends_telling(" GetBillAndItem(): ", "bill|select * from RGStockBill where Id=");
  frame.rows_read = {ends_telling(" GetBillAndItem(): ", "bill|select * from RGStockBillItems where BillId=")};
  frame.last = ends_telling(" GetLastId(): ", "bill|select Max(Id) as Id from RGStockBill where ProcessFlag=");
  frame.next = ends_telling(" GetNextId(): ", "bill|select Min(Id) as Id from RGStockBill where Id > ");
  frame.previous = ends_telling(" GetPreviousId(): ", "bill|select Max(Id) as Id from RGStockBill where Id < ");
  return frame;
}

void lay_bills(RehearsedDocument& document, Long code, const Repair& repair) {
  const std::string values = "," + std::to_string(code) + ",2,";
  document.lay_bills("insert into RGStockBill(Id,ProcessFlag,Status,NowPayBillId) values(", values + "'')",
                     values + quoted(repair.voucher) + ")");
  document.lay_rows(
      "insert into RGStockBillItems(BillId,RowNum,GId,Class,Model1,Model2,unit,qty,StoreHouse,OutHouse,GuanLianBill,"
      "DYRowNum,DYGId) values(",
      {",1,'G1','五金','M6','','箱',2,'W1','W1','BXR24030500002',1,'G1')",
       ",2,'G2','五金','M8','','盒',3,'W1','W1','BXR24030500002',2,'G2')"});
}

RehearsedDocument repair_document(const std::string& class_name, const Repair& repair, Verbs own = {}) {
  const Kind& kind = *automation::class_named(class_name).kind;
  RehearsedDocument document{.class_name = class_name, .prefix = std::string(kind.prefix)};
  lay_bills(document, *kind.code, repair);
  const Frame frame = repair_frame();
  const Steps removed{ends_telling(" Delete(): ", "bill| Delete from RGStockBill where Id="),
                      ends_telling(" Delete(): ", "bill| Delete from RGStockBillItems where BillId=")};
  Steps audit{ends_telling(" Audit(): ", "bill|update RGStockBill set Status=3")};
  Steps undo{ends_telling(" UndoAudit(): ", "bill|update RGStockBill set Status=2")};
  if (repair.books != Books::nothing) {
    audit = audit + money(repair, "Audite") + frame.rows_read;
    undo = undo + money(repair, "UndoAudite") + frame.rows_read;
    for (std::size_t row = 0; row < both_rows().size(); ++row) {
      audit = audit + posted(repair, row);
      undo = undo + undone(repair, row);
    }
  }
  for (Verb& verb : saving_verbs(repair, document.number(9))) own.push_back(std::move(verb));
  own.push_back({.verb = "GetBillAndItem", .arguments = {false}, .steps = {frame.header_read}, .remark = "header"});
  own.push_back({.verb = "GetBillAndItem",
                 .arguments = {true},
                 .steps = Steps{frame.header_read} + frame.rows_read,
                 .remark = "with_rows"});
  if (repair.deletes_voucher) {
    own.push_back({.verb = "Delete", .steps = voucher_deleted(repair) + removed});
  } else {
    own.push_back({.verb = "Delete", .steps = removed});
    if (repair.books != Books::nothing) {
      own.push_back({.verb = "Delete",
                     .steps = undone_in_front_of_a_delete(repair) + removed,
                     .remark = "audited",
                     .before = {"update RGStockBill set Status=3 where Id=" + quoted(document.bill())}});
    }
  }
  const std::vector<std::string> no_audit_of_accounts{
      "update BasicConfig set keyvalue='0' where keyname='启用帐款审核'"};
  own.push_back({.verb = "Audit",
                 .steps = std::move(audit),
                 .before = repair.asks_for_accounts ? no_audit_of_accounts : std::vector<std::string>()});
  own.push_back({.verb = "UndoAudit", .steps = std::move(undo)});
  document.verbs = with_frame(class_name, document.prefix, frame, std::move(own));
  return document;
}

Verb sum_verb(const std::string& bill) {
  return {.verb = "GetRgStockBillitems",
          .arguments = {bill},
          .steps = {ends_telling(" GetRgStockBillitems(): ", "bill|SELECT Sum(RGStockBillItems.YfQty) AS YfQty ")}};
}

Verbs link_verbs() {
  const auto link = [] { return Value(ado::ObjectReference(std::make_shared<RGBxrkSaleInList>())); };
  const auto links = std::make_shared<Collection<RGBxrkSaleInList>>();
  links->add();
  const std::string intake = "BXR24030500002";
  const Step rows_read = ends("bill|select * from RGStockBillItems where BillId=");
  const Step no_factor = goes_on("GoodsUnitConverter():", "session|select id,Unit,UnitConverter from ");
  return {
      {.verb = "GetRGBxrkSaleInBillItems",
       .arguments = {intake, "XTR24030500002"},
       .steps = {ends("bill|select * from RGStockBillList where RGBxrkId=")}},
      {.verb = "AddRGBxrkSaleInQty",
       .arguments = {link()},
       .steps = {no_factor, ends("bill|update RGStockBillItems set yfQty=yfQty+")}},
      {.verb = "ReduceRGBxrkSaleInQty",
       .arguments = {link()},
       .steps = {no_factor, ends("bill|update RGStockBillItems set yfQty=yfQty-")}},
      {.verb = "DeteleRGBxrkSaleInList",
       .arguments = {"XTR24030500002"},
       .steps = {ends("bill|delete from RGStockBillList where StockId=")}},
      {.verb = "SetRGBxrkSaleInClosedTag",
       .arguments = {"BXR24030500001"},
       .steps = {rows_read, ends("bill|update RGStockBill set QtyStutas=1 where Id=")}},
      {.verb = "UndoSetRGBxrkSaleInClosedTag",
       .arguments = {intake},
       .steps = {ends("bill|update RGStockBill set QtyStutas=0 where Id=")}},
      {.verb = "ExitReturnGoods",
       .arguments = {intake},
       .steps = {rows_read},
       .before = {"update RGStockBillItems set YfQty=1 where BillId='BXR24030500002'"}},
      {.verb = "SaveRGBxrkSaleInLists",
       .arguments = {ado::ObjectReference(links)},
       .steps = {ends("bill|insert into RGStockBillList(")}},
  };
}

const Rehearsed intake([] {
  Verbs own = link_verbs();
  own.push_back(sum_verb("BXR24030500002"));
  return repair_document("clsRGStockBxrk", {}, std::move(own));
});
const Rehearsed opening_intake([] {
  return repair_document("clsRGStockBxrkBjkc", {.books = Books::nothing}, {sum_verb("BXB24030500002")});
});
const Rehearsed exchange([] {
  return repair_document("clsRGStockWxdh", {.books = Books::exchange}, {sum_verb("WXD24030500002")});
});
const Rehearsed dispatch([] { return repair_document("clsRGStockFcwx", {}, {sum_verb("FCC24030500002")}); });
const Rehearsed opening_dispatch([] {
  return repair_document("clsRGStockFcwxBjkc", {.books = Books::nothing}, {sum_verb("FCB24030500002")});
});

Repair from_the_factory() {
  return {.books = Books::stock_and_links,
          .voucher = "FKD24030500002",
          .voucher_words = payment_words(),
          .asks_for_accounts = true};
}
Repair to_the_customer() {
  return {.books = Books::stock_and_links,
          .voucher = "SKD24030500002",
          .voucher_words = receipt_words(),
          .deletes_voucher = true};
}

const Rehearsed factory_return([] { return repair_document("clsRGStockSxfh", from_the_factory()); });
const Rehearsed factory_replacement([] { return repair_document("clsRGStockSxDh", from_the_factory()); });

// It sends nothing: it empties the collection in the object.
const std::vector<std::string> silent{"ClearBillItems"};

const Rehearsed customer_return([] {
  RehearsedDocument document = repair_document("clsRGStockFhgk", to_the_customer());
  document.unrehearsed = silent;
  return document;
});
const Rehearsed customer_replacement([] {
  RehearsedDocument document = repair_document("clsRGStockDhgk", to_the_customer());
  document.unrehearsed = silent;
  return document;
});

}  // namespace

}  // namespace brunvik::test
