// Goods borrowed in (借入商品), and their opening balance (借入商品期初): an outside party's goods come into the stock,
// into the Receiver of each row, until they go back or are bought.
#pragma once

#include <string>

#include "brunvik/billframe/class_of.h"
#include "brunvik/borrowing/loan.h"

namespace brunvik {

class BorrowIn : public Loan {
 public:
  // The links that were asked for last.
  Collection<BorrowLink> colPurchaseInItems;
  // The lender, and the person who received the goods.
  std::string Supplier, RManager;
  // Filled by reading; no save writes them.
  std::string Receiver, SManager;

  // The links between a loan and the purchase receipt that took its goods over.
  Long GetBorrowPurInBillItems(const std::string& BorrowInId, const std::string& PurId) noexcept {
    return read_links(colPurchaseInItems, BorrowInId, PurId);
  }
  Long SetBorrowInClosedTag(const std::string& BillId) noexcept { return close(BillId); }
  Long UndoSetBorrowInClosedTag(const std::string& BillId) noexcept { return open(BillId); }
  Long SaveBorrowInPurLists(const Collection<BorrowLink>& BorrowInPurLists) noexcept {
    return save_links(BorrowInPurLists);
  }

  const Members& members() const override { return table(); }

 protected:
  static const Members& table();
  const Words& words() const override;
  Long taken_over_by() const override { return bill_type::purchase_receipt; }
};

class clsBorrowIn final : public ClassOf<BorrowIn, kind::clsBorrowIn> {};

class clsBorrowInBjkc final : public ClassOf<BorrowIn, kind::clsBorrowInBjkc> {};

}  // namespace brunvik
