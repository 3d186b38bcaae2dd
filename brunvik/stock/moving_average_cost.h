// The moving average cost of goods, kept in goods.AverageCost as the cost of one base unit, and the cost of a bill.
//
// The procedures run on the session connection and trap their errors: each shows the Error Notice. Those that give a
// cost then give the error's number as if it were one, and the bill goes on with it.
#pragma once

#include <string_view>

#include "brunvik/ado/money.h"
#include "brunvik/foundation/public_object.h"

namespace brunvik {

inline namespace SqlOPT_Function {

// No cost to spread: the CostDelta of goods that come or go at a price.
inline constexpr Money no_cost_delta = Money::from_ten_thousandths(-1 * Money::scale);

// What CalcBillCost is told for any document but the count reports.
inline constexpr Integer any_stock_document = -1;

// Takes a quantity of goods into the average and gives the new average.
//
// With the stored average A, the stock Q of the key in base units (all warehouses, every stock status), and n the
// quantity in base units: (A x Q + n x Price) / (Q + n). Where the stock was zero or below, or comes out as zero, the
// price alone is the new average. The price is taken as it stands, per unit of the row. A CostDelta above zero spreads
// a cost over stock that is there already, without converting the unit: (A x Q + Qty x CostDelta) / Q.
//
// An unknown key gives zero and writes nothing. The update is written in upper case, values included.
Money AuditUpdateAverageCost(std::string_view GoodsId, std::string_view Unit, std::string_view Class,
                             std::string_view Model1, std::string_view Model2, Single Qty, Money Price,
                             Money CostDelta);

// Takes a quantity out of the average again: (A x Q - n x Price) / (Q - n), or A where nothing would be left; with a
// CostDelta above zero (A x Q - Qty x CostDelta) / Q. It works from the present stock, so undoing an old bill after
// others have moved the goods gives another average than the one before.
Money UndoAuditUpdateAverageCost(std::string_view GoodsId, std::string_view Unit, std::string_view Class,
                                 std::string_view Model1, std::string_view Model2, Single Qty, Money Price,
                                 Money CostDelta);

// The stored average; zero for an unknown key.
Money GetAverageCost(std::string_view GoodsId, std::string_view Class, std::string_view Model1,
                     std::string_view Model2);

// Writes the cost of the row with this bill id and row number.
void UpdateBillItemCost(std::string_view BillId, Integer RowNum, Money Cost, Money ShareCost);

// The sum of the rows' costs. Types 8 and 9 are the count reports, whose rows are of a class of their own.
Money CalcBillCost(const RowCollection& Rows, Integer Type);

void UpdateBillCost(std::string_view BillId, Long Type, Money BillCost);

}  // namespace SqlOPT_Function

}  // namespace brunvik
