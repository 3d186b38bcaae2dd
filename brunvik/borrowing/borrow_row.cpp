#include "brunvik/borrowing/borrow_row.h"

namespace brunvik {

const Members& BorrowRow::table() {
  using C = BorrowRow;
  static const Members table{
      goods_members(),
      property<&C::Uqty>("Uqty", "Uqty"),
      property<&C::Actualqty>("Actualqty", "ActualQty"),
      property<&C::price>("price", "price"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Cost>("Cost", "Cost"),
      property<&C::Receiver>("Receiver", "Receiver"),
      property<&C::Supplier>("Supplier", "Supplier"),
      property<&C::Equipcode>("Equipcode", "Equipcode"),
      property<&C::Remarks>("Remarks", "remarks"),
      property<&C::GoodStutas>("GoodStutas", "GoodStutas"),
      property<&C::SendStutas>("SendStutas").read_from("SendStutas"),
      property<&C::Wname>("Wname").read_from("WName"),
  };
  return table;
}

const Members& BorrowLink::table() {
  using C = BorrowLink;
  static const Members table{
      property<&C::BorrowId>("BorrowId", "BorrowId"),
      property<&C::StcokId>("StcokId", "StcokId"),
      property<&C::BorrowType>("BorrowType", "BorrowType"),
      property<&C::StcokType>("StcokType", "StcokType"),
      property<&C::BorrowRowNum>("BorrowRowNum", "BorrowRowNum"),
      property<&C::StcokRowNum>("StcokRowNum", "StcokRowNum"),
      property<&C::Goodsid>("Goodsid", "Goodsid"),
      property<&C::unit>("unit", "unit"),
      property<&C::GoodStutas>("GoodStutas", "GoodStutas"),
      property<&C::Qty>("Qty", "Qty"),
  };
  return table;
}

}  // namespace brunvik
