// Shipments and what the carrier is owed.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column shipment[] = {
    {"Id", Text},
    {"Receiveunit", Text},
    {"Receiver", Text},
    {"Receiveaddress", Text},
    {"Receivetel", Text},
    {"Sendgoodsunit", Text},
    {"Sendgoodser", Text},
    {"Sendgoodstel", Text},
    {"Logisticcompany", Text},
    {"Logisticfare", Money, zero},
    {"Collecttag", Byte, zero},
    {"Receiptcasher", Text},
    {"Openingbank", Text},
    {"Bankaccount", Text},
    {"Receiptmoney", Money, zero},
    {"Sendgoodsdate", Date},
    {"Remarks", Text},
    {"Operater", Text},
    {"Operatedate", Date},
    {"YFZFZH", Text},
    {"JSBJ", Integer},
    {"Status", Integer},
};

constexpr Column shipment_goods[] = {
    {"Billid", Text},
    {"Rownum", Integer},
    {"Gstutas", Long},
    {"Businessclass", Text},  // a code of the host
    {"Gid", Text},
    {"Gbarcode", Text},
    {"Gname", Text},
    {"Class", Text},
    {"Model1", Text},
    {"Model2", Text},
    {"Unit", Text},
    {"Qty", Single},
    {"Price", Money, zero},
    {"Amount", Money, zero},
    {"Supplier", Text},
    {"Receiver", Text},
    {"Outfactorydate", Date},
    {"Equipcode", Text},
    {"Buydate", Date},
    {"Accessory", Text},
    {"Remarks", Text},
    {"Bid", Text},
    {"BType", Long},
    {"BillDate", Date},
};

constexpr Column shipment_bills[] = {
    {"Billid", Text},
    {"Bid", Text},
    {"DYType", Long},
    {"Closeamount", Money, zero},
    {"Paidamount", Money, zero},
    {"Creator", Text},
    {"Createtime", Date},
    {"Auditor", Text},
    {"Audittime", Date},
    {"Remarks", Text},
    {"DJBJ", Integer, zero},
    {"SKLX", Integer, zero},
};
constexpr std::string_view shipment_bills_indexes[] = {"Billid, Bid"};

constexpr Column freight_bill[] = {
    {"Id", Text},
    {"Manualid", Text},
    {"Manager", Text},
    {"Ccompany", Text},
    {"Paidamount", Money, zero},
    {"Amount", Money, zero},
    {"Status", Long},
    {"Creator", Text},
    {"Createtime", Date},
    {"Auditor", Text},
    {"Audittime", Date},
    {"Sxfbl", Long},
    {"Sxfzd", Long},
    {"Dszh", Text},
    {"Remarks", Text},
};

constexpr Column freight_bill_items[] = {
    {"BID", Text},
    {"RowNum", Integer},
    {"RPableBID", Text},
    {"Amount", Money, zero},
    {"Paidamount", Money, zero},
    {"Ccompany", Text},
    {"Fhtime", Date},
    {"Remarks", Text},
    {"ReceptId", Text},
    {"PayId", Text},
};
constexpr std::string_view freight_bill_items_indexes[] = {"BID, RowNum"};

constexpr Table family[] = {
    {"SendGoodsBill", shipment, "Id"},
    {"SendGoodsBillItems", shipment_goods, "", by_bill},
    {"SendBillItems", shipment_bills, "", shipment_bills_indexes},
    {"SendGoodsVouchersbill", freight_bill, "Id"},
    {"SendGoodsVouchersbillItems", freight_bill_items, "", freight_bill_items_indexes},
};

// clang-format on

}  // namespace

std::span<const Table> logistics_tables() { return family; }

}  // namespace brunvik::schema
