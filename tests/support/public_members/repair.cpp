// The documents of a broken item on its road, their rows and links.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

// What all of them have around the members of their group.
struct Repair {
  std::string behind_connection = {};
  std::string behind_kind;
  std::string behind_creation = {};
  std::string verbs = {};
};

std::string repair(const Repair& own) {
  return "property Connection: ADOConn\n" + own.behind_connection + R"(
collection Collection: RGBillItems
property String: BillId Manualid
read-only Integer: Processflag
)" + own.behind_kind +
         R"(
property String: Creator Createtime
)" + own.behind_creation +
         R"(
read-only Long: Inoutflag
property Long: Status
property String: Auditor Audittime
property Long: Referflag
property String: Referbillid Summary Remarks
verb Long: GetBillAndItem(&?bGetItems:Boolean=False) Save() SaveAsDraft() Delete() LoadById(&BID:String)
verb Long: LoadLast() LoadNext() LoadPreviou() GetNewId(&BID:String)
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetLastId(&LastId:String)
verb Long: GetNextId(CurBillID:String,&NextId:String) Audit() UndoAudit()
)" + own.verbs;
}

std::string intake(const std::string& links, const std::string& link_verbs) {
  return repair({.behind_connection = links,
                 .behind_kind = R"(
property String: CustomerBH Fixtype
property Integer: Needdays QtyStutas
property String: RuKuRen JingBanRen
)",
                 .behind_creation = "property String: BaoXiuDate\n",
                 .verbs = "verb Long: GetRgStockBillitems(cBillid:String)\n" + link_verbs});
}

const std::string dispatch = repair({.behind_kind = R"(
property String: GongYingShangBM ChuKuRen
property Long: Deliverymethod=1
property Integer: QtyStutas
property String: BaoXiuDate
)",
                                     .verbs = "verb Long: GetRgStockBillitems(cBillid:String)\n"});

const std::string from_factory = repair({.behind_kind = R"(
property String: GongYingShangBH
property Money: BillAmount
property String: PayMethod
property Money: Paidamount Closeamount
read-only Boolean: Closedtag
property String: RuKuRen Nowpaybillid
)"});

const std::string to_customer = repair({.behind_kind = R"(
property String: KeHuBH JingBanRen ChuKuRen
property Money: BillAmount
property String: PayMethod
property Money: Paidamount Closeamount
property Integer: Discounttype
property String: Discountcard
property Single: Discountrate=1
property String: Invoicename
property Long: Invoicetype
read-only Long: Taxrate
property Long: Deliverymethod=1
read-only Boolean: Closedtag
property String: Nowpaybillid
)",
                                        .verbs = "verb Long: ClearBillItems()\n"});

const ExpectedClass repair_intake("clsRGStockBxrk", intake("collection Collection: colSaleInItems\n", R"(
verb Long: GetRGBxrkSaleInBillItems(RGBxrkId:String,SaleInId:String)
verb Long: AddRGBxrkSaleInQty(objBillItems:Object) ReduceRGBxrkSaleInQty(objBillItems:Object)
verb Long: DeteleRGBxrkSaleInList(SaleInId:String) SetRGBxrkSaleInClosedTag(BillId:String)
verb Long: UndoSetRGBxrkSaleInClosedTag(BillId:String) ExitReturnGoods(BillId:String)
verb Long: SaveRGBxrkSaleInLists(RGBxrkSaleInLists:Collection)
)"));
const ExpectedClass opening_intake("clsRGStockBxrkBjkc", intake("", ""));
const ExpectedClass exchange("clsRGStockWxdh", intake("", ""));
const ExpectedClass factory_dispatch("clsRGStockFcwx", dispatch);
const ExpectedClass opening_dispatch("clsRGStockFcwxBjkc", dispatch);
const ExpectedClass factory_return("clsRGStockSxfh", from_factory);
const ExpectedClass factory_replacement("clsRGStockSxDh", from_factory);
const ExpectedClass customer_return("clsRGStockFhgk", to_customer);
const ExpectedClass customer_replacement("clsRGStockDhgk", to_customer);

const ExpectedRecord repair_row("RepairRow", R"(
property String: DYGId
property Single: YfQty
property Integer: DYRowNum Rownum
property String: Gid Gname Gbarcode Class Model1 Model2 Unit
property Single: Qty
property String: GuanLianBill
property Money: price Amount
property String: Storehouse OutHouse Brokendspt Fixmeans Outfactorydate Equipcode Buydate Accessory Remarks
)");

const ExpectedRecord sales_return_link("RGBxrkSaleInList", R"(
property String: RGBxrkId Stockid
property Long: RGStocktype Stocktype RgstockRownum StockRownum
property String: GoodsId Unit
property Single: Qty
property Long: Goodstutas
)");

}  // namespace

}  // namespace brunvik::test
