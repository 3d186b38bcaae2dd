// Assembly and dismantling.
#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

const std::string item_columns = "Gid,Class,Model1,Model2,Unit,Actualqty,Price,WareHouseId,GoodStutas";
const std::string row_columns = "GId,Class,Model1,Model2,unit,ActualQty,price,WareHouseId,GoodStutas";
const std::string screws = "'G1','五金','M6','','箱',2,120,'W1',0";
const std::string nuts = "'G2','五金','M8','','盒',3,5,'W1',0";

// Three bills for boxes of screws; the second has boxes of screws and packs of nuts for its parts.
void lay_bills(RehearsedDocument& document) {
  const Long type = automation::class_named(document.class_name).kind->code.value();
  document.lay_bills("insert into GoodsBill(Id,Type,InOutFlag,Status," + item_columns + ") values(",
                     "," + std::to_string(type) + ",1,2," + screws + ")");
  document.lay_rows("insert into GoodsBillItems(BillId,RowNum," + row_columns + ") values(",
                    {",1," + screws + ")", ",2," + nuts + ")"});
}

Steps undo(const PostedRow& row) { return base_quantity(row) + Steps{ends("session|update Inventory set ")}; }

// A document whose goods of these places come in: each moves its average, and its earlier sales are mended.
RehearsedDocument assembly_document(const std::string& class_name, const std::vector<PostedRow>& entering) {
  const PostedRow& item = both_rows()[0];
  const Step item_read = ends("session|select * from GoodsBill where Id=");
  const Step parts_read = ends("session|select * from GoodsBillItems where BillId=");

  Steps audit{ends("bill|update GoodsBill set Status=3")};
  Steps back{goes_on("ExecuteNonQuerySql():", "session|UPDATE GOODSBILL SET STATUS=2,AUDITOR='',AUDITTIME=''")};
  for (const PostedRow& row : entering) {
    audit = audit + average("AuditUpdateAverageCost", row) +
            Steps{ends("bill|select StockBillItems.*,Goods.AverageCost from ")};
    if (row.goods == "G1") {
      audit = audit + Steps{factor("箱"), goes_on("ExecuteNonQuerySql():", "session|UPDATE STOCKBILLITEMS SET COST="),
                            goes_on("ExecuteNonQuerySql():", "session|UPDATE STOCKBILL SET BILLCOST=BILLCOST+")};
    }
    back = back + average("UndoAuditUpdateAverageCost", row);
  }
  audit = audit + Steps{item_read} + post(item) + Steps{parts_read} + post(both_rows()[0]) + post(both_rows()[1]);
  back = back + Steps{parts_read} + undo(both_rows()[0]) + undo(both_rows()[1]) + Steps{item_read} + undo(item);

  Frame frame = frame_over("GoodsBill", "GoodsBillItems");
  frame.header_read = ends("bill|select GoodsBill.*,warehouse.WName from GoodsBill ");
  RehearsedDocument document{.class_name = class_name};
  document.prefix = automation::class_named(class_name).kind->prefix;
  lay_bills(document);
  document.verbs = with_frame(class_name, document.prefix, frame, {{"Audit", {}, audit}, {"UndoAudit", {}, back}});
  return document;
}

const Rehearsed assembled([] { return assembly_document("clsGoodsAssembled", {both_rows()[0]}); });
const Rehearsed dismantled([] { return assembly_document("clsGoodsDismantled", both_rows()); });

}  // namespace

}  // namespace brunvik::test
