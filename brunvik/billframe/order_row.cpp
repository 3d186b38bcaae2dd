#include "brunvik/billframe/order_row.h"

#include <utility>

namespace brunvik {

Members OrderRow::order_row_members(Member partner) {
  using C = OrderRow;
  return {
      goods_members(),
      property<&C::UQty>("UQty", "UQty"),
      property<&C::Qty>("Qty", "qty"),
      property<&C::Actualqty>("Actualqty", "Actualqty"),
      property<&C::price>("price", "price"),
      property<&C::Amount>("Amount", "Amount"),
      std::move(partner),
      property<&C::Remarks>("Remarks", "remarks"),
  };
}

Members OrderLink::order_link_members(Member order, Member bill, Member row_of_bill) {
  using C = OrderLink;
  return {
      std::move(order),
      std::move(bill),
      property<&C::OrderRownum>("OrderRownum", "OrderRownum"),
      std::move(row_of_bill),
      property<&C::Goodsid>("Goodsid", "Goodsid"),
      property<&C::unit>("unit", "unit"),
      property<&C::Qty>("Qty", "Qty"),
  };
}

}  // namespace brunvik
