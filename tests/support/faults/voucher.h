// What vouchers and advances do, on their own and at the side of a bill.
#pragma once

#include <string>

#include "tests/support/faults/document.h"

namespace brunvik::test {

// The tables of a document of money, and the tags that its workers tell their errors under.
struct VoucherWords {
  std::string header, money, settled;
  std::string read_tag, save_tag, save_draft_tag;
  // A receipt takes its old rows away where it adds the others, and on the session's road.
  bool is_receipt = false;
};
VoucherWords payment_words();
VoucherWords receipt_words();
VoucherWords advance_words();

// A document of this family with all its verbs and its three bills; the second has money by two means and settles a
// purchase and another receivable.
RehearsedDocument voucher(const std::string& class_name, const VoucherWords& words);

// A payment, a receipt or an advance at the side of a bill is read and then settled by the verb `Audite` or
// `UndoAudite`, whatever came of the reading: rows that could not be read are not settled. Each of its failures is told
// by its own worker, and the bill goes on.
Steps beside(const VoucherWords& words, const std::string& verb);

}  // namespace brunvik::test
