// Goods lent and borrowed, their opening balances and their returns; their rows and links.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

// What stands between the number and the people of a document, and what stands behind those.
const std::string numbers = R"(
property String: ID Manualid
property Long: UserFlag
)";
const std::string common = R"(
property String: Salesman Creator Createtime
property Integer: Inoutflag=1
property Byte: Status
property String: Auditor Audittime
property Money: Amount BillCost
property Boolean: Closedtag
property Long: Referflag
property String: Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() GetNewId(&BID:String)
)" + walking_verbs() + R"(
verb Long: LoadById(&BID:String)
)" + near_verb() + R"(
verb Long: Audit() UndoAudit()
)";

const std::string borrow_in = R"(
property Connection: ADOConn
property Long: BorrowDays
collection Collection: colBillItems colPurchaseInItems
)" + numbers + R"(
property String: Supplier Receiver RManager SManager
)" + common + R"(
verb Long: GetBorrowPurInBillItems(BorrowInId:String,PurId:String)
verb Long: AddBorrowPurQty(objBillItems:Object) ReduceBorrowPurQty(objBillItems:Object)
verb Long: DeteleBorrowPurList(PurId:String)
verb Long: SetBorrowInClosedTag(BillId:String) UndoSetBorrowInClosedTag(BillId:String)
verb Long: ExitReturnGoods(BillId:String) SaveBorrowInPurLists(BorrowInPurLists:Collection)
)";

const std::string borrow_out = R"(
property Connection: ADOConn
property Long: CreateFlag BorrowDays Deliverymethod
collection Collection: colSaleOutItems colBillItems
property String: Telphone
)" + numbers + R"(
property String: SManager Receiver
)" + common + R"(
verb Long: GetBorrowSaleOutBillItems(BorrowOutId:String,SaleOutId:String)
verb Long: AddBorrowPurQty(objBillItems:Object) ReduceBorrowPurQty(objBillItems:Object)
verb Long: DeteleBorrowPurList(PurId:String)
verb Long: SetBorrowOutClosedTag(BillId:String) UndoSetBorrowOutClosedTag(BillId:String)
verb Long: ExitReturnGoods(BillId:String) SaveBorrowOutPurLists(BorrowOutPurLists:Collection)
verb Long: UndoAuditSaveAsDraft(BillId:String)
)";

const ExpectedClass goods_borrowed("clsBorrowIn", borrow_in);
const ExpectedClass goods_borrowed_at_the_start("clsBorrowInBjkc", borrow_in);
const ExpectedClass goods_lent("clsBorrowOut", borrow_out);
const ExpectedClass goods_lent_at_the_start("clsBorrowOutBjkc", borrow_out);

const ExpectedClass borrow_in_return("clsBorrowInReturn", R"(
property Connection: ADOConn
property Long: Deliverymethod
collection Collection: colBillItems
)" + numbers + R"(
property String: SManager Receiver
)" + common + R"(
verb Long: AddBorrowInQty(objBillItems:Object,OutId:String) ReduceBorrowInQty(objBillItems:Object,OutId:String)
)");

const ExpectedClass borrow_out_return("clsBorrowOutReturn", R"(
property Connection: ADOConn
property Long: CreateFlag
collection Collection: colBillItems
)" + numbers + R"(
property String: Supplier RManager
)" + common + R"(
verb Long: AddBorrowOutQty(objBillItems:Object,OutId:String) ReduceBorrowOutQty(objBillItems:Object,OutId:String)
)");

const ExpectedRecord row("BorrowRow", R"(
property String: BillId
property Integer: Rownum
property String: Gid Gbarcode Gname Class Model1 Model2 Unit
property Single: Uqty Actualqty
property Money: price Amount Cost
property String: Receiver Supplier Equipcode Remarks
property Long: GoodStutas SendStutas
property String: Wname
)");

const ExpectedRecord link("BorrowLink", R"(
property String: BorrowId StcokId
property Long: BorrowType StcokType BorrowRowNum StcokRowNum
property String: Goodsid unit
property Long: GoodStutas
property Single: Qty
)");

}  // namespace

}  // namespace brunvik::test
