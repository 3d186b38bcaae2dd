// What goods lent and goods borrowed share: the agreed days, and how a row becomes a purchase or a sale.
//
// The host drives that. It saves the links between the rows of the loan and those of the receipt or the issue that took
// them over, adds the quantity of each to the loan's row, and closes the loan where nothing is left.
#pragma once

#include <string>

#include "brunvik/borrowing/borrow_document.h"

namespace brunvik {

class Loan : public BorrowDocument {
 public:
  // The agreed days.
  Long BorrowDays = 0;

  // Adds the quantity of the link, in base units of the goods, to what of the loan's row was returned, bought or sold;
  // or takes it off. The row is that of the link's number, goods and state.
  Long AddBorrowPurQty(const BorrowLink& objBillItems) noexcept;
  Long ReduceBorrowPurQty(const BorrowLink& objBillItems) noexcept;

  // Removes the links of a receipt or an issue to all loans.
  Long DeteleBorrowPurList(const std::string& PurId) noexcept;

  // 0 where goods of the loan were returned, bought or sold, and 1 where none were.
  Long ExitReturnGoods(const std::string& BillId) noexcept;

 protected:
  // Fills the links by what is stored between a loan of this kind and a bill of the kind that takes its goods over.
  // They stay as they are where that can't be read.
  Long read_links(Collection<BorrowLink>& links, const std::string& loan, const std::string& bill) noexcept;

  // Inserts link by link; the first that fails ends it, and its number is the result.
  Long save_links(const Collection<BorrowLink>& links) noexcept;

  // Closes the loan where no row has more lent or borrowed than was returned, bought or sold; a loan without rows is
  // closed. 1 where it stays open, and nothing is written.
  Long close(const std::string& loan) noexcept;

  // Opens the loan again, whatever its rows say.
  Long open(const std::string& loan) noexcept;

  // The kind of the bills that take goods over.
  virtual Long taken_over_by() const = 0;

 private:
  Long change_quantity(Change change, const BorrowLink& link) noexcept;
};

}  // namespace brunvik
