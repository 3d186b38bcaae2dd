// Purchase receipt and return, with their opening balances; cost sharing and goods arrival.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

std::string purchase_receipt(const std::string& advance, const std::string& advance_amount) {
  return R"(
property Connection: ADOConn
property Boolean: CreateFlag
property String: Nowpaybillid )" +
         advance + R"(
collection Collection: colBillItems
property String: ID Manualid Vendor RkrId Salesman Creator Createtime
read-only Long: Inoutflag
property String: Audittime
property Long: Status
property Money: Paidamount )" +
         advance_amount + R"( Closeamount Amount BillCost
read-only Boolean: Closedtag
property Long: Referflag
property String: Auditor Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() GetNewId(&BID:String)
)" + walking_verbs() +
         R"(
verb Long: LoadById(&BID:String,?lRowNum:Long=-1,?bDHBJ:Boolean=False)
)" + near_verb() +
         R"(
verb Long: Audit(&?bJKC:Boolean=False) UndoAudit(&?bJKC:Boolean=False)
)";
}

const std::string purchase_return = R"(
property Connection: ADOConn
property Long: Status
property String: Nowpaybillid
collection Collection: colBillItems
property String: ID Manualid Vendor CkrId ThrId Creator Createtime Auditor Audittime
property Money: Paidamount Closeamount Amount BillCost
property Long: Deliverymethod
read-only Boolean: Closedtag
property Long: Referflag
property String: Summary Remarks
verb Long: Save() SaveAsDraft() GetNewId(&BID:String) Delete() LoadLast() GetLastId(&LastId:String)
verb Long: LoadById(&BID:String) LoadNext() LoadPreviou()
)" + near_verb() + R"(
verb Long: Audit() UndoAudit()
)";

const ExpectedClass receipt("clsPurchaseInBill", purchase_receipt("NowAdvanceBillID", "AdvanceAmount"));
const ExpectedClass opening_receipt("clsPurchaseInBjkcBill", purchase_receipt("", ""));
const ExpectedClass bill_of_return("clsPurchaseOutBill", purchase_return);
const ExpectedClass opening_return("clsPurchaseOutBjkcBill", purchase_return);

const ExpectedClass cost_sharing("clsShareCost", R"(
property Connection: ADOConn
property String: ID Vendors VendorsName Creator Createtime
property Money: BillCost
property String: PurchaseBill
property Money: PurchaseAmount
property Long: Referflag
property String: Referbillid Summary Remarks
collection Collection: colBillItems colBillCostItems colBillGoodCostItems
verb Long: Save() Delete() LoadById(&?BID:String=,&?PurID:String=) GetPurchaseInBillItems(BillId:String)
verb Long: DeleteShareCostBill() DeleteShareCostBillItems() DeleteShareGoodCostBillItems()
verb Long: AuditShareCostBillItems(bAudit:Boolean) GetNewId(&BID:String)
)");

const ExpectedRecord cost_kind("CostKindRow", R"(
property String: BillId
property Integer: RowNum
property String: CostId CostName
property Money: Amount
property String: ShareMethod remarks
)");

const ExpectedRecord goods_share("GoodsShareRow", R"(
property String: Billid CostId
property Integer: GRowNum
property String: GId
property Single: GoodQty
property String: ShareId
property Money: Sharecost
property String: ShareMethod UseShare
)");

const ExpectedClass arrival("ClsAdjustInBill", R"(
property Connection: ADOConn
collection Collection: colBillItems colPurchaseInItems colPayBillInItems
property String: ID Manualid Manager Salesman Creator Createtime Audittime
property Long: Status Deliverymethod Referflag
property String: Auditor Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() SaveAdjustInBillItems(bStatues:Boolean)
verb Long: DeleteAdjustInBillItems(clsAdjustIn:Object) GetNewId(&BID:String)
)" + walking_verbs() + R"(
verb Long: LoadById(&BID:String)
)" + near_verb() + R"(
verb Long: Audit() UndoAudit()
)");

const ExpectedRecord arrival_row("ArrivalRow", R"(
property String: AdjustId StockId
property Long: RowNum Meansofpayment
property Money: Amount
property Long: StockRowNum
)");

}  // namespace

}  // namespace brunvik::test
