// Shipments and what the carrier is owed.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column shipment[] = {
    {"Id", Key},
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
    {"Remarks", Memo},
    {"Operater", Text},
    {"Operatedate", Date},
    {"YFZFZH", Text},
    {"JSBJ", Integer},
    {"Status", Integer},
};

constexpr Column shipment_goods[] = {
    {"Billid", Key},
    {"Rownum", Integer},
    {"Gstutas", Long},
    {"Businessclass", Text},  // a code of the host
    {"Gid", Key},
    {"Gbarcode", Text},
    {"Gname", Text},
    {"Class", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"Unit", Key},
    {"Qty", Single},
    {"Price", Money, zero},
    {"Amount", Money, zero},
    {"Supplier", Key},
    {"Receiver", Key},
    {"Outfactorydate", Date},
    {"Equipcode", Text},
    {"Buydate", Date},
    {"Accessory", Memo},
    {"Remarks", Memo},
    {"Bid", Key},
    {"BType", Long},
    {"BillDate", Date},
};

constexpr Column shipment_bills[] = {
    {"Billid", Key},
    {"Bid", Key},
    {"DYType", Long},
    {"Closeamount", Money, zero},
    {"Paidamount", Money, zero},
    {"Creator", Text},
    {"Createtime", Date},
    {"Auditor", Text},
    {"Audittime", Date},
    {"Remarks", Memo},
    {"DJBJ", Integer, zero},
    {"SKLX", Integer, zero},
};
constexpr std::string_view shipment_bills_indexes[] = {"Billid, Bid"};

constexpr Column freight_bill[] = {
    {"Id", Key},
    {"Manualid", Key},
    {"Manager", Text},
    {"Ccompany", Key},
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
    {"Remarks", Memo},
};

constexpr Column freight_bill_items[] = {
    {"BID", Key},
    {"RowNum", Integer},
    {"RPableBID", Key},
    {"Amount", Money, zero},
    {"Paidamount", Money, zero},
    {"Ccompany", Key},
    {"Fhtime", Date},
    {"Remarks", Memo},
    {"ReceptId", Key},
    {"PayId", Key},
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
