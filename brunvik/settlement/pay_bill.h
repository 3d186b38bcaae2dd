// Payment voucher (付款单): money paid to a company, and the bills that it settles.
#pragma once

#include "brunvik/settlement/rp_voucher.h"

namespace brunvik {

class clsPayBill final : public RPVoucher {
 public:
  // The staff member who paid the money.
  Long Payer = 0;

  const Kind& kind() const override { return kind::clsPayBill; }
  const Members& members() const override;

 protected:
  const VoucherForm& form() const override;
  const Insert& payment_insert() const override;
  std::string select_open_amount(std::string_view table, const std::string& bill) const override;
  void before_update() override { remove_rows(); }
  void save_rows() override;
};

}  // namespace brunvik
