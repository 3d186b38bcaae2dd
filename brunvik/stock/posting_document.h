// What the audits of stock documents share: the status, the rows' cost and the bill's cost.
#pragma once

#include "brunvik/billframe/stock_document.h"
#include "brunvik/stock/StockPoster.h"

namespace brunvik {

class PostingDocument : public StockDocument {
 protected:
  // Writes the status with the object's Auditor and Audittime, in front of all else that an audit does: a failure
  // further on leaves the bill marked.
  void mark(Long status);

  // Row cost of a document that values its rows at their own price: price times Qty, in double.
  static Money cost_at_price(const StockRow& row);

  // Row cost of a document that values its rows at the average: the average times Qty in base units, in double.
  static Money cost_at_average(Money average, const StockRow& row);

  // Sets the row's cost and writes it to the row that is stored.
  void write_row_cost(StockRow& row, Money cost);

  // Sums the rows' costs and writes the sum to the bill; the sum. `calculation_type` tells CalcBillCost the row class.
  Money write_bill_cost(Integer calculation_type = -1);

  // The session's poster; error 91 without a session.
  static StockPoster& poster();

  template <class Action>
  void for_each_stock_row(Action&& action) {
    for_each_row(rows(), [&](PublicObject& row) { action(static_cast<StockRow&>(row)); });
  }
};

}  // namespace brunvik
