#include "brunvik/billframe/catalogue.h"

#include <array>

namespace brunvik::kind {

namespace {

constexpr std::optional<Long> no_code;

constexpr std::array<std::string_view, 2> stock_tables{"StockBill", "StockBillItems"};
constexpr std::array<std::string_view, 2> assembly_tables{"GoodsBill", "GoodsBillItems"};
constexpr std::array<std::string_view, 2> repair_tables{"RGStockBill", "RGStockBillItems"};
constexpr std::array<std::string_view, 2> borrow_tables{"GBorrowBill", "GBorrowItems"};
constexpr std::array<std::string_view, 3> voucher_tables{"RPVouchers", "RPBItems", "RPBRPItems"};
constexpr std::array<std::string_view, 2> advance_tables{"AdvanceBill", "AdvanceItems"};
constexpr std::array<std::string_view, 2> other_money_tables{"OthersIEBill", "OthersIEBillItems"};
constexpr std::array<std::string_view, 2> plan_tables{"PlansBill", "PlansBillItems"};
constexpr std::array<std::string_view, 1> account_tables{"ZHXX"};
constexpr std::array<std::string_view, 1> ledger_tables{"ZHJYXX"};
constexpr std::array<std::string_view, 3> purchase_order_tables{"PurchaseOrder", "PurchaseOrderItems",
                                                                "PurchaseOrderList"};
constexpr std::array<std::string_view, 3> sales_order_tables{"SaleOrder", "SaleOrderItems", "SaleOutOrderList"};
constexpr std::array<std::string_view, 3> cost_sharing_tables{"PurchaseShareCost", "PurChaseCostItems",
                                                              "PuchaseBillItems"};
constexpr std::array<std::string_view, 2> goods_arrival_tables{"AdjustInBill", "AdjustStockBill"};
constexpr std::array<std::string_view, 3> shipment_tables{"SendGoodsBill", "SendGoodsBillItems", "SendBillItems"};
constexpr std::array<std::string_view, 2> freight_tables{"SendGoodsVouchersbill", "SendGoodsVouchersbillItems"};
constexpr std::array<std::string_view, 1> after_service_tables{"AfterServiceBill"};

}  // namespace

// clang-format off
constinit const Kind clsInitInBill{"clsInitInBill", "opening stock", "期初入库", stock_tables, "QCR", bill_type::opening_stock, side::purchase};
constinit const Kind clsPurchaseInBill{"clsPurchaseInBill", "purchase receipt", "进货入库", stock_tables, "JHR", bill_type::purchase_receipt, side::purchase};
constinit const Kind clsPurchaseOutBill{"clsPurchaseOutBill", "purchase return", "进货退货出库", stock_tables, "JTC", bill_type::purchase_return, side::purchase};
constinit const Kind clsSalesInBill{"clsSalesInBill", "sales return", "销售退货入库", stock_tables, "XTR", bill_type::sales_return, side::sales};
constinit const Kind clsSalesOutBill{"clsSalesOutBill", "sales issue", "销售出库", stock_tables, "", bill_type::sales_issue, side::sales};
constinit const Kind clsOthersInBill{"clsOthersInBill", "other receipt", "其他入库", stock_tables, "QTR", bill_type::other_receipt, side::purchase};
constinit const Kind clsOthersOutBill{"clsOthersOutBill", "other issue", "其他出库", stock_tables, "QTC", bill_type::other_issue, side::sales};
constinit const Kind clsReportOfOverflowBill{"clsReportOfOverflowBill", "overage report", "报溢入库", stock_tables, "BYR", bill_type::overage_report, side::purchase};
constinit const Kind clsReportOfLossesBill{"clsReportOfLossesBill", "loss report", "报损出库", stock_tables, "BSC", bill_type::loss_report, side::sales};
constinit const Kind clsDbBill{"clsDbBill", "transfer between warehouses", "调拨", stock_tables, "DBD", bill_type::transfer, side::neither};
constinit const Kind clsWareHouseRepairBill{"clsWareHouseRepairBill", "warehouse new goods sent to repair", "仓库新品报修出库", stock_tables, "BXX", bill_type::warehouse_repair, side::purchase};
constinit const Kind clsWareHouseRestoreBill{"clsWareHouseRestoreBill", "repaired goods back to warehouse", "仓库报修修复品入库", stock_tables, "XFR", bill_type::warehouse_restore, side::purchase};
constinit const Kind clsGoodsConvertBill{"clsGoodsConvertBill", "state conversion", "conversion", stock_tables, "ZHD", bill_type::state_conversion, side::conversion};
constinit const Kind clsTZBill{"clsTZBill", "stock adjustment", "调账单", stock_tables, "TZD", bill_type::stock_adjustment, side::purchase};
constinit const Kind clsPurchaseInBjkcBill{"clsPurchaseInBjkcBill", "opening purchase balance", "进货期初", stock_tables, "JQC", bill_type::opening_purchase, side::purchase, true};
constinit const Kind clsPurchaseOutBjkcBill{"clsPurchaseOutBjkcBill", "opening purchase return balance", "进货退货期初", stock_tables, "JTQ", bill_type::opening_purchase_return, side::purchase, true};
constinit const Kind clsSalesOutBjkcBill{"clsSalesOutBjkcBill", "opening sales balance", "销售期初", stock_tables, "", bill_type::opening_sales, side::sales, true};
constinit const Kind clsSalesInBjkcBill{"clsSalesInBjkcBill", "opening sales return balance", "销售退货期初", stock_tables, "XTQ", bill_type::opening_sales_return, side::sales, true};
constinit const Kind clsGoodsAssembled{"clsGoodsAssembled", "assembly", "", assembly_tables, "ZZD", bill_type::assembly, side::purchase};
constinit const Kind clsGoodsDismantled{"clsGoodsDismantled", "dismantling", "", assembly_tables, "CXD", bill_type::dismantling, side::sales};
constinit const Kind clsRGStockBxrk{"clsRGStockBxrk", "customer's broken item booked in", "坏件报修入库", repair_tables, "BXR", bill_type::repair_intake, side::purchase};
constinit const Kind clsRGStockFcwx{"clsRGStockFcwx", "broken item sent to the factory", "坏件返厂维修出库", repair_tables, "FCC", bill_type::repair_to_factory, side::sales};
constinit const Kind clsRGStockSxfh{"clsRGStockSxfh", "item back from the factory", "坏件送修返回入库", repair_tables, "SXR", bill_type::repair_from_factory, side::purchase};
constinit const Kind clsRGStockFhgk{"clsRGStockFhgk", "repaired item back to the customer", "修复品返还顾客出库", repair_tables, "BXC", bill_type::repair_to_customer, side::sales};
constinit const Kind clsBrokenAllocate{"clsBrokenAllocate", "transfer of broken goods", "坏件调拨", repair_tables, "HJD", bill_type::broken_goods_transfer, side::neither};
constinit const Kind clsRestoreAllocate{"clsRestoreAllocate", "transfer of repaired goods", "修复品调拨", repair_tables, "BXD", bill_type::restored_goods_transfer, side::neither};
constinit const Kind clsRGStockSxDh{"clsRGStockSxDh", "factory replacement", "送修调还", repair_tables, "DHR", bill_type::factory_replacement, side::purchase};
constinit const Kind clsRGStockDhgk{"clsRGStockDhgk", "replacement to the customer", "报修调还顾客", repair_tables, "DHC", bill_type::replacement_to_customer, side::sales};
constinit const Kind clsRGStockBxrkBjkc{"clsRGStockBxrkBjkc", "opening balance of customers' broken items", "客户报修期初", repair_tables, "BXB", bill_type::opening_repair_intake, side::purchase, true};
constinit const Kind clsRGStockFcwxBjkc{"clsRGStockFcwxBjkc", "opening balance of items at the factory", "返厂送修期初", repair_tables, "FCB", bill_type::opening_at_factory, side::sales, true};
constinit const Kind clsRGStockWxdh{"clsRGStockWxdh", "on-the-spot exchange", "客户商品维修调换", repair_tables, "WXD", bill_type::repair_exchange, side::neither};
constinit const Kind clsBorrowIn{"clsBorrowIn", "goods borrowed in", "borrow in", borrow_tables, "GBI", bill_type::borrow_in, side::purchase};
constinit const Kind clsBorrowOut{"clsBorrowOut", "goods lent out", "borrow out", borrow_tables, "GBO", bill_type::borrow_out, side::purchase};
constinit const Kind clsBorrowInReturn{"clsBorrowInReturn", "return of borrowed goods", "return", borrow_tables, "GIR", bill_type::borrow_in_return, side::purchase};
constinit const Kind clsBorrowOutReturn{"clsBorrowOutReturn", "return of lent goods", "return", borrow_tables, "GIC", bill_type::borrow_out_return, side::purchase};
constinit const Kind clsBorrowInBjkc{"clsBorrowInBjkc", "opening balance of borrowed goods", "借入商品期初", borrow_tables, "RQC", bill_type::opening_borrow_in, side::purchase, true};
constinit const Kind clsBorrowOutBjkc{"clsBorrowOutBjkc", "opening balance of lent goods", "借出商品期初", borrow_tables, "CQC", bill_type::opening_borrow_out, side::purchase, true};
constinit const Kind clsPayBill{"clsPayBill", "payment voucher", "付款单", voucher_tables, "FKD", voucher_type::payment, side::neither};
constinit const Kind clsReceiptBill{"clsReceiptBill", "receipt voucher", "收款单", voucher_tables, "SKD", voucher_type::receipt, side::neither};
constinit const Kind clsAdvanceBill{"clsAdvanceBill", "advance paid", "advance", advance_tables, "YFX", voucher_type::advance_paid, side::neither};
constinit const Kind clsAdvanceYSBill{"clsAdvanceYSBill", "advance received", "advance", advance_tables, "YSX", voucher_type::advance_received, side::neither};
constinit const Kind ClsOthersIncomeBill{"ClsOthersIncomeBill", "other receivable", "其他应收单", other_money_tables, "QTS", bill_type::other_receivable, side::neither};
constinit const Kind clsOthersExpenseBill{"clsOthersExpenseBill", "other payable", "其他应付单", other_money_tables, "QTF", bill_type::other_payable, side::neither};
constinit const Kind clsOthersIncomeBjkcBill{"clsOthersIncomeBjkcBill", "opening other receivable", "其他应收单期初", other_money_tables, "QCS", bill_type::opening_other_receivable, side::neither, true};
constinit const Kind clsOthersExpenseBjkcBill{"clsOthersExpenseBjkcBill", "opening other payable", "其他应付单期初", other_money_tables, "QCF", bill_type::opening_other_payable, side::neither, true};
constinit const Kind ClsReceivePlanBill{"ClsReceivePlanBill", "receipt plan", "plan", plan_tables, "SJH", bill_type::receipt_plan, side::neither};
constinit const Kind clsPayPlanBill{"clsPayPlanBill", "payment plan", "plan", plan_tables, "FJH", bill_type::payment_plan, side::neither};
constinit const Kind ClsZHXX{"ClsZHXX", "cash or bank account", "account", account_tables, "", no_code, side::neither};
constinit const Kind clsZHJYXX{"clsZHJYXX", "account transaction", "ledger row", ledger_tables, "", no_code, side::neither};
constinit const Kind clsPurOrderBill{"clsPurOrderBill", "purchase order", "", purchase_order_tables, "CDD", no_code, side::neither};
constinit const Kind clsSalesOrderBill{"clsSalesOrderBill", "sales order", "", sales_order_tables, "XDD", no_code, side::neither};
constinit const Kind clsShareCost{"clsShareCost", "purchase cost sharing", "", cost_sharing_tables, "FTD", no_code, side::neither};
constinit const Kind ClsAdjustInBill{"ClsAdjustInBill", "goods arrival", "", goods_arrival_tables, "DHR", no_code, side::neither};
constinit const Kind clsSendGoodsBill{"clsSendGoodsBill", "shipment", "物流发货", shipment_tables, "PHF", bill_type::shipment, side::neither};
constinit const Kind clsSendGoodsVouchersbill{"clsSendGoodsVouchersbill", "freight settlement", "", freight_tables, "WLX", no_code, side::neither};
constinit const Kind clsAfterServiceBillInfo{"clsAfterServiceBillInfo", "after-service ticket", "售后服务", after_service_tables, "SFD", bill_type::after_service, side::neither};
constinit const Kind clsAfterServiceBillInfoOLD{"clsAfterServiceBillInfoOLD", "earlier form of the ticket", "售后服务", after_service_tables, "SFD", bill_type::after_service, side::neither};
constinit const Kind clsAfterServiceWGBill{"clsAfterServiceWGBill", "closing of a ticket", "售后服务", after_service_tables, "", bill_type::after_service, side::neither};
// clang-format on

std::span<const Kind* const> all() noexcept {
  static constinit const std::array kinds{
      &clsInitInBill,
      &clsPurchaseInBill,
      &clsPurchaseOutBill,
      &clsSalesInBill,
      &clsSalesOutBill,
      &clsOthersInBill,
      &clsOthersOutBill,
      &clsReportOfOverflowBill,
      &clsReportOfLossesBill,
      &clsDbBill,
      &clsWareHouseRepairBill,
      &clsWareHouseRestoreBill,
      &clsGoodsConvertBill,
      &clsTZBill,
      &clsPurchaseInBjkcBill,
      &clsPurchaseOutBjkcBill,
      &clsSalesOutBjkcBill,
      &clsSalesInBjkcBill,
      &clsGoodsAssembled,
      &clsGoodsDismantled,
      &clsRGStockBxrk,
      &clsRGStockFcwx,
      &clsRGStockSxfh,
      &clsRGStockFhgk,
      &clsBrokenAllocate,
      &clsRestoreAllocate,
      &clsRGStockSxDh,
      &clsRGStockDhgk,
      &clsRGStockBxrkBjkc,
      &clsRGStockFcwxBjkc,
      &clsRGStockWxdh,
      &clsBorrowIn,
      &clsBorrowOut,
      &clsBorrowInReturn,
      &clsBorrowOutReturn,
      &clsBorrowInBjkc,
      &clsBorrowOutBjkc,
      &clsPayBill,
      &clsReceiptBill,
      &clsAdvanceBill,
      &clsAdvanceYSBill,
      &ClsOthersIncomeBill,
      &clsOthersExpenseBill,
      &clsOthersIncomeBjkcBill,
      &clsOthersExpenseBjkcBill,
      &ClsReceivePlanBill,
      &clsPayPlanBill,
      &ClsZHXX,
      &clsZHJYXX,
      &clsPurOrderBill,
      &clsSalesOrderBill,
      &clsShareCost,
      &ClsAdjustInBill,
      &clsSendGoodsBill,
      &clsSendGoodsVouchersbill,
      &clsAfterServiceBillInfo,
      &clsAfterServiceBillInfoOLD,
      &clsAfterServiceWGBill,
  };
  return kinds;
}

}  // namespace brunvik::kind
