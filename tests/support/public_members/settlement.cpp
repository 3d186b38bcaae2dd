// Payment and receipt vouchers, advances, and their rows.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

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

const ExpectedClass payment("clsPayBill", rp_voucher("Payer"));
const ExpectedClass receipt("clsReceiptBill", rp_voucher("Skr"));
const ExpectedClass advance_paid("clsAdvanceBill", advance_bill);
const ExpectedClass advance_received("clsAdvanceYSBill", advance_bill);

const std::string plan = R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Ctcompany CtcompanyName Manager Creator Createtime
property Long: Status=3
property Money: Amount Paidamount
property String: PayBillId=0
property Boolean: Closedtag
property Long: Billcount
property String: StartDate EndDate
property Long: Referflag
property String: Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() GetBill() Delete() LoadById(&BID:String)
verb String: GetNewId()
verb Nothing: AddPlansBillMessage(&cBid:String,&bClosedTag:Boolean,&BillStatus:Long)
)";

const std::string other_money = R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Manualid Supplier Manager Creator Createtime
property Long: Status
property String: Auditor Audittime
property Money: Paidamount Closeamount Amount
property String: Invoicename
property Long: Invoicetype
property Single: Taxrate
property Integer: Discounttype
property String: Discountcard
property Single: Discountrate
property Byte: Deliverymethod
property Boolean: Closedtag
property String: Nowpaybillid
property Long: Referflag
property String: Referbillid Lastupdatetime Summary Remarks
verb Long: Save() SaveAsDraft() GetNewId(&BID:String) LoadById(&BID:String) Delete() UpdateAudited() CancelAudited()
verb Long: LoadLast() LoadNext() LoadPreviou() GetLastId(&LastId:String)
)" + near_verb();

const ExpectedClass receipt_plan("ClsReceivePlanBill", plan);
const ExpectedClass payment_plan("clsPayPlanBill", plan);
const ExpectedClass other_receivable("ClsOthersIncomeBill", other_money);
const ExpectedClass other_payable("clsOthersExpenseBill", other_money);
const ExpectedClass opening_receivable("clsOthersIncomeBjkcBill", other_money);
const ExpectedClass opening_payable("clsOthersExpenseBjkcBill", other_money);

const ExpectedClass account("ClsZHXX", R"(
property Connection: ADOConn
property String: Zh Khh
property Single: Ye
verb Long: Add() UpDate() Delete()
)");

const ExpectedClass movement("clsZHJYXX", R"(
property Connection: ADOConn
property String: ID ZhID Jyzy Jysj
property Single: Jyje
property Integer: Jyfs Jylx
property String: ZczhID Dyid Cjsj Czy Jbr DYDJH
verb Long: Add() UpDate() Delete()
)");

const ExpectedRecord plan_row("PlanRow", R"(
property String: PlanId Otbillid
property Long: BillType
property Boolean: ClosedBill
property Money: Closedamount Paidamount
property String: Remarks
property Boolean: HasLaterVoucher
)");

const ExpectedRecord other_money_row("OtherMoneyRow", R"(
property String: Billid
property Integer: Rownum
property String: Itemid Itemname Unit
property Single: Qty
property Money: Price Amount
property String: Remarks
)");

const ExpectedRecord payment_row("PaymentRow", R"(
property String: BID
property Integer: Rownum
property Long: MeansOfPayment
property String: kh
property Money: Amount
property String: Remarks
)");

const ExpectedRecord settled_row("SettledRow", R"(
property String: BID
property Integer: Rownum
property String: Rpablebid
property Byte: Rpablebtype
property Money: Amount
property String: Remarks
property Money: BillAmount OpenAmount
)");

}  // namespace

}  // namespace brunvik::test
