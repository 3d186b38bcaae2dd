// What the sales issue and the sales return share: both cost their rows at the present average, which neither changes,
// and their money goes through a receipt voucher.
#pragma once

#include "brunvik/stock/trade_document.h"

namespace brunvik {

class SalesDocument : public TradeDocument {
 protected:
  // Marks the bill, audits its receipt, costs each row at the average and posts it, unless the stock stays. An opening
  // balance ends with its receipt: no row is read, no cost is written, and no stock moves.
  Long audit(Stock stock) noexcept;

  // Takes the receipt back, sets the cost of the rows in the object back to zero, so the bill must be loaded, and takes
  // the stock back last.
  Long undo_audit(Stock stock) noexcept;

  // The advance at the bill's side, for the document that has one.
  virtual void audit_advance() {}
  virtual void undo_advance() {}
};

}  // namespace brunvik
