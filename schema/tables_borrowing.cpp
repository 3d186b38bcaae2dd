// Goods lent and borrowed.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column borrow_bill[] = {
    {"Id", Text},
    {"ManualId", Text},
    {"Userflag", Long},
    {"Supplier", Text},
    {"RManager", Text},
    {"Receiver", Text},
    {"SManager", Text},
    {"Salesman", Text},
    {"Telphone", Text},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Type", Long},
    {"InOutFlag", Integer},
    {"Status", Byte},
    {"Auditor", Text},
    {"AuditTime", Date},
    {"Amount", Money, zero},
    {"BillCost", Money, zero},
    {"ClosedTag", Boolean, zero},
    {"ReferFlag", Long},
    {"Referbillid", Text},
    {"Summary", Text},
    {"Remarks", Text},
    {"BorrowDays", Long},
    {"Deliverymethod", Long},
    {"CreateFlag", Long},
    {"FHBJ", Integer},
};

constexpr Column borrow_items[] = {
    {"BillId", Text},
    {"RowNum", Integer},
    {"GId", Text},
    {"GBarcode", Text},
    {"GName", Text},
    {"Class", Text},
    {"Model1", Text},
    {"Model2", Text},
    {"unit", Text},
    {"Uqty", Single},
    {"ActualQty", Single, zero},
    {"price", Money, zero},
    {"Amount", Money, zero},
    {"Cost", Money, zero},
    {"Receiver", Text},
    {"Supplier", Text},
    {"Equipcode", Text},
    {"remarks", Text},
    {"GoodStutas", Long},
    {"SendStutas", Integer},
};

// Which rows of a receipt or an issue took over which borrowed or lent rows.
constexpr Column borrow_list[] = {
    {"BorrowId", Text},
    {"StcokId", Text},
    {"BorrowType", Long},
    {"StcokType", Long},
    {"BorrowRowNum", Long},
    {"StcokRowNum", Long},
    {"Goodsid", Text},
    {"unit", Text},
    {"GoodStutas", Long},
    {"Qty", Single},
};
constexpr std::string_view borrow_list_indexes[] = {"BorrowId, StcokId", "StcokId"};

constexpr Table family[] = {
    {"GBorrowBill", borrow_bill, "Id", by_type},
    {"GBorrowItems", borrow_items, "", by_bill},
    {"GBorrowList", borrow_list, "", borrow_list_indexes},
};

// clang-format on

}  // namespace

std::span<const Table> borrowing_tables() { return family; }

}  // namespace brunvik::schema
