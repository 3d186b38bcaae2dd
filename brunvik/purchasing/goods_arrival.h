// Goods arrival: gathers rows of purchase receipts that are saved, with a means of payment and an amount for each. Its
// audit audits the receipts that it names, with their goods entering the stock.
#pragma once

#include <string>

#include "brunvik/billframe/document.h"
#include "brunvik/billframe/stock_row.h"
#include "brunvik/settlement/settlement_row.h"

namespace brunvik {

// A receipt's row that an arrival takes up, kept in AdjustStockBill.
class ArrivalRow final : public PublicObject {
 public:
  // The arrival, and the receipt.
  std::string AdjustId, StockId;
  // The position in the arrival.
  Long RowNum = 0;
  Long Meansofpayment = 0;
  Money Amount;
  // The row of the receipt.
  Long StockRowNum = 0;

  const Members& members() const override { return table(); }
  static const Members& table();
};

class ClsAdjustInBill final : public Document {
 public:
  Collection<ArrivalRow> colBillItems;
  // Kept for the host, and used by no verb.
  Collection<StockRow> colPurchaseInItems;
  Collection<PaymentRow> colPayBillInItems;

  std::string Manager, Salesman;
  Long Deliverymethod = 0;
  Long Referflag = 0;
  std::string Referbillid;

  using Bill::GetNearId;

  // Inserts the rows in the object, as a save does behind the header. A save removes none, so an arrival that is saved
  // again has its rows twice unless the host removes them first. The argument has no effect.
  Long SaveAdjustInBillItems(bool bStatues) noexcept;

  // Removes the rows that any arrival has of the receipt which the row names.
  Long DeleteAdjustInBillItems(const ArrivalRow& clsAdjustIn) noexcept;

  // Marks the arrival, then audits each receipt whose rows it has, as the arrival's auditor, and moves the stock. The
  // first receipt whose audit fails ends it, with the arrival marked and the receipts before audited. Nothing happens
  // with an empty ID.
  Long Audit() noexcept;
  Long UndoAudit() noexcept;

  const Kind& kind() const override { return kind::ClsAdjustInBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  RowCollection& rows() override { return colBillItems; }

  // The rows stay, both when the arrival is saved again and when it is deleted.
  void remove_rows() override {}
  void find_last(std::string& last, std::string_view series) override;

 private:
  // Marks the arrival, and hands each receipt that it names to `act`, whose result other than 0 ends it.
  template <class Act>
  Long mark_with_receipts(Long status, Act&& act) noexcept;
};

}  // namespace brunvik
