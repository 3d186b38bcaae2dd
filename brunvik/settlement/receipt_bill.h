// Receipt voucher (收款单): money received from a company, and the bills that it settles.
#pragma once

#include "brunvik/settlement/rp_voucher.h"

namespace brunvik {

class clsReceiptBill final : public RPVoucher {
 public:
  // The staff member who took the money.
  Long Skr = 0;

  const Kind& kind() const override { return kind::clsReceiptBill; }
  const Members& members() const override;

 protected:
  const VoucherForm& form() const override;
  const Insert& payment_insert() const override;
  std::string select_open_amount(std::string_view table, const std::string& bill) const override;
  void save_rows() override;
};

}  // namespace brunvik
