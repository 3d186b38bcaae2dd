// The codes that the data holds.
#pragma once

#include "brunvik/ado/types.h"

namespace brunvik {

inline namespace Declare_EnumType {

// Status of a bill.
namespace status {
inline constexpr Long unsaved = 0;
inline constexpr Long draft = 1;
inline constexpr Long saved = 2;
inline constexpr Long audited = 3;
}  // namespace status

// Which side a document belongs to (InOutFlag). It is no direction: a purchase return stands on the purchase side
// though its goods leave. Nothing about the movement of stock may be derived from it.
namespace side {
inline constexpr Long neither = 0;
inline constexpr Long purchase = 1;
inline constexpr Long sales = 2;
inline constexpr Long conversion = 3;
}  // namespace side

// The kind of a document, wherever the data names one: Type, ProcessFlag, RPableBType, StockType, JYLX.
namespace bill_type {
inline constexpr Long opening_stock = 0;
inline constexpr Long opening_issue = 1;
inline constexpr Long purchase_receipt = 2;
inline constexpr Long purchase_return = 3;
inline constexpr Long sales_return = 4;
inline constexpr Long sales_issue = 5;
inline constexpr Long other_receipt = 6;
inline constexpr Long other_issue = 7;
inline constexpr Long overage_report = 8;
inline constexpr Long loss_report = 9;
inline constexpr Long transfer = 10;
inline constexpr Long repair_intake = 11;
inline constexpr Long repair_to_factory = 12;
inline constexpr Long repair_from_factory = 13;
inline constexpr Long repair_to_customer = 14;
inline constexpr Long warehouse_repair = 15;
inline constexpr Long warehouse_restore = 16;
inline constexpr Long other_receivable = 17;
inline constexpr Long other_payable = 18;
inline constexpr Long shipment = 19;
inline constexpr Long broken_goods_transfer = 20;
inline constexpr Long restored_goods_transfer = 21;
inline constexpr Long goods_repair = 22;
inline constexpr Long state_conversion = 23;
inline constexpr Long factory_replacement = 24;
inline constexpr Long replacement_to_customer = 25;
inline constexpr Long opening_repair_intake = 26;
inline constexpr Long opening_at_factory = 27;
inline constexpr Long borrow_in = 28;
inline constexpr Long borrow_out = 29;
inline constexpr Long borrow_in_return = 30;
inline constexpr Long borrow_out_return = 31;
inline constexpr Long stock_adjustment = 32;
inline constexpr Long repair_exchange = 33;
inline constexpr Long after_service = 34;
inline constexpr Long opening_purchase = 36;
inline constexpr Long opening_purchase_return = 37;
inline constexpr Long opening_sales = 38;
inline constexpr Long opening_sales_return = 39;
inline constexpr Long opening_other_receivable = 40;
inline constexpr Long opening_other_payable = 41;
inline constexpr Long assembly = 42;
inline constexpr Long dismantling = 43;
inline constexpr Long opening_borrow_in = 45;
inline constexpr Long opening_borrow_out = 46;
inline constexpr Long receipt_plan = 47;
inline constexpr Long payment_plan = 48;
}  // namespace bill_type

// Vouchers and advances have a small code space of their own.
namespace voucher_type {
inline constexpr Long payment = 0;
inline constexpr Long receipt = 1;
inline constexpr Long advance_paid = 2;
inline constexpr Long advance_received = 3;
}  // namespace voucher_type

// Stock status of an Inventory row.
namespace stock_status {
inline constexpr Long sound = 0;
inline constexpr Long broken = 1;
inline constexpr Long repaired = 2;
}  // namespace stock_status

}  // namespace Declare_EnumType

}  // namespace brunvik
