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
