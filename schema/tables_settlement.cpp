// Money: the accounts and their journal, vouchers, advances, plans, other income and expense.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column account[] = {
    {"ID", Text},
    {"ZH", Text},
    {"KHH", Text},
    {"YE", Money, zero},
    {"ZHLX", Integer},
};
constexpr std::string_view account_indexes[] = {"ZH"};

constexpr Column journal[] = {
    {"ID", Text},
    {"ZHID", Text},
    {"JYZY", Text},
    {"JYSJ", Date},
    {"JYJE", Money, zero},
    {"JYFS", Integer},
    {"JYLX", Integer},
    {"ZCZHID", Text},
    {"DYID", Text},
    {"CJSJ", Date},
    {"CZY", Text},
    {"JBR", Text},
    {"DYDJH", Text},
    {"XM", Text},
    {"SFKR", Text},
};
// The next key is one more than the highest, as a number. The last holds the keys that aren't plain numbers: none, as
// long as nobody enters one by hand.
constexpr std::string_view journal_indexes[] = {
    "DYDJH",
    "CAST(ID AS INTEGER)",
    "ID where length(ID) NOT BETWEEN 1 AND 9 OR ID GLOB '*[^0-9]*'",
};

// Vouchers and advances are told apart by their table and their type, and have the same columns.
constexpr Column voucher[] = {
    {"Id", Text},
    {"Manualid", Text},
    {"Manager", Long},
    {"Ccompany", Text},
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
    {"Referbillid", Text},
    {"Summary", Text},
    {"Remarks", Text},
};

// The means of payment is a code of the host.
constexpr Column voucher_money[] = {
    {"BID", Text},
    {"RowNum", Integer},
    {"MeansOfPayment", Long},
    {"kh", Text},
    {"Amount", Money, zero},
    {"Remarks", Text},
};
constexpr std::string_view voucher_money_indexes[] = {"BID, RowNum"};

constexpr Column settled_bill[] = {
    {"BID", Text},
    {"RowNum", Integer},
    {"RPableBID", Text},
    {"RPableBType", Byte},
    {"Amount", Money, zero},
    {"Remarks", Text},
};
// The second for what other vouchers have settled of the same bill.
constexpr std::string_view settled_bill_indexes[] = {"BID, RowNum", "RPableBID"};

constexpr Column plans_bill[] = {
    {"Id", Text},
    {"CtCompany", Text},
    {"Manager", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Status", Long},
    {"Amount", Money, zero},
    {"PaidAmount", Money, zero},
    {"PayBillId", Text},
    {"ClosedTag", Boolean, zero},
    {"BillCount", Long},
    {"Type", Long},
    {"StartDate", Date},
    {"Enddate", Date},
    {"ReferFlag", Long},
    {"ReferBillID", Text},
    {"Summary", Text},
    {"Remarks", Text},
};

constexpr Column plans_bill_items[] = {
    {"PlanId", Text},
    {"OTBillId", Text},
    {"BillType", Long},
    {"ClosedBill", Integer},  // 1 or 2, so no Boolean
    {"ClosedAmount", Money, zero},
    {"PaidAmount", Money, zero},
    {"remarks", Text},
};

// The lists are filled by an insert that names no column: the number of the plan is all they may have.
constexpr Column plan_list[] = {
    {"PlanId", Text},
};
constexpr std::string_view by_plan[] = {"PlanId"};

constexpr Column others_bill[] = {
    {"Id", Text},
    {"ManualId", Text},
    {"CCompany", Text},
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
    {"Nowpaybillid", Text},
    {"Referflag", Long},
    {"Referbillid", Text},
    {"Lastupdatetime", Date},
    {"Summary", Text},
    {"Remarks", Text},
};

constexpr Column others_bill_items[] = {
    {"Billid", Text},
    {"Rownum", Integer},
    {"Itemid", Text},
    {"Itemname", Text},
    {"Unit", Text},
    {"Qty", Single},
    {"Price", Money, zero},
    {"Amount", Money, zero},
    {"Remarks", Text},
};

constexpr Table family[] = {
    {"ZHXX", account, "ID", account_indexes},
    {"ZHJYXX", journal, "ID", journal_indexes},
    {"RPVouchers", voucher, "Id", by_type},
    {"RPBItems", voucher_money, "", voucher_money_indexes},
    {"RPBRPItems", settled_bill, "", settled_bill_indexes},
    {"AdvanceBill", voucher, "Id", by_type},
    {"AdvanceItems", settled_bill, "", settled_bill_indexes},
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
