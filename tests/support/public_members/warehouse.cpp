// Other receipts and issues, the two count reports, stock adjustment; the rows of all that stands in StockBill.
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

}  // namespace

}  // namespace brunvik::test
