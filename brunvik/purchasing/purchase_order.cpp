#include "brunvik/purchasing/purchase_order.h"

#include "brunvik/billframe/order_members.h"

namespace brunvik {

const Members& PurchaseOrderRow::table() {
  static const Members table = order_row_members(property<&PurchaseOrderRow::Supplier>("Supplier", "Supplier"));
  return table;
}

const Members& PurchaseOrderLink::table() {
  using C = PurchaseOrderLink;
  static const Members table = order_link_members(property<&C::PurOrderId>("PurOrderId", "PurOrderId"),
                                                  property<&C::PurInId>("PurInId", "PurInId"),
                                                  property<&C::PurRownum>("PurRownum", "PurRownum"));
  return table;
}

const Members& clsPurOrderBill::members() const {
  using C = clsPurOrderBill;
  static const Members table =
      order_members<C>({.partner = property<&C::Supplier>("Supplier", "Supplier"),
                        .person = property<&C::Purman>("Purman", "Purman"),
                        .read_links = verb<&C::GetPurInOrderBillItems>("GetPurInOrderBillItems", in("PurchaseOrderId"),
                                                                       in("PurchaseInId")),
                        .delete_links = verb<&C::DetelePurchaseOrderList>("DetelePurchaseOrderList", in("PurInId")),
                        .is_in_use = verb<&C::ExchangePurchaseIn>("ExchangePurchaseIn", in("BillId")),
                        .save_links = verb<&C::SavePurOrderLists>("SavePurOrderLists", in("PurOrderLists"))});
  return table;
}

const OrderForm& clsPurOrderBill::order_form() const {
  static const OrderForm form = order_form_of(
      kind(), members(), PurchaseOrderRow::table(), PurchaseOrderLink::table(),
      {.partner_column = "Supplier",
       .person_column = "Purman",
       .statements = {"select * from PurchaseOrder where Id={}", "delete from PurchaseOrder where Id={}",
                      "select * from PurchaseOrderItems where BillId={} order by RowNum",
                      "delete from PurchaseOrderItems where BillId={}"},
       .insert_link =
           "insert into PurchaseOrderList(PurOrderId,PurInId,OrderRownum,PurRownum,Goodsid,unit,Qty) values(",
       .select_links = "select * from PurchaseOrderList where PurOrderId={} and PurInId={} order by PurRowNum",
       .delete_links = "delete from PurchaseOrderList where PurInId={}",
       .select_users = "select id from StockBill where ReferBillID={} and Status>=2"});
  return form;
}

}  // namespace brunvik
