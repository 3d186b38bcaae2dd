// StockPoster moves the quantities in Inventory. A session owns one, made at its start.
//
// Each operation gives its result in its last argument: 0, or the number of the error that stopped it. It shows no
// notice of its own. What is posted is the row's Qty in the goods' own unit: Qty times the factor of the row's unit,
// divided by the factor of the unit that the goods record names. Goods come into the row's Receiver and leave its
// Supplier, as sound stock. Nothing is refused for lack of stock: a balance may go below zero.
//
// A post finds the balance of warehouse, goods and models, and moves it, or makes it where there is none. An undo
// reads the rows that the bill has stored and takes their quantities back from the balances that are there; it makes
// none and deletes none.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/ado/connection.h"
#include "brunvik/billframe/stock_row.h"

namespace brunvik {

class StockPoster {
 public:
  std::string DATAType;
  ado::ConnectionReference ADOConn;

  // Callers hand the flags over as the documents hold them; no movement depends on them.
  void PostStockIn(const StockRow& row, bool flag, Long& result) noexcept;
  void UndoStockIn(std::string_view bill_id, std::string_view text, bool flag, bool other_flag, Long& result) noexcept;
  void UndoStockOut(std::string_view bill_id, bool purchase_return, bool flag, Long& result) noexcept;
  void PostStockOut(const StockRow& row, bool purchase_return, bool flag, Long& result) noexcept;
  void PostLoss(const StockRow& row, Long refer_flag, Long& result) noexcept;
  void UndoLoss(std::string_view bill_id, Long& result) noexcept;
  void PostOverflow(const StockRow& row, Long refer_flag, Long& result) noexcept;
  void UndoOverflow(std::string_view bill_id, Long& result) noexcept;
  void PostSalesReturn(const StockRow& row, Long& result) noexcept;
  void UndoSalesReturn(std::string_view bill_id, Long& result) noexcept;

 private:
  enum class Movement { receipt, issue };

  Long post(const StockRow& row, Movement movement) noexcept;
  Long undo(std::string_view bill_id, Movement movement) noexcept;
};

}  // namespace brunvik
