#include "tests/support/public_members.h"

namespace brunvik::test {

namespace {

const std::string walking_verbs = R"(
verb Long: LoadLast() GetLastId(&LastId:String) LoadNext() LoadPreviou()
)";
const std::string near_verb = R"(
verb Long: GetNearId(CurBillID:String,&NearBillID:String,?NextPreviousId:Boolean=False)
)";

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
)" + walking_verbs +
         R"(
verb Long: LoadById(&BID:String,?lRowNum:Long=-1,?bDHBJ:Boolean=False)
)" + near_verb +
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
)" + near_verb + R"(
verb Long: Audit() UndoAudit()
)";

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
)" + walking_verbs +
         R"(
verb Long: GetNewId(&BID:String) LoadById(&BID:String)
)" + near_verb +
         "verb Long: Audit(" + audit + ") UndoAudit(" + audit + ")\n";
}

// The warehouse documents: what a class has beside the rest.
struct Warehouse {
  std::string person;
  std::string side;
  std::string money;
  std::string refer_flag = "Long";
  std::string result = "Long";
  std::string get_bill = "verb Long: GetBill()\n";
  std::string near = near_verb;
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

std::string rp_voucher(const std::string& manager) {
  return R"(
property Connection: ADOConn
collection Collection: colRPBItems colRPBRPItems
property String: ID Manualid
property Long: )" +
         manager + R"(
property String: Ccompany
property Money: Paidamount Amount
read-only Money: DiscountAmount
property Boolean: Nowpay
property Long: Status
property String: Creator Createtime Auditor Audittime
property Long: Referflag
property String: Referbillid Summary Remarks
verb Long: GetNewId(&BID:String) LoadById(&BID:String) Delete() LoadLast() LoadNext() LoadPreviou()
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetLastId(&LastId:String)
verb Long: GetNextId(CurBillID:String,&NextId:String) Audite(&?Auditor:String=,&?Audittime:String=) UndoAudite()
verb Long: Save() SaveAsDraft()
)";
}

const std::string advance_bill = R"(
property Connection: ADOConn
collection Collection: colAdvanceItems
property String: ID Manualid
property Long: Payer
property String: Ccompany
property Money: Paidamount Amount
property Boolean: Nowpay
property Long: Status
property String: Creator Createtime Auditor Audittime
property Long: Referflag
property String: Referbillid Summary
read-only Money: DiscountAmount
property String: Remarks
verb Long: Save() SaveAsDraft() LoadById(&BID:String) Delete() LoadLast() LoadNext() LoadPreviou()
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetLastId(&LastId:String)
verb Long: GetNextId(CurBillID:String,&NextId:String) GetNewId(&BID:String)
verb Long: Audite(&?Auditor:String=,&?Audittime:String=) UndoAudite()
)";

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

}  // namespace

const std::vector<Expected>& expected_classes() {
  static const std::vector<Expected> classes{
      {"InitBrunvikVariable", R"(
property String: DATAType OperatorId
property Connection: ADOConn
verb Nothing: InitClase_PublicVariable()
)"},
      {"clsPurchaseInBill", purchase_receipt("NowAdvanceBillID", "AdvanceAmount")},
      {"clsPurchaseOutBill", purchase_return},
      {"clsSalesInBill", sales_return("&?IsBJKC:Boolean=False")},
      {"clsSalesOutBill", sales_issue("NowAdvanceBillID", "AdvanceAmount")},
      {"clsOthersInBill", warehouse({.person = "RManager", .side = "", .money = "Paidamount BillCost"})},
      {"clsOthersOutBill", warehouse({.person = "SManager", .side = "", .money = "BillCost"})},
      {"clsReportOfOverflowBill", warehouse({.person = "Manager",
                                             .side = "",
                                             .money = "Paidamount",
                                             .result = "Variant",
                                             .get_bill = "",
                                             .audit = count_audit})},
      {"clsReportOfLossesBill", warehouse({.person = "Manager",
                                           .side = "read-only Long: Inoutflag",
                                           .money = "",
                                           .refer_flag = "Integer",
                                           .result = "Variant",
                                           .get_bill = "verb Variant: GetBill()\n",
                                           .audit = count_audit})},
      {"clsTZBill", warehouse({.person = "RManager", .side = "", .money = "Paidamount BillCost", .near = ""})},
      {"clsPurchaseInBjkcBill", purchase_receipt("", "")},
      {"clsPurchaseOutBjkcBill", purchase_return},
      {"clsSalesOutBjkcBill", sales_issue("", "")},
      {"clsSalesInBjkcBill", sales_return("")},
      {"clsPayBill", rp_voucher("Payer")},
      {"clsReceiptBill", rp_voucher("Skr")},
      {"clsAdvanceBill", advance_bill},
      {"clsAdvanceYSBill", advance_bill},
  };
  return classes;
}

const std::vector<Expected>& expected_records() {
  static const std::vector<Expected> records{
      {"StockRow", stock_row},
      {"CountRow", stock_row},
      {"PaymentRow", R"(
property String: BID
property Integer: Rownum
property Long: MeansOfPayment
property String: kh
property Money: Amount
property String: Remarks
)"},
      {"SettledRow", R"(
property String: BID
property Integer: Rownum
property String: Rpablebid
property Byte: Rpablebtype
property Money: Amount
property String: Remarks
property Money: BillAmount OpenAmount
)"},
  };
  return records;
}

}  // namespace brunvik::test
