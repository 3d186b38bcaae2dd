#include "brunvik/settlement/receipt_bill.h"

#include <array>

#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/foundation/text.h"
#include "brunvik/settlement/rp_voucher_members.h"

namespace brunvik {

const Members& clsReceiptBill::members() const {
  static const Members table = rp_voucher_members<clsReceiptBill, &clsReceiptBill::Skr>("Skr");
  return table;
}

const VoucherForm& clsReceiptBill::form() const {
  static constexpr std::array repair_codes{bill_type::repair_from_factory, bill_type::repair_to_customer,
                                           bill_type::replacement_to_customer};
  static const VoucherForm form =
      voucher_form(kind(), members(), " GetReceipt(): ", " SaveReceipt(): ", " SaveReceiptIntoDraft(): ", repair_codes,
                   UndoForm::by_kind);
  return form;
}

const Insert& clsReceiptBill::payment_insert() const {
  static const Insert insert(PaymentRow::table(), {},
                             "insert into RPBItems(BID,RowNum,MeansOfPayment,kh,Amount,Remarks) values(");
  return insert;
}

// A receipt shows what is left of a bill after vouchers alone: advances don't count.
std::string clsReceiptBill::select_open_amount(std::string_view table, const std::string& bill) const {
  return sql("Select {raw}.amount as billamount,{raw} as PaidAmount from {raw} where id = {} group by {raw}.amount",
             table, sum_of_vouchers(bill), table, bill, table);
}

// Both deletes take the session's road, in upper case, and the number that they compare ends in a blank; its
// apostrophes are doubled, so that no number reaches the rows of another voucher.
void clsReceiptBill::save_rows() {
  const std::string number = replaced(ID, "'", "''");
  worker(" SaveRPBItems(): ", [&] {
    std::string remove = sql("delete from RPBItems where bid= '{raw} '", number);
    ExecuteSql(remove);
    insert_rows(colRPBItems, payment_insert(), " AddRPBItems(): ");
  });
  worker(" SaveRPBRPItems(): ", [&] {
    std::string remove = sql("delete from RPBRPItems where bid= '{raw} '", number);
    ExecuteSql(remove);
    insert_rows(colRPBRPItems, settled_insert(), " AddRPBRPItems(): ");
  });
}

}  // namespace brunvik
