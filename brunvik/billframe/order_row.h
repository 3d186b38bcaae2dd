// The rows of an order, and its links to the bills that fill it. What the two sides name alike stands in the base.
#pragma once

#include <string>

#include "brunvik/billframe/goods_row.h"

namespace brunvik {

class OrderRow : public GoodsRow {
 public:
  // The quantity ordered, in the unit of the row.
  Single UQty = 0;
  // The quantity ordered that what has come or gone is compared with.
  Single Qty = 0;
  // What has come or gone of it, in base units of the goods.
  Single Actualqty = 0;
  // For one unit of the row.
  Money price;
  Money Amount;
  std::string Remarks;

 protected:
  // The members of a row with its partner, who is a vendor or a customer.
  static Members order_row_members(Member partner);
};

// A piece of a receipt's or an issue's row that fills a piece of an order's row.
class OrderLink : public PublicObject {
 public:
  Long OrderRownum = 0;
  std::string Goodsid;
  // The unit and the quantity in it, as on the row that fills.
  std::string unit;
  Single Qty = 0;

  // The number of the order.
  virtual const std::string& order() const = 0;

 protected:
  // The members of a link around the order's number, that of the bill that fills it, and the row there.
  static Members order_link_members(Member order, Member bill, Member row_of_bill);
};

}  // namespace brunvik
