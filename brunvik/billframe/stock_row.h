// A row of a stock document, kept in StockBillItems.
#pragma once

#include <string>

#include "brunvik/billframe/goods_row.h"

namespace brunvik {

class StockRow : public GoodsRow {
 public:
  Single Qty = 0;
  Single Actualqty = 0;
  // For one unit of the row.
  Money price;
  Money Amount;
  // Of the whole row; an audit works it out.
  Money Cost;
  // The warehouse that the goods enter, and its name, which only a read fills.
  std::string Receiver, Wname;
  std::string Equipcode, Remarks;
  // The warehouse that the goods leave.
  std::string Supplier;
  std::string Outfactorydate, Buydate, Accessory;
  Money ShareCost;
  Long GoodStutas = 0;
  Long SendStutas = 0;
  // Filled when a purchase receipt is read through a goods arrival.
  Money xfmount;
  Long MeansOfPayment = 0;

  static const Members& table();
  const Members& members() const override { return table(); }
};

// A row of the two reports of a stock count: the same fields in a class of their own.
class CountRow final : public StockRow {};

}  // namespace brunvik
