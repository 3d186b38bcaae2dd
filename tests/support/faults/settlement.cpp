// Payment and receipt vouchers, advances.
#include "tests/support/faults/voucher.h"

namespace brunvik::test {

namespace {

const Rehearsed payment([] { return voucher("clsPayBill", payment_words()); });
const Rehearsed receipt([] { return voucher("clsReceiptBill", receipt_words()); });
const Rehearsed advance_paid([] { return voucher("clsAdvanceBill", advance_words()); });
const Rehearsed advance_received([] { return voucher("clsAdvanceYSBill", advance_words()); });

}  // namespace

}  // namespace brunvik::test
