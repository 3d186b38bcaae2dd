// Other receipt (其他入库) and other issue (其他出库): goods that come or go for no trade.
#pragma once

#include <string>

#include "brunvik/warehouse/warehouse_document.h"

namespace brunvik {

class OtherStockDocument : public WarehouseDocument {
 public:
  Collection<StockRow> colBillItems;
  Money BillCost;
  Long Referflag = 0;

  using Bill::GetBill;
  using Bill::GetNearId;

  // Costs each row at its price and posts it; then writes the bill's cost and reads the rows again.
  Long Audit() noexcept;

  // Writes the same costs again, and takes the stock back last.
  Long UndoAudit() noexcept;

 protected:
  RowCollection& rows() override { return colBillItems; }

  // In front of the rows of an audit and of its undo.
  virtual void prepare_rows() = 0;
};

// Other receipt. Its audit takes the rows as the object holds them.
class clsOthersInBill final : public OtherStockDocument {
 public:
  std::string RManager;
  Money Paidamount;

  const Kind& kind() const override { return kind::clsOthersInBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  void prepare_rows() override {}
  const Operation<StockRow>* stock_operation() const override { return &operation::StockIn; }
};

// Other issue. Its audit reads the rows first: a row that was added and not saved doesn't take part.
class clsOthersOutBill final : public OtherStockDocument {
 public:
  std::string SManager;

  const Kind& kind() const override { return kind::clsOthersOutBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  void prepare_rows() override { read_rows(); }
  const Operation<StockRow>* stock_operation() const override { return &operation::StockOut; }
};

}  // namespace brunvik
