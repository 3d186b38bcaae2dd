// The tables by family, and what the families share.
#pragma once

#include "schema/tables.h"

namespace brunvik::schema {

std::span<const Table> master_tables();
std::span<const Table> stock_tables();
std::span<const Table> trade_tables();
std::span<const Table> settlement_tables();
std::span<const Table> repair_tables();
std::span<const Table> borrowing_tables();
std::span<const Table> logistics_tables();

// Amounts, counted quantities and marks begin at zero, since statements add to them and compare them: a null
// would stay null through every sum.
inline constexpr std::string_view zero = "0";

// The last, next and previous number of one document kind among a million bills of all kinds.
inline constexpr std::string_view by_type[] = {"Type, Id"};

// The rows of a bill, in their order.
inline constexpr std::string_view by_bill[] = {"BillId, RowNum"};

}  // namespace brunvik::schema
