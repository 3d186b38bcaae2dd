// Purchase order: what was ordered from a vendor, and how much of it has come by purchase receipts.
#pragma once

#include <string>

#include "brunvik/billframe/order.h"

namespace brunvik {

// Kept in PurchaseOrderItems.
class PurchaseOrderRow final : public OrderRow {
 public:
  std::string Supplier;

  const Members& members() const override { return table(); }
  static const Members& table();
};

// Kept in PurchaseOrderList.
class PurchaseOrderLink final : public OrderLink {
 public:
  // The order, and the receipt with its row.
  std::string PurOrderId, PurInId;
  Long PurRownum = 0;

  const std::string& order() const override { return PurOrderId; }
  const Members& members() const override { return table(); }
  static const Members& table();
};

class clsPurOrderBill final : public OrderOf<PurchaseOrderRow, PurchaseOrderLink> {
 public:
  // The vendor.
  std::string Supplier;
  // The buyer.
  std::string Purman;

  Long GetPurInOrderBillItems(const std::string& PurchaseOrderId, const std::string& PurchaseInId) noexcept {
    return read_links(colOrderOutItems, PurchaseOrderId, PurchaseInId);
  }
  Long DetelePurchaseOrderList(const std::string& PurInId) noexcept { return remove_links(PurInId); }

  // Drafts don't count.
  bool ExchangePurchaseIn(const std::string& BillId) noexcept { return is_in_use(BillId); }
  Long SavePurOrderLists(const Collection<PurchaseOrderLink>& PurOrderLists) noexcept {
    return save_links(PurOrderLists);
  }

  const Kind& kind() const override { return kind::clsPurOrderBill; }
  const Members& members() const override;

 protected:
  const OrderForm& order_form() const override;
};

}  // namespace brunvik
