#include "brunvik/stock/posting_document.h"

#include "brunvik/foundation/SqlOPT_Function.h"

namespace brunvik {

double base_units(const StockRow& row) {
  return GoodsUnitConverter(row.Gid, row.Unit).to_double() * static_cast<double>(row.Qty);
}

Money cost_at_average(Money average, const StockRow& row) {
  return Money::from_double(average.to_double() * base_units(row));
}

Money PostingDocument::cost_at_price(const StockRow& row) {
  return Money::from_double(row.price.to_double() * static_cast<double>(row.Qty));
}

void PostingDocument::write_row_cost(StockRow& row, Money cost) {
  row.Cost = cost;
  UpdateBillItemCost(ID, row.Rownum, cost, Money());
}

Money PostingDocument::write_bill_cost(Integer rows_of) {
  const Money cost = CalcBillCost(rows(), rows_of);
  UpdateBillCost(ID, *kind().code, cost);
  return cost;
}

}  // namespace brunvik
