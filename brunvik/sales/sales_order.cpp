#include "brunvik/sales/sales_order.h"

#include "brunvik/billframe/order_members.h"

namespace brunvik {

const Members& SalesOrderRow::table() {
  static const Members table = order_row_members(property<&SalesOrderRow::Receiver>("Receiver", "Receiver"));
  return table;
}

const Members& SalesOrderLink::table() {
  using C = SalesOrderLink;
  static const Members table = order_link_members(property<&C::SaleOrderid>("SaleOrderid", "SaleOrderid"),
                                                  property<&C::SaleOutid>("SaleOutid", "SaleOutid"),
                                                  property<&C::OutRownum>("OutRownum", "OutRownum"));
  return table;
}

const Members& clsSalesOrderBill::members() const {
  using C = clsSalesOrderBill;
  static const Members table =
      order_members<C>({.partner = property<&C::ClientId>("ClientId", "Receiver"),
                        .person = property<&C::Salesman>("Salesman", "Salesman"),
                        .read_links = verb<&C::GetSalesOrderOutBillItems>("GetSalesOrderOutBillItems",
                                                                          in("SaleOrderId"), in("SaleOutId")),
                        .delete_links = verb<&C::DeteleSaleOrderList>("DeteleSaleOrderList", in("SaleOutid")),
                        .is_in_use = verb<&C::ExchangeSaleOut>("ExchangeSaleOut", in("BillId")),
                        .save_links = verb<&C::SaveSalesOrderLists>("SaveSalesOrderLists", in("SaleOrderLists"))});
  return table;
}

const OrderForm& clsSalesOrderBill::order_form() const {
  static const OrderForm form = order_form_of(
      kind(), members(), SalesOrderRow::table(), SalesOrderLink::table(),
      {.partner_column = "Receiver",
       .person_column = "Salesman",
       .statements = {"select * from SaleOrder where Id={}", "delete from SaleOrder where Id={}",
                      "select SaleOrderItems.* from SaleOrderItems where SaleOrderitems.BillId={} "
                      "order by SaleOrderitems.rownum",
                      "delete from SaleOrderItems where BillId={}"},
       .insert_link =
           "insert into SaleOutOrderList(SaleOrderid,SaleOutid,OrderRownum,OutRownum,Goodsid,unit,Qty) values(",
       .select_links = "select * from SaleOutOrderList where SaleOrderId={} and SaleOutID={} order by OutRowNum",
       .delete_links = "delete from SaleOutOrderList where SaleOutId={}",
       .select_users = "select top 1 id from StockBill where ReferBillID={}"});
  return form;
}

}  // namespace brunvik
