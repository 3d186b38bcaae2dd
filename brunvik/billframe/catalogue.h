// The catalogue of document kinds: for every public document class what it is, where it lives and what codes it
// carries.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "brunvik/foundation/Declare_EnumType.h"

namespace brunvik {

struct Kind {
  std::string_view class_name;
  std::string_view document;
  // The name of the kind where the data spells it out; empty where it never does.
  std::string_view name_in_data;
  // The header's table first, then those of its rows.
  std::span<const std::string_view> tables;
  // The first three characters of a number; empty where the host gives them, or where there are no numbers.
  std::string_view prefix;
  // Type, or ProcessFlag on the repair documents; vouchers have a code space of their own. None where no column says
  // it.
  std::optional<Long> code;
  // InOutFlag; on the borrow documents, where the host may set it, the value that it starts with.
  Long side = side::neither;
  // An opening balance: the form of the document of the same name for what stood open when the company began with the
  // system. Its audit sets the status and audits the voucher at its side; it moves no goods and no cost.
  bool opening = false;

  std::string_view header_table() const { return tables.front(); }
};

namespace kind {

extern const Kind clsInitInBill;
extern const Kind clsPurchaseInBill;
extern const Kind clsPurchaseOutBill;
extern const Kind clsSalesInBill;
extern const Kind clsSalesOutBill;
extern const Kind clsOthersInBill;
extern const Kind clsOthersOutBill;
extern const Kind clsReportOfOverflowBill;
extern const Kind clsReportOfLossesBill;
extern const Kind clsDbBill;
extern const Kind clsWareHouseRepairBill;
extern const Kind clsWareHouseRestoreBill;
extern const Kind clsGoodsConvertBill;
extern const Kind clsTZBill;
extern const Kind clsPurchaseInBjkcBill;
extern const Kind clsPurchaseOutBjkcBill;
extern const Kind clsSalesOutBjkcBill;
extern const Kind clsSalesInBjkcBill;
extern const Kind clsGoodsAssembled;
extern const Kind clsGoodsDismantled;
extern const Kind clsRGStockBxrk;
extern const Kind clsRGStockFcwx;
extern const Kind clsRGStockSxfh;
extern const Kind clsRGStockFhgk;
extern const Kind clsBrokenAllocate;
extern const Kind clsRestoreAllocate;
extern const Kind clsRGStockSxDh;
extern const Kind clsRGStockDhgk;
extern const Kind clsRGStockBxrkBjkc;
extern const Kind clsRGStockFcwxBjkc;
extern const Kind clsRGStockWxdh;
extern const Kind clsBorrowIn;
extern const Kind clsBorrowOut;
extern const Kind clsBorrowInReturn;
extern const Kind clsBorrowOutReturn;
extern const Kind clsBorrowInBjkc;
extern const Kind clsBorrowOutBjkc;
extern const Kind clsPayBill;
extern const Kind clsReceiptBill;
extern const Kind clsAdvanceBill;
extern const Kind clsAdvanceYSBill;
extern const Kind ClsOthersIncomeBill;
extern const Kind clsOthersExpenseBill;
extern const Kind clsOthersIncomeBjkcBill;
extern const Kind clsOthersExpenseBjkcBill;
extern const Kind ClsReceivePlanBill;
extern const Kind clsPayPlanBill;
extern const Kind ClsZHXX;
extern const Kind clsZHJYXX;
extern const Kind clsPurOrderBill;
extern const Kind clsSalesOrderBill;
extern const Kind clsShareCost;
extern const Kind ClsAdjustInBill;
extern const Kind clsSendGoodsBill;
extern const Kind clsSendGoodsVouchersbill;
extern const Kind clsAfterServiceBillInfo;
extern const Kind clsAfterServiceBillInfoOLD;
extern const Kind clsAfterServiceWGBill;

// Every kind.
std::span<const Kind* const> all() noexcept;

}  // namespace kind

}  // namespace brunvik
