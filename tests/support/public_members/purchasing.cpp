// Purchase receipt and return, with their opening balances.
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

}  // namespace

}  // namespace brunvik::test
