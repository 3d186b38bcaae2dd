// The link of an intake row to the row of a sales return that gave the goods back, kept in RGStockBillList.
#pragma once

#include <string>

#include "brunvik/foundation/members.h"

namespace brunvik {

class RGBxrkSaleInList final : public PublicObject {
 public:
  // The intake and the sales return, their kinds, and the rows in them.
  std::string RGBxrkId, Stockid;
  Long RGStocktype = 0, Stocktype = 0;
  Long RgstockRownum = 0, StockRownum = 0;
  // What was taken, in this unit.
  std::string GoodsId, Unit;
  Single Qty = 0;
  // Compared with how the row is to be repaired.
  Long Goodstutas = 0;

  static const Members& table();
  const Members& members() const override { return table(); }
};

}  // namespace brunvik
