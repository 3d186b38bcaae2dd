// The orders of both sides.
#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

// What one side names in its own way.
struct Side {
  std::string class_name, prefix;
  std::string header, rows, links;
  std::string link_record, order_column, bill_column;
  std::string read_links, delete_links, is_in_use, save_links;
  std::string rows_read, in_use_asked;
};

// The link of two boxes of screws to the first row of the order.
Value link_in(const Side& side, const std::string& order, const std::shared_ptr<RowCollection>& links) {
  PublicObject& link = links->add();
  automation::put(link, side.order_column, order);
  automation::put(link, side.bill_column, "B1");
  automation::put(link, "OrderRownum", 1);
  automation::put(link, "Goodsid", "G1");
  automation::put(link, "unit", "箱");
  automation::put(link, "Qty", 2);
  return ado::ObjectReference(std::shared_ptr<PublicObject>(links, &link));
}

RehearsedDocument order(const Side& side) {
  RehearsedDocument document{.class_name = side.class_name, .prefix = side.prefix};
  document.lay_bills("insert into " + side.header + "(Id) values(", ")");
  // The rows are full, so that the order can be closed.
  document.lay_rows("insert into " + side.rows + "(BillId,RowNum,GId,qty,Actualqty) values(",
                    {",1,'G1',24,24)", ",2,'G2',3,3)"});
  Frame frame = frame_over(side.header, side.rows);
  frame.rows_read = {ends(side.rows_read)};
  frame.last = ends("bill|select TOP 1 * from " + side.header + " where id like '" + side.prefix + "%'");

  const auto records = [&] { return automation::create_rows(side.link_record); };
  const Value link = link_in(side, document.bill(), records());
  const auto two = records();
  link_in(side, document.bill(), two);
  link_in(side, document.bill(), two);
  const std::string update = "bill|update " + side.rows + " set ActualQty=ActualQty";
  const std::string close = "bill|update " + side.header + " set SendClosedtag=";
  const Step link_added = ends("bill|insert into " + side.links + "(");
  // True: an order that can't be asked about counts as in use.
  const Step asked = ending_with(-1, ends(side.in_use_asked));
  document.verbs = with_frame(
      document.class_name, document.prefix, frame,
      {
          {side.read_links, {document.bill(), "B1"}, {ends("bill|select * from " + side.links + " where ")}},
          {side.delete_links, {"B1"}, {ends("bill|delete from " + side.links + " where ")}},
          {side.is_in_use, {document.bill()}, {asked}},
          {side.save_links, {ado::ObjectReference(two)}, {link_added, link_added}},
          {"AddSaleOrderQty", {link}, {factor("箱"), ends(update + "+")}},
          {"ReduceSaleOrderQty", {link}, {factor("箱"), ends(update + "-")}},
          {"SetSaleClose", {document.bill()}, {ends("bill|select * from " + side.rows + " where "), ends(close + "1")}},
          {"UndoSetSaleClose", {document.bill()}, {ends(close + "0")}},
      });
  return document;
}

const Rehearsed purchase_order([] {
  return order({.class_name = "clsPurOrderBill",
                .prefix = "CDD",
                .header = "PurchaseOrder",
                .rows = "PurchaseOrderItems",
                .links = "PurchaseOrderList",
                .link_record = "PurchaseOrderLink",
                .order_column = "PurOrderId",
                .bill_column = "PurInId",
                .read_links = "GetPurInOrderBillItems",
                .delete_links = "DetelePurchaseOrderList",
                .is_in_use = "ExchangePurchaseIn",
                .save_links = "SavePurOrderLists",
                .rows_read = "bill|select * from PurchaseOrderItems where BillId=",
                .in_use_asked = "bill|select id from StockBill where ReferBillID="});
});

const Rehearsed sales_order([] {
  return order({.class_name = "clsSalesOrderBill",
                .prefix = "XDD",
                .header = "SaleOrder",
                .rows = "SaleOrderItems",
                .links = "SaleOutOrderList",
                .link_record = "SalesOrderLink",
                .order_column = "SaleOrderid",
                .bill_column = "SaleOutid",
                .read_links = "GetSalesOrderOutBillItems",
                .delete_links = "DeteleSaleOrderList",
                .is_in_use = "ExchangeSaleOut",
                .save_links = "SaveSalesOrderLists",
                .rows_read = "bill|select SaleOrderItems.* from SaleOrderItems where ",
                .in_use_asked = "bill|select top 1 id from StockBill where ReferBillID="});
});

}  // namespace

}  // namespace brunvik::test
