// Goods lent and borrowed.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column borrow_bill[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"Userflag", Long},
    {"Supplier", Key},
    {"RManager", Text},
    {"Receiver", Key},
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
    {"Referbillid", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
    {"BorrowDays", Long},
    {"Deliverymethod", Long},
    {"CreateFlag", Long},
    {"FHBJ", Integer},
};

constexpr Column borrow_items[] = {
    {"BillId", Key},
    {"RowNum", Integer},
    {"GId", Key},
    {"GBarcode", Text},
    {"GName", Text},
    {"Class", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"unit", Key},
    {"Uqty", Single},
    {"ActualQty", Single, zero},
    {"price", Money, zero},
    {"Amount", Money, zero},
    {"Cost", Money, zero},
    {"Receiver", Key},
    {"Supplier", Key},
    {"Equipcode", Text},
    {"remarks", Memo},
    {"GoodStutas", Long},
    {"SendStutas", Integer},
};

// Which rows of a receipt or an issue took over which borrowed or lent rows.
constexpr Column borrow_list[] = {
    {"BorrowId", Key},
    {"StcokId", Key},
    {"BorrowType", Long},
    {"StcokType", Long},
    {"BorrowRowNum", Long},
    {"StcokRowNum", Long},
    {"Goodsid", Key},
    {"unit", Key},
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
