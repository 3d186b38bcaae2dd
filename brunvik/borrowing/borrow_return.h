// The returns that end a loan: borrowed goods go back to the lender (借入商品返还), lent goods come home
// (借出商品返回). The goods flow the other way than those of the loan. A return is closed from its birth, also as a
// draft.
//
// What is returned is counted on the rows of the loan. The host does that with the verbs here and closes the loan with
// the loan's own verb; the audit of a return does neither.
#pragma once

#include <string>

#include "brunvik/billframe/class_of.h"
#include "brunvik/borrowing/borrow_document.h"

namespace brunvik {

class BorrowReturn : public BorrowDocument {
 protected:
  static constexpr std::string_view return_row_columns =
      "Uqty,ActualQty,price,Amount,Cost,Supplier,Equipcode,remarks,Receiver,GoodStutas";

  // Counts the quantity of the row, in the row's unit whatever that of the loan's row is, on the row of the loan with
  // the same number and goods in any state; or takes it off.
  Long draw(Change change, const BorrowRow& row, const std::string& loan) noexcept;
};

// Its goods leave the Receiver of each row.
class clsBorrowInReturn final : public ClassOf<BorrowReturn, kind::clsBorrowInReturn> {
 public:
  Long Deliverymethod = 0;
  // The person who sent the goods, and the lender.
  std::string SManager, Receiver;

  Long AddBorrowInQty(const BorrowRow& objBillItems, const std::string& OutId) noexcept {
    return draw(Change::add, objBillItems, OutId);
  }
  Long ReduceBorrowInQty(const BorrowRow& objBillItems, const std::string& OutId) noexcept {
    return draw(Change::reduce, objBillItems, OutId);
  }

  const Members& members() const override;

 protected:
  const Words& words() const override;
  void find_last(std::string& last, std::string_view series) override;
};

// Its goods come into the Supplier of each row.
class clsBorrowOutReturn final : public ClassOf<BorrowReturn, kind::clsBorrowOutReturn> {
 public:
  // How the document came about, a code of the host.
  Long CreateFlag = 0;
  // The borrower, and the person who received the goods.
  std::string Supplier, RManager;

  Long AddBorrowOutQty(const BorrowRow& objBillItems, const std::string& OutId) noexcept {
    return draw(Change::add, objBillItems, OutId);
  }
  Long ReduceBorrowOutQty(const BorrowRow& objBillItems, const std::string& OutId) noexcept {
    return draw(Change::reduce, objBillItems, OutId);
  }

  const Members& members() const override;

 protected:
  const Words& words() const override;
};

}  // namespace brunvik
