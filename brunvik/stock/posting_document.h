// What the audits of stock documents share: the rows' cost, the bill's cost, and the posting of the rows.
#pragma once

#include "brunvik/billframe/stock_document.h"
#include "brunvik/stock/StockPoster.h"
#include "brunvik/stock/moving_average_cost.h"

namespace brunvik {

// Whether an audit or its undo moves the goods, or sets status and cost alone.
enum class Stock { stays, moves };

// The row's Qty in base units, as every row cost takes it.
double base_units(const StockRow& row);

// Row cost of a document that values its rows at the average: the average times Qty in base units, in double.
Money cost_at_average(Money average, const StockRow& row);

class PostingDocument : public StockDocument {
 protected:
  // What the document does to the stock; none for a document that only records.
  virtual const Operation<StockRow>* stock_operation() const { return nullptr; }

  // Row cost of a document that values its rows at their own price: price times Qty, in double.
  static Money cost_at_price(const StockRow& row);

  // For each row in turn: works its cost out, writes it, posts the row where the stock moves, and lets it be followed
  // up. A row that can't be posted ends it, with the rows before posted.
  template <class CostOf>
  void cost_and_post(Stock stock, CostOf&& cost_of) {
    for_each_stock_row([&](StockRow& row) {
      write_row_cost(row, cost_of(row));
      if (stock == Stock::moves) poster().Post(*stock_operation(), row);
      row_posted(row);
    });
  }

  // What a document does behind each row of an audit.
  virtual void row_posted(const StockRow&) {}

  // Writes the cost of each row, without a movement.
  template <class CostOf>
  void cost_rows(CostOf&& cost_of) {
    for_each_stock_row([&](StockRow& row) { write_row_cost(row, cost_of(row)); });
  }

  // Takes back from the stock what the stored rows moved.
  void undo_stock() const { poster().Undo(*stock_operation(), ID); }

  // Sums the rows' costs and writes the sum to the bill; the sum. `rows_of` tells CalcBillCost the row class.
  Money write_bill_cost(Integer rows_of = any_stock_document);

  static const StockPoster& poster() { return session_poster(); }

  template <class Action>
  void for_each_stock_row(Action&& action) {
    for_each_row(rows(), [&](PublicObject& row) { action(static_cast<StockRow&>(row)); });
  }

  // Sets the row's cost and writes it to the row that is stored.
  void write_row_cost(StockRow& row, Money cost);
};

}  // namespace brunvik
