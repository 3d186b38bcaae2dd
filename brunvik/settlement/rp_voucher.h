// Receipt and payment vouchers: how the money moved (RPBItems), and which bills it settles (RPBRPItems).
#pragma once

#include "brunvik/settlement/voucher.h"

namespace brunvik {

class RPVoucher : public Voucher {
 public:
  Collection<PaymentRow> colRPBItems;
  Collection<SettledRow> colRPBRPItems;

 protected:
  Collection<SettledRow>& settled_rows() override { return colRPBRPItems; }

  virtual const Insert& payment_insert() const = 0;
  static const Insert& settled_insert();

  void remove_rows() override;
  void read_rows() override;

  // Both vouchers write the same header; `members` says which staff member is its Manager.
  static VoucherForm voucher_form(const Kind& kind, const Members& members, std::string_view read_tag,
                                  std::string_view save_tag, std::string_view save_draft_tag,
                                  std::span<const Long> repair_codes, UndoForm undo);
};

}  // namespace brunvik
