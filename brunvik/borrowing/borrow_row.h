// The rows of the borrow documents, and the links to the bills that took lent or borrowed goods over.
#pragma once

#include <string>

#include "brunvik/billframe/goods_row.h"

namespace brunvik {

// A row of a loan or of its return, kept in GBorrowItems.
class BorrowRow final : public GoodsRow {
 public:
  // What is lent, borrowed or returned.
  Single Uqty = 0;
  // What of it has been returned, bought or sold. A save writes what stands here.
  Single Actualqty = 0;
  // For one unit of the row.
  Money price;
  Money Amount, Cost;
  // The warehouse and the other party of the row; which of the two is the warehouse depends on the document.
  std::string Receiver, Supplier;
  std::string Equipcode, Remarks;
  // The state in which the goods stand in the stock.
  Long GoodStutas = 0;
  // The mark of a shipment. Only a read fills it, and the name of the warehouse.
  Long SendStutas = 0;
  std::string Wname;

  static const Members& table();
  const Members& members() const override { return table(); }
};

// A piece of a loan's row that a purchase receipt or a sales issue took over, kept in GBorrowList.
class BorrowLink final : public PublicObject {
 public:
  // The loan, and the bill that took the goods over.
  std::string BorrowId, StcokId;
  // The codes of the kinds of both.
  Long BorrowType = 0, StcokType = 0;
  Long BorrowRowNum = 0, StcokRowNum = 0;
  std::string Goodsid;
  // The unit of the quantity.
  std::string unit;
  Long GoodStutas = 0;
  Single Qty = 0;

  static const Members& table();
  const Members& members() const override { return table(); }
};

}  // namespace brunvik
