// Advances: money paid or received ahead of time, set against the bills that it settles (AdvanceItems).
#pragma once

#include "brunvik/billframe/class_of.h"
#include "brunvik/settlement/voucher.h"

namespace brunvik {

// The paid and the received advance are one design: they differ in kind alone.
class Advance : public Voucher {
 public:
  Collection<SettledRow> colAdvanceItems;

  // The staff member who handled the money.
  Long Payer = 0;

  const Members& members() const override;

 protected:
  VoucherForm made_form() const;

  Collection<SettledRow>& settled_rows() override { return colAdvanceItems; }
  std::string select_open_amount(std::string_view table, const std::string& bill) const override;
  void before_update() override { remove_rows(); }
  ado::Recordset select_header() const override;
  void save_rows() override;
  void read_rows() override;
  void remove_rows() override;

 private:
  static const Members& table();
};

// Advance paid.
class clsAdvanceBill final : public ClassOf<Advance, kind::clsAdvanceBill> {};

// Advance received.
class clsAdvanceYSBill final : public ClassOf<Advance, kind::clsAdvanceYSBill> {};

}  // namespace brunvik
