// What stands around the trade documents: orders, cost sharing, goods arrival.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column purchase_order[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"Supplier", Key},
    {"Purman", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"BillCost", Money, zero},
    {"SendClosedtag", Boolean, zero},
    {"ReferFlag", Long},
    {"Referbillid", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
};

constexpr Column purchase_order_items[] = {
    {"BillId", Key},
    {"RowNum", Integer},
    {"GId", Key},
    {"GBarcode", Text},
    {"GName", Text},
    {"Class", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"unit", Key},
    {"UQty", Single},
    {"qty", Single},
    {"Actualqty", Single, zero},
    {"price", Money, zero},
    {"Amount", Money, zero},
    {"Supplier", Key},
    {"remarks", Memo},
};

// Which receipt rows fill which order rows.
constexpr Column purchase_order_list[] = {
    {"PurOrderId", Key},
    {"PurInId", Key},
    {"OrderRownum", Long},
    {"PurRownum", Long},
    {"Goodsid", Key},
    {"unit", Key},
    {"Qty", Single},
};
constexpr std::string_view purchase_order_list_indexes[] = {"PurOrderId, PurInId", "PurInId"};

constexpr Column sale_order[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"Receiver", Key},
    {"Salesman", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"BillCost", Money, zero},
    {"SendClosedtag", Boolean, zero},
    {"ReferFlag", Long},
    {"Referbillid", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
};

constexpr Column sale_order_items[] = {
    {"BillId", Key},
    {"RowNum", Integer},
    {"GId", Key},
    {"GBarcode", Text},
    {"GName", Text},
    {"Class", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"unit", Key},
    {"UQty", Single},
    {"qty", Single},
    {"Actualqty", Single, zero},
    {"price", Money, zero},
    {"Amount", Money, zero},
    {"Receiver", Key},
    {"remarks", Memo},
};

// Which issue rows fill which order rows.
constexpr Column sale_out_order_list[] = {
    {"SaleOrderid", Key},
    {"SaleOutid", Key},
    {"OrderRownum", Long},
    {"OutRownum", Long},
    {"Goodsid", Key},
    {"unit", Key},
    {"Qty", Single},
};
constexpr std::string_view sale_out_order_list_indexes[] = {"SaleOrderid, SaleOutid", "SaleOutid"};

constexpr Column purchase_share_cost[] = {
    {"Id", Key},
    {"Vendors", Key},
    {"Creator", Text},
    {"CreateTime", Date},
    {"BillCost", Money, zero},
    {"PurChaseBill", Key},
    {"PurChaseAmount", Money, zero},
    {"ReferFlag", Long},
    {"ReferBillID", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
};
constexpr std::string_view purchase_share_cost_indexes[] = {"PurChaseBill"};

// The manners of sharing are codes of the host: as text they can be a number as well as a word.
constexpr Column purchase_cost_items[] = {
    {"BillId", Key},
    {"RowNum", Integer},
    {"CostId", Key},
    {"CostName", Text},
    {"Amount", Money, zero},
    {"ShareMethod", Text},
    {"remarks", Memo},
};

constexpr Column purchase_bill_items[] = {
    {"Billid", Key},
    {"CostId", Key},
    {"GRowNum", Integer},
    {"GId", Key},
    {"GoodQty", Single},
    {"ShareId", Key},
    {"Sharecost", Money, zero},
    {"ShareMethod", Text},
    {"UseShare", Text},
};
constexpr std::string_view purchase_bill_items_indexes[] = {"Billid, GRowNum"};

constexpr Column adjust_in_bill[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"Manager", Text},
    {"Salesman", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Status", Long},
    {"Deliverymethod", Long},
    {"Auditor", Text},
    {"AuditTime", Date},
    {"ReferFlag", Long},
    {"Referbillid", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
};

// Which rows of which receipts an arrival takes up.
constexpr Column adjust_stock_bill[] = {
    {"AdjustId", Key},
    {"StockId", Key},
    {"RowNum", Long},
    {"Meansofpayment", Long},
    {"Amount", Money, zero},
    {"StockRowNum", Long},
};
constexpr std::string_view adjust_stock_bill_indexes[] = {"AdjustId, RowNum", "StockId, StockRowNum"};

constexpr Table family[] = {
    {"PurchaseOrder", purchase_order, "Id"},
    {"PurchaseOrderItems", purchase_order_items, "", by_bill},
    {"PurchaseOrderList", purchase_order_list, "", purchase_order_list_indexes},
    {"SaleOrder", sale_order, "Id"},
    {"SaleOrderItems", sale_order_items, "", by_bill},
    {"SaleOutOrderList", sale_out_order_list, "", sale_out_order_list_indexes},
    {"PurchaseShareCost", purchase_share_cost, "Id", purchase_share_cost_indexes},
    {"PurChaseCostItems", purchase_cost_items, "", by_bill},
    {"PuchaseBillItems", purchase_bill_items, "", purchase_bill_items_indexes},
    {"AdjustInBill", adjust_in_bill, "Id"},
    {"AdjustStockBill", adjust_stock_bill, "", adjust_stock_bill_indexes},
};

// clang-format on

}  // namespace

std::span<const Table> trade_tables() { return family; }

}  // namespace brunvik::schema
