#include "brunvik/billframe/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace brunvik {
namespace {

struct Line {
  const char* class_name;
  const char* document;
  const char* name_in_data;
  std::vector<std::string> tables;
  const char* prefix;
  std::optional<Long> code;
  Long side;
  bool opening = false;
};

constexpr std::nullopt_t none = std::nullopt;

// clang-format off
const std::vector<std::string> stock{"StockBill", "StockBillItems"}, assembly{"GoodsBill", "GoodsBillItems"},
    repair{"RGStockBill", "RGStockBillItems"}, borrow{"GBorrowBill", "GBorrowItems"},
    voucher{"RPVouchers", "RPBItems", "RPBRPItems"}, advance{"AdvanceBill", "AdvanceItems"},
    other_money{"OthersIEBill", "OthersIEBillItems"}, plan{"PlansBill", "PlansBillItems"};

const std::vector<Line> lines{
    {"clsInitInBill", "opening stock", "期初入库", stock, "QCR", 0, 1},
    {"clsPurchaseInBill", "purchase receipt", "进货入库", stock, "JHR", 2, 1},
    {"clsPurchaseOutBill", "purchase return", "进货退货出库", stock, "JTC", 3, 1},
    {"clsSalesInBill", "sales return", "销售退货入库", stock, "XTR", 4, 2},
    {"clsSalesOutBill", "sales issue", "销售出库", stock, "", 5, 2},
    {"clsOthersInBill", "other receipt", "其他入库", stock, "QTR", 6, 1},
    {"clsOthersOutBill", "other issue", "其他出库", stock, "QTC", 7, 2},
    {"clsReportOfOverflowBill", "overage report", "报溢入库", stock, "BYR", 8, 1},
    {"clsReportOfLossesBill", "loss report", "报损出库", stock, "BSC", 9, 2},
    {"clsDbBill", "transfer between warehouses", "调拨", stock, "DBD", 10, 0},
    {"clsWareHouseRepairBill", "warehouse new goods sent to repair", "仓库新品报修出库", stock, "BXX", 15, 1},
    {"clsWareHouseRestoreBill", "repaired goods back to warehouse", "仓库报修修复品入库", stock, "XFR", 16, 1},
    {"clsGoodsConvertBill", "state conversion", "conversion", stock, "ZHD", 23, 3},
    {"clsTZBill", "stock adjustment", "调账单", stock, "TZD", 32, 1},
    {"clsPurchaseInBjkcBill", "opening purchase balance", "进货期初", stock, "JQC", 36, 1, true},
    {"clsPurchaseOutBjkcBill", "opening purchase return balance", "进货退货期初", stock, "JTQ", 37, 1, true},
    {"clsSalesOutBjkcBill", "opening sales balance", "销售期初", stock, "", 38, 2, true},
    {"clsSalesInBjkcBill", "opening sales return balance", "销售退货期初", stock, "XTQ", 39, 2, true},
    {"clsGoodsAssembled", "assembly", "", assembly, "ZZD", 42, 1},
    {"clsGoodsDismantled", "dismantling", "", assembly, "CXD", 43, 2},
    {"clsRGStockBxrk", "customer's broken item booked in", "坏件报修入库", repair, "BXR", 11, 1},
    {"clsRGStockFcwx", "broken item sent to the factory", "坏件返厂维修出库", repair, "FCC", 12, 2},
    {"clsRGStockSxfh", "item back from the factory", "坏件送修返回入库", repair, "SXR", 13, 1},
    {"clsRGStockFhgk", "repaired item back to the customer", "修复品返还顾客出库", repair, "BXC", 14, 2},
    {"clsBrokenAllocate", "transfer of broken goods", "坏件调拨", repair, "HJD", 20, 0},
    {"clsRestoreAllocate", "transfer of repaired goods", "修复品调拨", repair, "BXD", 21, 0},
    {"clsRGStockSxDh", "factory replacement", "送修调还", repair, "DHR", 24, 1},
    {"clsRGStockDhgk", "replacement to the customer", "报修调还顾客", repair, "DHC", 25, 2},
    {"clsRGStockBxrkBjkc", "opening balance of customers' broken items", "客户报修期初", repair, "BXB", 26, 1, true},
    {"clsRGStockFcwxBjkc", "opening balance of items at the factory", "返厂送修期初", repair, "FCB", 27, 2, true},
    {"clsRGStockWxdh", "on-the-spot exchange", "客户商品维修调换", repair, "WXD", 33, 0},
    {"clsBorrowIn", "goods borrowed in", "borrow in", borrow, "GBI", 28, 1},
    {"clsBorrowOut", "goods lent out", "borrow out", borrow, "GBO", 29, 1},
    {"clsBorrowInReturn", "return of borrowed goods", "return", borrow, "GIR", 30, 1},
    {"clsBorrowOutReturn", "return of lent goods", "return", borrow, "GIC", 31, 1},
    {"clsBorrowInBjkc", "opening balance of borrowed goods", "借入商品期初", borrow, "RQC", 45, 1, true},
    {"clsBorrowOutBjkc", "opening balance of lent goods", "借出商品期初", borrow, "CQC", 46, 1, true},
    {"clsPayBill", "payment voucher", "付款单", voucher, "FKD", 0, 0},
    {"clsReceiptBill", "receipt voucher", "收款单", voucher, "SKD", 1, 0},
    {"clsAdvanceBill", "advance paid", "advance", advance, "YFX", 2, 0},
    {"clsAdvanceYSBill", "advance received", "advance", advance, "YSX", 3, 0},
    {"ClsOthersIncomeBill", "other receivable", "其他应收单", other_money, "QTS", 17, 0},
    {"clsOthersExpenseBill", "other payable", "其他应付单", other_money, "QTF", 18, 0},
    {"clsOthersIncomeBjkcBill", "opening other receivable", "其他应收单期初", other_money, "QCS", 40, 0, true},
    {"clsOthersExpenseBjkcBill", "opening other payable", "其他应付单期初", other_money, "QCF", 41, 0, true},
    {"ClsReceivePlanBill", "receipt plan", "plan", plan, "SJH", 47, 0},
    {"clsPayPlanBill", "payment plan", "plan", plan, "FJH", 48, 0},
    {"ClsZHXX", "cash or bank account", "account", {"ZHXX"}, "", none, 0},
    {"clsZHJYXX", "account transaction", "ledger row", {"ZHJYXX"}, "", none, 0},
    {"clsPurOrderBill", "purchase order", "", {"PurchaseOrder", "PurchaseOrderItems", "PurchaseOrderList"}, "CDD", none, 0},
    {"clsSalesOrderBill", "sales order", "", {"SaleOrder", "SaleOrderItems", "SaleOutOrderList"}, "XDD", none, 0},
    {"clsShareCost", "purchase cost sharing", "", {"PurchaseShareCost", "PurChaseCostItems", "PuchaseBillItems"}, "FTD", none, 0},
    {"ClsAdjustInBill", "goods arrival", "", {"AdjustInBill", "AdjustStockBill"}, "DHR", none, 0},
    {"clsSendGoodsBill", "shipment", "物流发货", {"SendGoodsBill", "SendGoodsBillItems", "SendBillItems"}, "PHF", 19, 0},
    {"clsSendGoodsVouchersbill", "freight settlement", "", {"SendGoodsVouchersbill", "SendGoodsVouchersbillItems"}, "WLX", none, 0},
    {"clsAfterServiceBillInfo", "after-service ticket", "售后服务", {"AfterServiceBill"}, "SFD", 34, 0},
    {"clsAfterServiceBillInfoOLD", "earlier form of the ticket", "售后服务", {"AfterServiceBill"}, "SFD", 34, 0},
    {"clsAfterServiceWGBill", "closing of a ticket", "售后服务", {"AfterServiceBill"}, "", 34, 0},
};
// clang-format on

TEST(Catalogue, Has_every_kind_with_its_tables_its_prefix_and_its_codes) {
  const auto kinds = kind::all();
  ASSERT_EQ(kinds.size(), lines.size());
  for (std::size_t place = 0; place < lines.size(); ++place) {
    const Kind& kind = *kinds[place];
    const Line& line = lines[place];
    SCOPED_TRACE(line.class_name);
    EXPECT_EQ(kind.class_name, line.class_name);
    EXPECT_EQ(kind.document, line.document);
    EXPECT_EQ(kind.name_in_data, line.name_in_data);
    EXPECT_EQ(std::vector<std::string>(kind.tables.begin(), kind.tables.end()), line.tables);
    EXPECT_EQ(kind.header_table(), line.tables.front());
    EXPECT_EQ(kind.prefix, line.prefix);
    EXPECT_EQ(kind.code, line.code);
    EXPECT_EQ(kind.side, line.side);
    EXPECT_EQ(kind.opening, line.opening);
  }
}

TEST(Catalogue, A_prefix_has_three_letters_and_DHR_alone_serves_two_kinds) {
  std::multiset<std::string> prefixes;
  for (const Kind* kind : kind::all()) {
    if (kind->prefix.empty()) continue;
    EXPECT_EQ(kind->prefix.size(), 3U) << kind->class_name;
    prefixes.emplace(kind->prefix);
  }
  for (const std::string& prefix : prefixes) {
    const bool tickets = prefix == "SFD";
    EXPECT_EQ(prefixes.count(prefix), prefix == "DHR" || tickets ? 2U : 1U) << prefix;
  }
}

TEST(Catalogue, A_code_names_one_kind_wherever_it_is_stored) {
  std::set<Long> codes;
  for (const Kind* kind : kind::all()) {
    const bool own_space = kind->header_table() == "RPVouchers" || kind->header_table() == "AdvanceBill";
    if (!kind->code || own_space || kind->header_table() == "AfterServiceBill") continue;
    EXPECT_TRUE(codes.insert(*kind->code).second) << kind->class_name;
  }
  // Two codes have a name and no class.
  EXPECT_FALSE(codes.contains(bill_type::opening_issue));
  EXPECT_FALSE(codes.contains(bill_type::goods_repair));
}

TEST(Codes, Are_those_that_the_data_holds) {
  EXPECT_EQ((std::vector<Long>{status::unsaved, status::draft, status::saved, status::audited}),
            (std::vector<Long>{0, 1, 2, 3}));
  EXPECT_EQ((std::vector<Long>{side::neither, side::purchase, side::sales, side::conversion}),
            (std::vector<Long>{0, 1, 2, 3}));
  EXPECT_EQ((std::vector<Long>{voucher_type::payment, voucher_type::receipt, voucher_type::advance_paid,
                               voucher_type::advance_received}),
            (std::vector<Long>{0, 1, 2, 3}));
  EXPECT_EQ(bill_type::opening_issue, 1);
  EXPECT_EQ(bill_type::goods_repair, 22);
  EXPECT_EQ(stock_status::sound, 0);
}

}  // namespace
}  // namespace brunvik
