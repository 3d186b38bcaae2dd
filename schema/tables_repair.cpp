// The repair documents and the after-service tickets.
#include "schema/families.h"

namespace brunvik::schema {

namespace {

using enum Type;

// A column a line.
// clang-format off

constexpr Column repair_bill[] = {
    {"Id", Key},
    {"ManualId", Key},
    {"Supplier", Key},
    {"Receiver", Key},
    {"ProcessFlag", Integer},
    {"Salesman", Text},
    {"RManager", Text},
    {"SManager", Text},
    {"FixType", Text},
    {"NeedDays", Integer},
    {"InOutFlag", Long},
    {"Status", Long},
    {"Creator", Text},
    {"CreateTime", Date},
    {"Auditor", Text},
    {"AuditTime", Date},
    {"ReferFlag", Long},
    {"Referbillid", Key},
    {"Summary", Memo},
    {"Remarks", Memo},
    {"QtyStutas", Integer, zero},
    {"BaoXiuDate", Date},
    {"Amount", Money, zero},
    {"Paidamount", Money, zero},
    {"Closeamount", Money, zero},
    {"PayMethod", Text},  // a code of the host, empty on most bills
    {"NowPayBillId", Key},
    {"ClosedTag", Integer, zero},
    {"Invoicename", Text},
    {"Invoicetype", Long},
    {"Taxrate", Single},
    {"Deliverymethod", Long},
    {"DiscountType", Integer},
    {"DiscountCard", Text},
    {"DiscountRate", Single},
    {"FHBJ", Integer},
};
constexpr std::string_view repair_bill_indexes[] = {"ProcessFlag, Id"};

constexpr Column repair_bill_items[] = {
    {"BillId", Key},
    {"RowNum", Integer},
    {"GId", Key},
    {"GName", Text},
    {"GBarcode", Text},
    {"Class", Key},
    {"Model1", Key},
    {"Model2", Key},
    {"unit", Key},
    {"qty", Single},
    {"YfQty", Single, zero},
    {"price", Money, zero},
    {"Amount", Money, zero},
    {"StoreHouse", Key},
    {"OutHouse", Key},
    {"BrokenDspt", Memo},
    {"FixMeans", Key},
    {"OutFactoryDate", Date},
    {"BuyDate", Date},
    {"EquipCode", Text},
    {"Accessory", Memo},
    {"remarks", Memo},
    {"GuanLianBill", Key},
    {"DYRowNum", Integer},
    {"DYGId", Key},
    {"SendStutas", Integer},
};

// Which rows of a sales return give back the goods of which intake rows.
constexpr Column repair_bill_list[] = {
    {"RGBxrkId", Key},
    {"StockId", Key},
    {"RGStockType", Long},
    {"StockType", Long},
    {"RGStockRowNum", Long},
    {"StockRowNum", Long},
    {"Goodsid", Key},
    {"unit", Key},
    {"GoodStutas", Long},
    {"Qty", Single},
};
constexpr std::string_view repair_bill_list_indexes[] = {"RGBxrkId, StockId", "StockId"};

// A staged ticket has no type, so its type must stay null; fees and marks are in the words of the host.
constexpr Column after_service_bill[] = {
    {"BillId", Key},
    {"KeHuBH", Key},
    {"ContactPerson", Text},
    {"ContactPhone", Text},
    {"ContactMoblie", Text},
    {"ContactAddress", Text},
    {"RepairObject", Text},
    {"ExpirationDate", Date},
    {"BuyDate", Date},
    {"RepairType", Text},
    {"AdVisitDate", Date},
    {"CustomerKind", Text},
    {"CusProvDoc", Memo},
    {"BrokenType", Text},
    {"BrokenDsp", Memo},
    {"EquipType", Text},
    {"EquipNum", Text},
    {"UsefulBill", Text},
    {"Remarks", Memo},
    {"ProcessFlag", Integer},
    {"IsFinished", Integer},
    {"Creator", Text},
    {"CreateTime", Date},
    {"LastModiTime", Date},
    {"Status", Long},
    {"Type", Long},
    {"ReferBillId", Key},
    {"BorrowBill", Key},
    {"ServiceDate", Date},
    {"EstimateDate", Date},
    {"Estimator", Text},
    {"Executor", Text},
    {"Solution", Memo},
    {"EstimatorNote", Memo},
    {"ExecutorNote", Memo},
    {"PaiDanRen", Text},
    {"PaiDanTime", Date},
    {"ArriveDate", Date},
    {"ServiceFee", Text},
    {"FittingsFee", Text},
    {"AreaFee", Text},
    {"PayType", Text},
    {"PaidAmount", Money, zero},
    {"HandleResult", Memo},
    {"FinishDate", Date},
    {"CusAppraise", Memo},
    {"JieDanRen", Text},
    {"JieDanTime", Date},
    {"FeedBackor", Text},
    {"ManYiLevel", Text},
    {"CheckSvrFee", Text},
    {"Score", Text},
    {"LastOpinion", Memo},
    {"FanKuiRen", Text},
    {"FanKuiTime", Date},
};
// The stage stands last: a walk goes from number to number and looks at the stage on its way.
constexpr std::string_view after_service_bill_indexes[] = {"Type, BillId, ProcessFlag"};

constexpr Table family[] = {
    {"RGStockBill", repair_bill, "Id", repair_bill_indexes},
    {"RGStockBillItems", repair_bill_items, "", by_bill},
    {"RGStockBillList", repair_bill_list, "", repair_bill_list_indexes},
    {"AfterServiceBill", after_service_bill, "BillId", after_service_bill_indexes},
};

// clang-format on

}  // namespace

std::span<const Table> repair_tables() { return family; }

}  // namespace brunvik::schema
