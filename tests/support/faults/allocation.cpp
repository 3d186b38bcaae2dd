// Transfer of broken and of repaired goods.
#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

// Neither warehouse has a balance of broken or of repaired goods.
Steps posted(PostedRow row) {
  row.has_balance = false;
  return post(row) + post(row);
}

Steps taken_back(const PostedRow& row) {
  const Steps way = base_quantity(row) + Steps{ends("session|update Inventory set ")};
  return way + way;
}

// From the last row of the object to the first.
Steps broken_taken_back() { return taken_back(both_rows()[1]) + taken_back(both_rows()[0]); }

// By what is stored.
Steps repaired_taken_back() {
  return Steps{ends("session|select * from RGStockBill where Id="),
               ends("session|select * from RGStockBillItems where BillId=")} +
         taken_back(both_rows()[0]) + taken_back(both_rows()[1]);
}

Frame frame() {
  Frame frame = frame_over("RGStockBill", "RGStockBillItems");
  const Step row_added = ends_telling(" AddDbBillItems(): ", "bill|insert into RgStockBillItems(");
  frame.header_updated = ends_telling(" UpdateDbBill(): ", "bill|update RGstockbill set ManualId = ");
  frame.header_removed = ends_telling(" DeleteDbBillAndItems(): ", "bill|delete from RGstockbill where Id=");
  frame.rows_read = {ends("bill|select * from RGStockBillItems where BillId=")};
  frame.rows_added = {row_added, row_added};
  frame.last = ends("bill|select Max(Id) as Id from RGstockbill where processflag=");
  frame.next = ends("bill|select Min(Id) as Id from RgStockBill where id > ");
  return frame;
}

RehearsedDocument allocation(const std::string& class_name, const Steps& undo) {
  const Kind& kind = *automation::class_named(class_name).kind;
  RehearsedDocument document{.class_name = class_name, .prefix = std::string(kind.prefix)};
  document.lay_bills("insert into RGStockBill(Id,ProcessFlag,Status,Supplier,Receiver) values(",
                     "," + std::to_string(*kind.code) + ",2,'W1','W2')");
  document.lay_rows("insert into RGStockBillItems(BillId,RowNum,GId,Class,Model1,Model2,unit,qty) values(",
                    {",1,'G1','五金','M6','','箱',2)", ",2,'G2','五金','M8','','盒',3)"});
  const Frame shared = frame();
  Frame posting = shared;
  posting.rows_added.clear();
  for (std::size_t row = 0; row < both_rows().size(); ++row) {
    const std::string name = "row " + std::to_string(row + 1);
    posting.rows_added.push_back(setting("启用坏件审核", {name}));
    for (const Step& step : posted(both_rows()[row])) posting.rows_added.push_back(named(name, step));
    posting.rows_added.push_back(shared.rows_added[row]);
  }
  Verbs own;
  for (const bool draft : {false, true}) {
    const std::string verb = draft ? "SaveAsDraft" : "Save";
    Steps looked_up{shared.header_sought};
    if (!draft) looked_up.push_back(truth_setting("启用进销审核", ""));
    own = own + saves(verb, looked_up, posting, document.number(9));
  }
  const std::string tag = " UpdateDbBillAudited(): ";
  own.push_back({.verb = "UpdateAudited",
                 .steps = Steps{ends_telling(tag, shared.header_read.begins),
                                ends_telling(tag, "bill|update RGstockbill set Status = 3")} +
                          posted(both_rows()[0]) + posted(both_rows()[1])});
  own.push_back({.verb = "CancelAudited",
                 .steps = Steps{shared.header_read, ends("bill|update RGstockbill set Status = 2")} + undo,
                 .before = {"update RGStockBill set Status=3 where Id=" + quoted(document.bill())}});
  document.verbs = with_frame(class_name, document.prefix, shared, std::move(own));
  return document;
}

const Rehearsed broken([] { return allocation("clsBrokenAllocate", broken_taken_back()); });
const Rehearsed repaired([] { return allocation("clsRestoreAllocate", repaired_taken_back()); });

}  // namespace

}  // namespace brunvik::test
