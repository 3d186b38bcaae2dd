// Transfer of broken and of repaired goods; goods found broken and goods repaired in the warehouse.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

const std::string allocation = R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Manualid Supplier Receiver SManager RManager Creator Createtime Auditor Audittime
property Long: Status
property Money: Paidamount
property Long: Referflag
property String: Summary Remarks
verb Long: Save() SaveAsDraft() GetNewId(&BID:String) LoadById(&BID:String) Delete() UpdateAudited() CancelAudited()
verb Long: LoadLast() LoadNext() LoadPreviou() GetLastId(&LastId:String)
)" + near_verb();

const ExpectedClass broken("clsBrokenAllocate", allocation);
const ExpectedClass repaired("clsRestoreAllocate", allocation);

const std::string warehouse_repair = R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Manualid RManager Creator Createtime Auditor Audittime
property Long: Status
property Money: Paidamount BillCost
property Long: Referflag
property String: Summary Remarks
verb Long: Save() SaveAsDraft() GetBill() Delete()
verb Long: LoadLast() GetLastId(&LastId:String) LoadById(&BID:String) LoadNext() LoadPreviou() GetNewId(&BID:String)
)" + near_verb() + R"(
verb Long: Audit() UndoAudit()
)";

const ExpectedClass repair("clsWareHouseRepairBill", warehouse_repair);
const ExpectedClass restore("clsWareHouseRestoreBill", warehouse_repair);

}  // namespace

}  // namespace brunvik::test
