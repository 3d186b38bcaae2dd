// Repaired item back to the customer (修复品返还顾客出库), and replacement to the customer (报修调还顾客): other goods
// in its place. A charge to the customer is received through a receipt voucher.
#pragma once

#include "brunvik/repair/repair_return.h"

namespace brunvik {

class CustomerReturn : public RepairReturn {
 public:
  std::string KeHuBH;
  // Who is in charge, and who handed the goods out.
  std::string JingBanRen, ChuKuRen;
  Integer Discounttype = 0;
  std::string Discountcard;
  Single Discountrate = 1;
  std::string Invoicename;
  Long Invoicetype = 0;
  Long Deliverymethod = 1;

  // In whole per cent as a read rounds it; 0 until then, and written back so.
  Long Taxrate() const { return tax_rate_; }

  // Empties the collection of rows in the object. 0.
  Long ClearBillItems() noexcept;

  const Members& members() const override { return table(); }

 protected:
  using RepairReturn::RepairReturn;

  static const Members& table();
  DocumentForm made_form() const;

  Operations stock_operations() const override { return {&operation::RestoredOut, 1}; }
  void audit_money() const override;
  void undo_money() const override;

  // Deletes the voucher, whatever the status of either, and takes nothing else back: what the rows have dealt with
  // stays dealt with.
  Long take_back() override;

 private:
  Long tax_rate_ = 0;
};

class clsRGStockFhgk final : public RepairClassOf<CustomerReturn, kind::clsRGStockFhgk> {
 protected:
  bool is_replacement() const override { return false; }
};

class clsRGStockDhgk final : public RepairClassOf<CustomerReturn, kind::clsRGStockDhgk> {
 protected:
  bool is_replacement() const override { return true; }
};

}  // namespace brunvik
