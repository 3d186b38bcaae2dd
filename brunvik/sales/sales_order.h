// Sales order: what a customer ordered, and how much of it has gone out by sales issues. A closed one is fully shipped.
#pragma once

#include <string>

#include "brunvik/billframe/order.h"

namespace brunvik {

// Kept in SaleOrderItems.
class SalesOrderRow final : public OrderRow {
 public:
  std::string Receiver;

  const Members& members() const override { return table(); }
  static const Members& table();
};

// Kept in SaleOutOrderList.
class SalesOrderLink final : public OrderLink {
 public:
  // The order, and the issue with its row.
  std::string SaleOrderid, SaleOutid;
  Long OutRownum = 0;

  const std::string& order() const override { return SaleOrderid; }
  const Members& members() const override { return table(); }
  static const Members& table();
};

class clsSalesOrderBill final : public OrderOf<SalesOrderRow, SalesOrderLink> {
 public:
  // The customer.
  std::string ClientId;
  std::string Salesman;

  Long GetSalesOrderOutBillItems(const std::string& SaleOrderId, const std::string& SaleOutId) noexcept {
    return read_links(colOrderOutItems, SaleOrderId, SaleOutId);
  }
  Long DeteleSaleOrderList(const std::string& SaleOutid) noexcept { return remove_links(SaleOutid); }

  // Drafts count, too.
  bool ExchangeSaleOut(const std::string& BillId) noexcept { return is_in_use(BillId); }
  Long SaveSalesOrderLists(const Collection<SalesOrderLink>& SaleOrderLists) noexcept {
    return save_links(SaleOrderLists);
  }

  const Kind& kind() const override { return kind::clsSalesOrderBill; }
  const Members& members() const override;

 protected:
  const OrderForm& order_form() const override;
};

}  // namespace brunvik
