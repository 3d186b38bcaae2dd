// What a host includes: the session, the clock, the notice and the wire, amounts, errors, the last failure, and every
// document.
//
//   #include "brunvik/brunvik.h"
//   #include "drivers/sqlite/connection.h"
//
// Calls by name stand apart, in brunvik/automation/automation.h.
#pragma once

#include "brunvik/ado/clock.h"
#include "brunvik/ado/connection.h"
#include "brunvik/ado/errors.h"
#include "brunvik/ado/money.h"
#include "brunvik/ado/wire.h"
#include "brunvik/billframe/stock_row.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/last_failure.h"
#include "brunvik/purchasing/cost_sharing.h"
#include "brunvik/purchasing/goods_arrival.h"
#include "brunvik/purchasing/purchase_order.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/purchasing/purchase_return.h"
#include "brunvik/sales/sales_issue.h"
#include "brunvik/sales/sales_order.h"
#include "brunvik/sales/sales_return.h"
#include "brunvik/settlement/account.h"
#include "brunvik/settlement/advance.h"
#include "brunvik/settlement/other_money.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/settlement/plan.h"
#include "brunvik/settlement/receipt_bill.h"
#include "brunvik/stock/InitBrunvikVariable.h"
#include "brunvik/warehouse/assembly.h"
#include "brunvik/warehouse/count_report.h"
#include "brunvik/warehouse/opening_stock.h"
#include "brunvik/warehouse/other_stock_document.h"
#include "brunvik/warehouse/state_conversion.h"
#include "brunvik/warehouse/stock_adjustment.h"
#include "brunvik/warehouse/transfer.h"
