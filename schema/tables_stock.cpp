// The stock documents, the assembly documents, and the stock itself.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column stock_bill[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"Supplier", Key},
    {"Receiver", Key},
    {"RManager", Text},
    {"SManager", Text},
    {"Salesman", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Type", Long},
    {"InOutFlag", Long},
    {"Status", Long},
    {"Auditor", Text},
    {"AuditTime", Date},
    {"PaidAmount", Money, zero},
    {"AdvanceAmount", Money, zero},
    {"CloseAmount", Money, zero},
    {"Amount", Money, zero},
    {"BillCost", Money, zero},
    {"Nowpaybillid", Key},
    {"NowAdvanceBillID", Key},
    {"InvoiceName", Text},
    {"InvoiceType", Long},
    {"TaxRate", Single},
    {"DiscountType", Integer},
    {"DiscountCard", Text},
    {"DiscountRate", Single},
    {"DeliveryMethod", Long},
    {"ClosedTag", Long, zero},
    {"CreateFlag", Boolean, zero},
    {"ReferFlag", Long},
    {"Referbillid", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
    {"FHBJ", Boolean},
};
// Whether an order is in use is asked by the bill that refers to it.
constexpr std::string_view stock_bill_indexes[] = {by_type[0], "Referbillid"};

constexpr Column stock_bill_items[] = {
    {"BillId", Key},
    {"RowNum", Integer},
    {"GId", Key},
    {"GBarcode", Text},
    {"GName", Text},
    {"Class", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"unit", Key},
    {"qty", Single},
    {"ActualQty", Single, zero},
    {"price", Money, zero},
    {"Amount", Money, zero},
    {"Cost", Money, zero},
    {"ShareCost", Money, zero},
    {"Receiver", Key},
    {"Supplier", Key},
    {"Outfactorydate", Date},
    {"Equipcode", Text},
    {"Buydate", Date},
    {"Accessory", Memo},
    {"remarks", Memo},
    {"GoodStutas", Long},
    {"SendStutas", Integer},
    {"StockRowNum", Long},
};
// A receipt looks for the issues of its goods that have no cost yet: by the goods alone it would read every
// movement that they ever had. Rows have no cost between save and audit, so few stand in this index at a time, and it
// stays some pages large; with all rows in it, each row that comes, gets its cost or goes would change a page of its own.
constexpr std::string_view stock_bill_items_indexes[] = {"GId, Cost where Cost=0", by_bill[0]};

constexpr Column inventory[] = {
    {"WID", Key},
    {"GId", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"Status", Long},
    {"Class", Key},
    {"Unit", Key},
    {"InQty", Single, zero},
    {"OutQty", Single, zero},
    {"CurrentQty", Single, zero},
    {"Remarks", Memo},
};
// The first for the movements, the second for the quantity of a goods in all warehouses.
constexpr std::string_view inventory_indexes[] = {
    "WID, GId, Model1, Model2, Status",
    "GId, Class, Model1, Model2",
};

constexpr Column goods_bill[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"Manager", Text},
    {"Salesman", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Type", Long},
    {"InOutFlag", Integer},
    {"Status", Long},
    {"Auditor", Text},
    {"AuditTime", Date},
    {"ReferFlag", Long},
    {"ReferBillID", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
    {"Gid", Key},
    {"Gbarcode", Text},
    {"Gname", Text},
    {"Class", Key},
    {"Unit", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"Actualqty", Single, zero},
    {"Price", Money, zero},
    {"Amount", Money, zero},
    {"WareHouseId", Key},
    {"GoodStutas", Long},
};

constexpr Column goods_bill_items[] = {
    {"BillId", Key},
    {"RowNum", Integer},
    {"GId", Key},
    {"GBarcode", Text},
    {"GName", Text},
    {"Class", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"unit", Key},
    {"ActualQty", Single, zero},
    {"price", Money, zero},
    {"Amount", Money, zero},
    {"WareHouseId", Key},
    {"EquipCode", Text},
    {"GoodStutas", Long},
    {"remarks", Memo},
};

constexpr Table family[] = {
    {"StockBill", stock_bill, "Id", stock_bill_indexes},
    {"StockBillItems", stock_bill_items, "", stock_bill_items_indexes},
    {"Inventory", inventory, "", inventory_indexes},
    {"GoodsBill", goods_bill, "Id", by_type},
    {"GoodsBillItems", goods_bill_items, "", by_bill},
};

// clang-format on

}  // namespace

std::span<const Table> stock_tables() { return family; }

}  // namespace brunvik::schema
