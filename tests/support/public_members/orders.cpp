// The orders of both sides, their rows and their links.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

const ExpectedClass purchase_order("clsPurOrderBill", R"(
property Connection: ADOConn
collection Collection: colBillItems colOrderOutItems
property String: ID Manualid Supplier Purman Creator Createtime
property Money: BillCost
property Boolean: SendClosedtag
property Long: Referflag
property String: Referbillid Summary Remarks
verb Variant: Save()
verb Long: Delete() LoadLast() GetLastId(&LastId:String) LoadById(&BID:String) LoadNext() LoadPreviou()
verb Long: GetPurInOrderBillItems(PurchaseOrderId:String,PurchaseInId:String) GetNewId(&BID:String)
)" + near_verb() + R"(
verb Long: AddSaleOrderQty(objBillItems:Object) ReduceSaleOrderQty(objBillItems:Object)
verb Long: DetelePurchaseOrderList(PurInId:String) SetSaleClose(BillId:String) UndoSetSaleClose(BillId:String)
verb Boolean: ExchangePurchaseIn(BillId:String)
verb Long: SavePurOrderLists(PurOrderLists:Collection)
)");

const ExpectedClass sales_order("clsSalesOrderBill", R"(
property Connection: ADOConn
collection Collection: colBillItems colOrderOutItems
property String: ID Manualid ClientId Salesman Creator Createtime
property Money: BillCost
property Boolean: SendClosedtag
property Long: Referflag
property String: Referbillid Summary Remarks
verb Variant: Save()
verb Long: Delete() LoadLast() GetLastId(&LastId:String) LoadById(&BID:String) LoadNext() LoadPreviou()
verb Long: GetSalesOrderOutBillItems(SaleOrderId:String,SaleOutId:String) GetNewId(&BID:String)
)" + near_verb() + R"(
verb Long: AddSaleOrderQty(objBillItems:Object) ReduceSaleOrderQty(objBillItems:Object)
verb Long: DeteleSaleOrderList(SaleOutid:String) SetSaleClose(BillId:String) UndoSetSaleClose(BillId:String)
verb Boolean: ExchangeSaleOut(BillId:String)
verb Long: SaveSalesOrderLists(SaleOrderLists:Collection)
)");

std::string order_row(const std::string& partner) {
  return R"(
property String: BillId
property Integer: Rownum
property String: Gid Gbarcode Gname Class Model1 Model2 Unit
property Single: UQty Qty Actualqty
property Money: price Amount
property String: )" +
         partner + " Remarks\n";
}

const ExpectedRecord purchase_row("PurchaseOrderRow", order_row("Supplier"));
const ExpectedRecord sales_row("SalesOrderRow", order_row("Receiver"));

const ExpectedRecord purchase_link("PurchaseOrderLink", R"(
property String: PurOrderId PurInId
property Long: OrderRownum PurRownum
property String: Goodsid unit
property Single: Qty
)");

const ExpectedRecord sales_link("SalesOrderLink", R"(
property String: SaleOrderid SaleOutid
property Long: OrderRownum OutRownum
property String: Goodsid unit
property Single: Qty
)");

}  // namespace

}  // namespace brunvik::test
