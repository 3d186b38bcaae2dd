// Money: the accounts and their journal, vouchers, advances, plans, other income and expense.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column account[] = {
    {"ID", Key},
    {"ZH", Key},
    {"KHH", Text},
    {"YE", Money, zero},
    {"ZHLX", Integer},
};
constexpr std::string_view account_indexes[] = {"ZH"};

constexpr Column journal[] = {
    {"ID", Key},
    {"ZHID", Key},
    {"JYZY", Memo},
    {"JYSJ", Date},
    {"JYJE", Money, zero},
    {"JYFS", Integer},
    {"JYLX", Integer},
    {"ZCZHID", Key},
    {"DYID", Key},
    {"CJSJ", Date},
    {"CZY", Text},
    {"JBR", Text},
    {"DYDJH", Key},
    {"XM", Text},
    {"SFKR", Text},
};
constexpr std::string_view journal_indexes[] = {"DYDJH"};

// Vouchers and advances are told apart by their table and their type, and have the same columns.
constexpr Column voucher[] = {
    {"Id", Key},
    {"Manualid", Key},
    {"Manager", Long},
    {"Ccompany", Key},
    {"Type", Long},
    {"Paidamount", Money, zero},
    {"Amount", Money, zero},
    {"Nowpay", Boolean, zero},
    {"Status", Long},
    {"Creator", Text},
    {"Createtime", Date},
    {"Auditor", Text},
    {"Audittime", Date},
    {"Referflag", Long},
    {"Referbillid", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
};

// The means of payment is a code of the host.
constexpr Column voucher_money[] = {
    {"BID", Key},
    {"RowNum", Integer},
    {"MeansOfPayment", Long},
    {"kh", Text},
    {"Amount", Money, zero},
    {"Remarks", Memo},
};
// The rows of a voucher, in their order. They come and go together and are never changed.
constexpr std::string_view of_voucher = "BID, RowNum";
constexpr std::string_view voucher_money_indexes[] = {of_voucher};

constexpr Column settled_bill[] = {
    {"BID", Key},
    {"RowNum", Integer},
    {"RPableBID", Key},
    {"RPableBType", Byte},
    {"Amount", Money, zero},
    {"Remarks", Memo},
};
// The second for what other vouchers have settled of the same bill.
constexpr std::string_view settled_bill_indexes[] = {of_voucher, "RPableBID"};

constexpr Column plans_bill[] = {
    {"Id", Key},
    {"CtCompany", Key},
    {"Manager", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Status", Long},
    {"Amount", Money, zero},
    {"PaidAmount", Money, zero},
    {"PayBillId", Key},
    {"ClosedTag", Boolean, zero},
    {"BillCount", Long},
    {"Type", Long},
    {"StartDate", Date},
    {"Enddate", Date},
    {"ReferFlag", Long},
    {"ReferBillID", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
};

constexpr Column plans_bill_items[] = {
    {"PlanId", Key},
    {"OTBillId", Key},
    {"BillType", Long},
    {"ClosedBill", Integer},  // 1 or 2, so no Boolean
    {"ClosedAmount", Money, zero},
    {"PaidAmount", Money, zero},
    {"remarks", Memo},
};

// The lists are filled by an insert that names no column: the number of the plan is all they may have.
constexpr Column plan_list[] = {
    {"PlanId", Key},
};
constexpr std::string_view by_plan[] = {"PlanId"};

constexpr Column others_bill[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"CCompany", Key},
    {"Manager", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Type", Long},
    {"Status", Long},
    {"Auditor", Text},
    {"Audittime", Date},
    {"Paidamount", Money, zero},
    {"Closeamount", Money, zero},
    {"Amount", Money, zero},
    {"Invoicename", Text},
    {"Invoicetype", Long},
    {"Taxrate", Single},
    {"Discounttype", Integer},
    {"Discountcard", Text},
    {"Discountrate", Single},
    {"Deliverymethod", Byte},
    {"Closedtag", Boolean, zero},
    {"Nowpaybillid", Key},
    {"Referflag", Long},
    {"Referbillid", Key},
    {"Lastupdatetime", Date},
    {"Summary", Memo},
    {"Remarks", Memo},
};

constexpr Column others_bill_items[] = {
    {"Billid", Key},
    {"Rownum", Integer},
    {"Itemid", Key},
    {"Itemname", Text},
    {"Unit", Key},
    {"Qty", Single},
    {"Price", Money, zero},
    {"Amount", Money, zero},
    {"Remarks", Memo},
};

constexpr Table family[] = {
    {"ZHXX", account, "ID", account_indexes},
    {"ZHJYXX", journal, "ID", journal_indexes, "ID"},  // the next key is one more than the highest, as a number
    {"RPVouchers", voucher, "Id", by_type},
    {"RPBItems", voucher_money, "", voucher_money_indexes, "", of_voucher},
    {"RPBRPItems", settled_bill, "", settled_bill_indexes, "", of_voucher},
    {"AdvanceBill", voucher, "Id", by_type},
    {"AdvanceItems", settled_bill, "", settled_bill_indexes, "", of_voucher},
    {"PlansBill", plans_bill, "Id"},
    {"PlansBillItems", plans_bill_items, "", by_plan},
    {"WCPlansItems", plan_list, "", by_plan},
    {"WWCPlansItems", plan_list, "", by_plan},
    {"OthersIEBill", others_bill, "Id", by_type},
    {"OthersIEBillItems", others_bill_items, "", by_bill},
};

// clang-format on

}  // namespace

std::span<const Table> settlement_tables() { return family; }

}  // namespace brunvik::schema
