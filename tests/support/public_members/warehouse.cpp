// Other receipts and issues, the two count reports, stock adjustment, transfer and conversion, assembly and
// dismantling, opening stock; the rows of all that stands in StockBill, and those of an assembly.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

// The warehouse documents: what a class has beside the rest.
struct Warehouse {
  std::string person;
  std::string side;
  std::string money;
  std::string refer_flag = "Long";
  std::string result = "Long";
  std::string get_bill = "verb Long: GetBill()\n";
  std::string near = near_verb();
  std::string audit = "verb Long: Audit() UndoAudit()\n";
};

std::string warehouse(const Warehouse& own) {
  return R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Manualid )" +
         own.person + R"( Creator Createtime
)" + own.side +
         R"(
property String: Auditor Audittime
property Long: Status
property Money: )" +
         own.money + "\nproperty " + own.refer_flag + R"(: Referflag
property String: Summary Remarks
verb )" + own.result +
         ": Save() SaveAsDraft()\n" + own.get_bill + "verb " + own.result + R"(: Delete()
verb Long: LoadLast() GetLastId(&LastId:String) LoadById(&BID:String) LoadNext() LoadPreviou() GetNewId(&BID:String)
)" + own.near +
         own.audit;
}

const std::string count_audit = "verb Long: UpdateAudited() CancelAudited()\n";

const ExpectedClass other_receipt("clsOthersInBill",
                                  warehouse({.person = "RManager", .side = "", .money = "Paidamount BillCost"}));
const ExpectedClass other_issue("clsOthersOutBill", warehouse({.person = "SManager", .side = "", .money = "BillCost"}));
const ExpectedClass overage_report("clsReportOfOverflowBill", warehouse({.person = "Manager",
                                                                         .side = "",
                                                                         .money = "Paidamount",
                                                                         .result = "Variant",
                                                                         .get_bill = "",
                                                                         .audit = count_audit}));
const ExpectedClass loss_report("clsReportOfLossesBill", warehouse({.person = "Manager",
                                                                    .side = "read-only Long: Inoutflag",
                                                                    .money = "",
                                                                    .refer_flag = "Integer",
                                                                    .result = "Variant",
                                                                    .get_bill = "verb Variant: GetBill()\n",
                                                                    .audit = count_audit}));
const ExpectedClass adjustment(
    "clsTZBill", warehouse({.person = "RManager", .side = "", .money = "Paidamount BillCost", .near = ""}));

// The documents that move goods inside the company: their two ends, and the verbs in front of the walk.
std::string internal_movement(const std::string& ends, const std::string& verbs) {
  return R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Manualid )" +
         ends + R"( Creator Createtime Auditor Audittime
property Long: Status
property Money: Paidamount
property Long: Referflag
property String: Summary Remarks
)" + verbs +
         R"(
verb Long: LoadLast() LoadNext() LoadPreviou() GetLastId(&LastId:String)
)" + near_verb();
}

const ExpectedClass transfer(
    "clsDbBill", internal_movement("Supplier Receiver SManager RManager",
                                   "verb Long: Save() SaveAsDraft() GetNewId(&BID:String) LoadById(&BID:String) "
                                   "Delete() UpdateAudited() CancelAudited() GetDbBillItems()"));
const ExpectedClass conversion(
    "clsGoodsConvertBill", internal_movement("OldWareHouse NewWareHouse OldStatus NewStatus",
                                             "verb Long: Save() Delete() GetNewId(&BID:String) LoadById(&BID:String)"));

const std::string assembly = R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Manualid Manager Salesman Creator Createtime Auditor Audittime
property Long: Status Referflag
property String: Referbillid Summary Remarks
property Integer: Inoutflag
property String: Gid Gbarcode Gname Class Model1 Model2 Unit
property Single: Actualqty
property Money: price Amount
property String: WareHouseID WareHouseName
property Long: GoodStatus
verb Long: LoadLast() Save() SaveAsDraft() GetBill() Delete() GetLastId(&LastId:String) LoadById(&BID:String)
verb Long: LoadNext() LoadPreviou() GetNewId(&BID:String)
)" + near_verb() + R"(
verb Long: Audit() UndoAudit()
)";
const ExpectedClass assembled("clsGoodsAssembled", assembly);
const ExpectedClass dismantled("clsGoodsDismantled", assembly);

const ExpectedClass opening_stock("clsInitInBill", R"(
property Connection: ADOConn
property Boolean: CreateFlag
property String: Receiver Nowpaybillid
collection Collection: colBillItems
property String: ID Manualid Vendor RkrId Salesman Creator Createtime
read-only Long: Inoutflag
property String: Auditor Audittime
property Long: Status
property Money: Paidamount Closeamount Amount BillCost
property Integer: Referflag
property String: Referbillid Summary Remarks
verb Long: Save(&sZLID:String,&iZYCP:Integer,&iCPZT:Integer) RGSave(&sZLID:String,&iZYCP:Integer,&iCPZT:Integer)
verb Long: GetNewId(&BID:String) GetRGNewId(&BID:String) LoadById(&BID:String) LoadRGById(&BID:String)
)");

const std::string stock_row = R"(
property String: BillId
property Integer: Rownum
property String: Gid Gbarcode Gname Class Model1 Model2 Unit
property Single: Qty Actualqty
property Money: price Amount Cost
property String: Receiver Wname Equipcode Remarks Supplier Outfactorydate Buydate Accessory
property Money: ShareCost
property Long: GoodStutas SendStutas
property Money: xfmount
property Long: MeansOfPayment
)";

const ExpectedRecord row("StockRow", stock_row);
const ExpectedRecord count_row("CountRow", stock_row);
const ExpectedRecord assembly_row("AssemblyRow", R"(
property String: BillId
property Integer: RowNum
property String: GId GBarcode GName Class Model1 Model2 unit
property Single: ActualQty
property Money: price Amount
property String: WareHouseId EquipCode
property Long: GoodStutas
property String: remarks WName
)");

}  // namespace

}  // namespace brunvik::test
