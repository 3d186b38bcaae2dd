// What the repair documents do to the stock of broken and of repaired goods.
#pragma once

#include "brunvik/repair/repair_row.h"
#include "brunvik/stock/stock_movement.h"

namespace brunvik {

inline constexpr StatementText<1> stored_repair_rows{"select * from RGStockBillItems where BillId={}"};

namespace operation {

// A broken item comes in from a customer, and goes out to the factory.
inline constexpr Operation<RepairRow> RepairIn{
    stored_repair_rows, {Direction::in, &RepairRow::Storehouse, &RepairRow::Qty, stock_status::broken}};
inline constexpr Operation<RepairRow> FactoryOut{
    stored_repair_rows, {Direction::out, &RepairRow::Storehouse, &RepairRow::Qty, stock_status::broken}};

// A repaired one comes back from the factory, and goes back to the customer.
inline constexpr Operation<RepairRow> FactoryBack{
    stored_repair_rows, {Direction::in, &RepairRow::Storehouse, &RepairRow::Qty, stock_status::repaired}};
inline constexpr Operation<RepairRow> RestoredOut{
    stored_repair_rows, {Direction::out, &RepairRow::Storehouse, &RepairRow::Qty, stock_status::repaired}};

// A repaired one is given for the broken one on the spot.
inline constexpr Operation<RepairRow> ExchangeOut{
    stored_repair_rows, {Direction::out, &RepairRow::OutHouse, &RepairRow::Qty, stock_status::repaired}};

}  // namespace operation

}  // namespace brunvik
