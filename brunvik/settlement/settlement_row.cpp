#include "brunvik/settlement/settlement_row.h"

namespace brunvik {

const Members& PaymentRow::table() {
  using C = PaymentRow;
  static const Members table{
      property<&C::BID>("BID", "BID"),
      property<&C::Rownum>("Rownum", "RowNum"),
      property<&C::MeansOfPayment>("MeansOfPayment", "MeansOfPayment"),
      property<&C::kh>("kh", "kh"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Remarks>("Remarks", "Remarks"),
  };
  return table;
}

const Members& SettledRow::table() {
  using C = SettledRow;
  static const Members table{
      property<&C::BID>("BID", "BID"),
      property<&C::Rownum>("Rownum", "RowNum"),
      property<&C::Rpablebid>("Rpablebid", "RPableBID"),
      property<&C::Rpablebtype>("Rpablebtype", "RPableBType"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::BillAmount>("BillAmount"),
      property<&C::OpenAmount>("OpenAmount"),
  };
  return table;
}

}  // namespace brunvik
