#include "brunvik/settlement/pay_bill.h"

#include <array>

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/settlement/rp_voucher_members.h"

namespace brunvik {

const Members& clsPayBill::members() const {
  static const Members table = rp_voucher_members<clsPayBill, &clsPayBill::Payer>("Payer");
  return table;
}

const VoucherForm& clsPayBill::form() const {
  static constexpr std::array repair_codes{bill_type::repair_from_factory, bill_type::repair_to_customer,
                                           bill_type::factory_replacement};
  static const VoucherForm form =
      voucher_form(kind(), members(), " GetPayBill(): ", " SavePayBill(): ", " SavePayBillForDraft(): ", repair_codes,
                   UndoForm::by_number_alone);
  return form;
}

const Insert& clsPayBill::payment_insert() const {
  static const Insert insert(PaymentRow::table(), {},
                             "insert into RPBItems(BID,RowNum,MeansOfPayment,Amount,Remarks) values(");
  return insert;
}

std::string clsPayBill::select_open_amount(std::string_view table, const std::string& bill) const {
  return sql(
      "Select {raw}.amount as billamount,{raw} as PaidAmount, {raw} as PaidAmount2 from {raw} where id = {} "
      "group by {raw}.amount",
      table, sum_of_vouchers(bill), sum_of_advances(bill), table, bill, table);
}

void clsPayBill::save_rows() {
  worker(" SaveRPBItems(): ", [&] { insert_rows(colRPBItems, payment_insert(), " AddRPBItems(): "); });
  worker(" SaveRPBRPItems(): ", [&] { insert_rows(colRPBRPItems, settled_insert(), " AddRPBRPItems(): "); });
}

}  // namespace brunvik
