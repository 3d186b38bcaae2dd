// Goods lent out (借出商品), and their opening balance (借出商品期初): goods of the company leave the stock, out of the
// Supplier of each row, until they come back or are sold.
#pragma once

#include <string>

#include "brunvik/billframe/class_of.h"
#include "brunvik/borrowing/loan.h"

namespace brunvik {

class BorrowOut : public Loan {
 public:
  // How the document came about, a code of the host.
  Long CreateFlag = 0;
  Long Deliverymethod = 0;
  // The links that were asked for last.
  Collection<BorrowLink> colSaleOutItems;
  // The borrower's telephone.
  std::string Telphone;
  // The person who sent the goods, and the borrower.
  std::string SManager, Receiver;

  // The links between a loan and the sales issue that took its goods over.
  Long GetBorrowSaleOutBillItems(const std::string& BorrowOutId, const std::string& SaleOutId) noexcept {
    return read_links(colSaleOutItems, BorrowOutId, SaleOutId);
  }
  Long SetBorrowOutClosedTag(const std::string& BillId) noexcept { return close(BillId); }
  Long UndoSetBorrowOutClosedTag(const std::string& BillId) noexcept { return open(BillId); }
  Long SaveBorrowOutPurLists(const Collection<BorrowLink>& BorrowOutPurLists) noexcept {
    return save_links(BorrowOutPurLists);
  }

  // UndoAudit of the document of this number, which becomes a draft. Its rows are read into the object, and auditor and
  // time are the object's; ID stays.
  Long UndoAuditSaveAsDraft(const std::string& BillId) noexcept;

  const Members& members() const override { return table(); }

 protected:
  static const Members& table();
  const Words& words() const override;
  Long taken_over_by() const override { return bill_type::sales_issue; }
};

class clsBorrowOut final : public ClassOf<BorrowOut, kind::clsBorrowOut> {};

class clsBorrowOutBjkc final : public ClassOf<BorrowOut, kind::clsBorrowOutBjkc> {};

}  // namespace brunvik
