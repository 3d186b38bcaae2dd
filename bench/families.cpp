#include "bench/families.h"

#include <utility>

namespace brunvik::bench {

namespace {

using Properties = std::vector<Property>;
using Calls = std::vector<Call>;

template <class List>
List joined(List first, List second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

const Properties made{{"Creator", "u1"}, {"Createtime", "2024-03-05 09:30:00"}, {"Remarks", "按合同"}};
const Properties made_and_audited = joined(made, Properties{{"Auditor", "u4"}, {"Audittime", "2024-03-05 17:00:00"}});

// Goods in the rows of most documents.
const Properties goods{{"Rownum", "$ROW"}, {"Gid", "$GOODS"}, {"Gname", "螺丝"}, {"Class", "五金"},
                       {"Unit", "盒"},     {"price", "12.5"}, {"Amount", "25"},  {"Remarks", "O'Neil 的货"}};

Rows goods_rows(Properties more) {
  return {"colBillItems", joined(joined(goods, {{"BillId", "$ID"}}), std::move(more))};
}

Calls life(Calls audit) {
  return joined(joined(Calls{{"Save", "Save"}, {"Save again", "Save"}}, std::move(audit)),
                Calls{{"LoadById", "LoadById", {"$ID"}}, {"Delete", "Delete"}});
}

const Calls audited = life({{"Audit", "Audit"}, {"UndoAudit", "UndoAudit"}});
const Calls updated = life({{"Audit", "UpdateAudited"}, {"UndoAudit", "CancelAudited"}});
const Calls never_audited = life({});

// Source is the bill whose goods come back; the first of a day is an intake, the second a dispatch.
FamilyDocument repair(std::string_view name, std::string_view class_name, std::string_view source = "") {
  return {name,
          class_name,
          made_and_audited,
          {{"RGBillItems",
            joined(goods, {{"Qty", "2"}, {"Storehouse", "W1"}, {"GuanLianBill", source}, {"DYRowNum", "1"}})}},
          audited,
          "BillId"};
}

FamilyDocument loan(std::string_view name, std::string_view class_name) {
  return {name,
          class_name,
          joined(made_and_audited, {{"Supplier", "K0007"}, {"Amount", "250"}}),
          {goods_rows({{"Uqty", "2"}, {"Receiver", "W1"}, {"Supplier", "W1"}})},
          audited};
}

FamilyDocument assembly(std::string_view name, std::string_view class_name) {
  return {name,
          class_name,
          joined(made_and_audited, {{"Gid", "G0001"},
                                    {"Class", "五金"},
                                    {"Unit", "盒"},
                                    {"Actualqty", "1"},
                                    {"price", "125"},
                                    {"WareHouseID", "W1"}}),
          {goods_rows({{"ActualQty", "2"}, {"WareHouseId", "W1"}})},
          audited};
}

FamilyDocument other_money(std::string_view name, std::string_view class_name) {
  return {name,
          class_name,
          joined(made_and_audited, {{"Supplier", "K0007"}, {"Closeamount", "250"}, {"Amount", "250"}}),
          {{"colBillItems",
            {{"Billid", "$ID"},
             {"Rownum", "$ROW"},
             {"Itemid", "I1"},
             {"Itemname", "房租"},
             {"Qty", "1"},
             {"Price", "25"},
             {"Amount", "25"}}}},
          updated};
}

FamilyDocument plan(std::string_view name, std::string_view class_name) {
  return {name,
          class_name,
          joined(made, {{"Ctcompany", "K0007"}, {"Amount", "250"}, {"StartDate", "2024-03-01"}}),
          {{"colBillItems",
            {{"PlanId", "$ID"}, {"Otbillid", "XSC2403040000$ROW"}, {"BillType", "5"}, {"Closedamount", "25"}}}},
          never_audited};
}

}  // namespace

std::span<const Family> families() {
  static const std::vector<Family> all{
      {"orders",
       {{"purchase order",
         "clsPurOrderBill",
         joined(made, {{"Supplier", "K0007"}}),
         {goods_rows({{"UQty", "2"}, {"Qty", "2"}})},
         never_audited},
        {"sales order",
         "clsSalesOrderBill",
         joined(made, {{"ClientId", "K0207"}}),
         {goods_rows({{"UQty", "2"}, {"Qty", "2"}})},
         never_audited}},
       true},
      {"cost sharing",
       {{"cost sharing",
         "clsShareCost",
         joined(made, {{"Vendors", "K0007"}, {"BillCost", "15"}, {"PurchaseBill", "JHR24030400001"}}),
         {{"colBillCostItems", {{"BillId", "$ID"}, {"RowNum", "$ROW"}, {"CostId", "C$ROW"}, {"Amount", "1.5"}}},
          {"colBillGoodCostItems",
           {{"Billid", "$ID"}, {"CostId", "C$ROW"}, {"GRowNum", "1"}, {"GId", "$GOODS"}, {"Sharecost", "1.5"}}}},
         {{"Save", "Save"},
          {"Save again", "Save"},
          {"", "GetPurchaseInBillItems", {"JHR24030400001"}},
          {"Audit", "AuditShareCostBillItems", {true}},
          {"UndoAudit", "AuditShareCostBillItems", {false}},
          {"LoadById", "LoadById", {"$ID"}},
          {"Delete", "Delete"}}}},
       true},
      {"goods arrival",
       {{"goods arrival",
         "ClsAdjustInBill",
         made_and_audited,
         // Of each ten bills of the day the first two are receipts that wait for their audit.
         {{"colBillItems",
           {{"AdjustId", "$ID"}, {"StockId", "JHR24030500001"}, {"RowNum", "$ROW"}, {"StockRowNum", "$ROW"}}}},
         audited,
         "ID",
         "delete from AdjustStockBill where AdjustId='$ID'"}},
       true},
      {"stock",
       {{"opening stock",
         "clsInitInBill",
         joined(made_and_audited, {{"Receiver", "W1"}}),
         {goods_rows({{"Gid", "Q$ROW"}, {"Class", "开业"}, {"Qty", "2"}, {"Receiver", "W1"}})},
         {{"Save", "Save", {"开业", 0, 0}}, {"Save again", "Save", {"开业", 0, 0}}, {"LoadById", "LoadById", {"$ID"}}},
         "ID",
         "delete from StockBill where Id='$ID'"},
        {"transfer",
         "clsDbBill",
         joined(made_and_audited, {{"Supplier", "W1"}, {"Receiver", "W2"}}),
         {goods_rows({{"Qty", "2"}, {"Supplier", "W1"}, {"Receiver", "W2"}})},
         updated},
        {"state conversion",
         "clsGoodsConvertBill",
         joined(made_and_audited, {{"OldStatus", "新品"}, {"NewStatus", "坏件"}}),
         {goods_rows({{"Qty", "2"}, {"Supplier", "W1"}, {"Receiver", "W1"}})},
         never_audited},
        {"stock adjustment", "clsTZBill", made_and_audited, {goods_rows({{"Qty", "2"}, {"Receiver", "W1"}})}, audited},
        {"warehouse repair",
         "clsWareHouseRepairBill",
         made_and_audited,
         {goods_rows({{"Qty", "2"}, {"Receiver", "W1"}})},
         audited}},
       true},
      {"assembly", {assembly("assembly", "clsGoodsAssembled"), assembly("dismantling", "clsGoodsDismantled")}, true},
      {"repair documents",
       {repair("repair intake", "clsRGStockBxrk"),
        repair("repair dispatch", "clsRGStockFcwx"),
        repair("repair return", "clsRGStockSxfh", "FCC24030400002"),
        repair("repair to customer", "clsRGStockFhgk", "BXR24030400001"),
        {"broken goods transfer",
         "clsBrokenAllocate",
         joined(made_and_audited, {{"Supplier", "W1"}, {"Receiver", "W2"}}),
         {goods_rows({{"Qty", "2"}})},
         updated}}},
      {"borrowing", {loan("borrow in", "clsBorrowIn"), loan("lend out return", "clsBorrowOutReturn")}},
      {"other money",
       {other_money("other receivable", "ClsOthersIncomeBill"), other_money("other payable", "clsOthersExpenseBill")}},
      {"plans", {plan("receipt plan", "ClsReceivePlanBill"), plan("payment plan", "clsPayPlanBill")}},
      {"shipments",
       {{"shipment",
         "clsSendGoodsBill",
         {{"Receiver", "王五"}, {"Logisticcompany", "K0009"}, {"Logisticfare", "15.5"}, {"Operater", "u1"}},
         {{"colBillItems",
           {{"Billid", "$ID"}, {"Rownum", "$ROW"}, {"Gid", "$GOODS"}, {"Qty", "2"}, {"Bid", "XSC2403040000$ROW"}}},
          {"colSendBillItems", {{"Billid", "$ID"}, {"Bid", "XSC2403040000$ROW"}, {"DYType", "5"}}}},
         never_audited}}},
      {"freight settlements",
       {{"freight settlement",
         "clsSendGoodsVouchersbill",
         joined(made, {{"Ccompany", "K0009"}, {"Amount", "25"}, {"Paidamount", "24.5"}}),
         {{"colSGVItems", {{"Rpablebid", "PHF2403040000$ROW"}, {"Amount", "15.5"}, {"Paidamount", "15"}}}},
         life({{"Audit", "Audite", {"u4", "2024-03-05 17:00:00"}}, {"UndoAudit", "UndoAudite"}})}}},
      {"tickets",
       {{"ticket",
         "clsAfterServiceBillInfo",
         joined(made, {{"KeHuBH", "K0207"}, {"Contactperson", "王五"}, {"Brokendsp", "卡纸"}}),
         {},
         {{"Save", "SaveAfterServiceBillInfo"},
          {"Save again", "SaveAfterServiceBillInfo"},
          {"LoadById", "LoadById", {"$ID"}},
          {"Delete", "Delete"}},
         "BillId"},
        {"earlier ticket",
         "clsAfterServiceBillInfoOLD",
         joined(made, {{"KeHuBH", "K0207"}, {"Contactperson", "王五"}, {"Brokendsp", "卡纸"}}),
         {},
         {{"Save", "SaveRequest"},
          {"Save again", "SaveRequest"},
          {"LoadById", "LoadById", {"$ID"}},
          {"Delete", "Delete"}},
         "BillId"}}},
  };
  return all;
}

}  // namespace brunvik::bench
