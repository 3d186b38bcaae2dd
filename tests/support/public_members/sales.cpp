// Sales issue and return, with their opening balances.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

std::string sales_issue(const std::string& advance, const std::string& advance_amount) {
  return R"(
property Connection: ADOConn
property Boolean: JQBJ FHBJ CreateFlag
property String: Nowpaybillid )" +
         advance + R"(
collection Collection: colBillItems
property String: ID Manualid ClientId CkrId Salesman Creator Createtime Audittime
property Long: Status
property Money: Paidamount )" +
         advance_amount + R"( Closeamount Amount BillCost
read-only Boolean: Closedtag
property String: Invoicename
property Long: Invoicetype
property Single: Taxrate
property Integer: Discounttype
property String: Discountcard
property Single: Discountrate
property Long: Deliverymethod Referflag
property String: Auditor Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() LoadLast(&?sIDQZ:String=) GetLastId(&LastId:String,&?sIDQZ:String=)
verb Long: LoadById(&BID:String) LoadNext(&?sIDQZ:String=) LoadPreviou(&?sIDQZ:String=)
verb Long: GetNewId(&BID:String,&?sIDQZ:String=)
verb Long: GetNearId(CurBillID:String,&NearBillID:String,?NextPreviousId:Boolean=False,&?sIDQZ:String=)
verb Long: Audit(&?bJKC:Boolean=False) UndoAudit(&?bJKC:Boolean=False)
)";
}

std::string sales_return(const std::string& audit) {
  return R"(
property Connection: ADOConn
property String: Nowpaybillid
collection Collection: colBillItems
property String: ID Manualid RkrId ClientId Manager Creator Createtime
property Long: Status
property String: Auditor Audittime
property Money: Paidamount Closeamount Amount BillCost
property String: Invoicename
property Long: Invoicetype
property Single: Taxrate
read-only Boolean: Closedtag
property Long: Referflag
property String: Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() DeleteSalesInBillAndItems()
)" + walking_verbs() +
         R"(
verb Long: GetNewId(&BID:String) LoadById(&BID:String)
)" + near_verb() +
         "verb Long: Audit(" + audit + ") UndoAudit(" + audit + ")\n";
}

const ExpectedClass issue("clsSalesOutBill", sales_issue("NowAdvanceBillID", "AdvanceAmount"));
const ExpectedClass opening_issue("clsSalesOutBjkcBill", sales_issue("", ""));
const ExpectedClass bill_of_return("clsSalesInBill", sales_return("&?IsBJKC:Boolean=False"));
const ExpectedClass opening_return("clsSalesInBjkcBill", sales_return(""));

}  // namespace

}  // namespace brunvik::test
