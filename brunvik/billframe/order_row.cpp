#include "brunvik/billframe/order_row.h"

#include <utility>

namespace brunvik {

Members OrderRow::order_row_members(Member partner) {
  using C = OrderRow;
  return {
      property<&C::BillId>("BillId", "BillId"),
      property<&C::Rownum>("Rownum", "RowNum"),
      property<&C::Gid>("Gid", "GId"),
      property<&C::Gbarcode>("Gbarcode", "GBarcode"),
      property<&C::Gname>("Gname", "GName"),
      property<&C::Class>("Class", "Class"),
      property<&C::Model1>("Model1", "Model1"),
      property<&C::Model2>("Model2", "Model2"),
      property<&C::Unit>("Unit", "unit"),
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
