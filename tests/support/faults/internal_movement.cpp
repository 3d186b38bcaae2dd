// Transfer and state conversion: every row goes out of one balance and into another, and a row that fails doesn't keep
// the others from it.
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

// Out and in: the way in finds the balance that the way out has made.
Steps post_both_ways(PostedRow row) {
  const Steps out = post(row);
  row.has_balance = true;
  return out + post(row);
}

Steps undo_both_ways() {
  Steps steps{ends("session|select * from StockBillItems where BillId=")};
  for (const PostedRow& row : both_rows()) {
    for (int way = 0; way < 2; ++way) {
      steps = steps + base_quantity(row) + Steps{ends("session|update Inventory set ")};
    }
  }
  return steps;
}

Frame movement_frame() {
  Frame frame = stock_frame();
  frame.rows_read = {ends("bill|select * from StockBillItems where BillId=")};
  return frame;
}

// Its audit goes from the last row to the first, whose post is the result.
const Rehearsed transfer([] {
  const Frame frame = movement_frame();
  const Step marked = ends("bill|update stockbill set Status = ");
  const Steps audit = Steps{header_read(), marked, row_cost()} +
                      apart("second row", post_both_ways(both_rows()[1]), false) + Steps{row_cost()} +
                      apart("first row", post_both_ways(both_rows()[0]), true) + Steps{bill_cost()};
  const Steps undo = Steps{header_read(), marked, row_cost(), row_cost(), bill_cost()} + undo_both_ways();
  return stock_document(
      "clsDbBill",
      {{.verb = "UpdateAudited", .steps = audit},
       {.verb = "CancelAudited", .steps = undo, .before = {"update StockBill set Status=3 where Id='DBD24030500002'"}},
       {.verb = "GetDbBillItems", .steps = frame.rows_read}},
      {.frame = frame});
});

// Its save posts each row behind its insert, also one that isn't there; the last post is the result.
const Rehearsed conversion([] {
  const Step states = ends("session|select * from StockBill where Id=");
  const Steps undo = apart("undo", Steps{states} + undo_both_ways(), false);
  const Step row_added = apart("", {ends("bill|insert into StockBillItems(")}, false).front();
  const Steps rows = Steps{row_added} + apart("first row", Steps{states} + post_both_ways(both_rows()[0]), false) +
                     Steps{row_added} + apart("second row", Steps{states} + post_both_ways(both_rows()[1]), true);
  return stock_document("clsGoodsConvertBill",
                        {{.verb = "Save",
                          .steps = Steps{header_read(), ends("bill|insert into StockBill(")} + rows,
                          .remark = "for_the_first_time",
                          .number = "ZHD24030500009"},
                         {.verb = "Save",
                          .steps = Steps{header_read()} + undo +
                                   Steps{rows_removed(), ends("bill|update stockbill set ManualId = ")} + rows,
                          .remark = "again"},
                         {.verb = "Delete", .steps = undo + Steps{rows_removed(), header_removed()}}},
                        {.frame = movement_frame()});
});

}  // namespace

}  // namespace brunvik::test
