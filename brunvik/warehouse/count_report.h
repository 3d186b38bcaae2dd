// The two reports of a stock count: overage (报溢入库) and loss (报损出库).
//
// They are the only documents of the family that look at the status which is stored: an audit of an audited report and
// an undo of any other empty ID and do nothing else; the host then has to load the report again.
#pragma once

#include <string>

#include "brunvik/warehouse/warehouse_document.h"

namespace brunvik {

class CountReport : public WarehouseDocument {
 public:
  Collection<CountRow> colBillItems;
  // The responsible person.
  std::string Manager;

  using Bill::GetNearId;

  // The verbs of the frame, their results in a dynamically typed value.
  Value Save() noexcept { return Bill::Save(); }
  Value SaveAsDraft() noexcept { return Bill::SaveAsDraft(); }
  Value Delete() noexcept { return Bill::Delete(); }

  // Audits the report that is stored: status, the rows' cost at their price, the bill's cost; then posts row by row.
  // -1 with an empty ID. A post that fails leaves status 3 and the rows before it posted.
  Long UpdateAudited() noexcept;

  // Takes the audit back: the status, the same costs again, the stock last.
  Long CancelAudited() noexcept;

 protected:
  RowCollection& rows() override { return colBillItems; }

 private:
  // Moves the report that is stored to the other status and costs its rows. Empties ID where there is no such report,
  // and where it has that status already.
  void change_status(Long to);
};

class clsReportOfOverflowBill final : public CountReport {
 public:
  Money Paidamount;
  Long Referflag = 0;

  const Kind& kind() const override { return kind::clsReportOfOverflowBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  const Operation<StockRow>* stock_operation() const override { return &operation::Overflow; }
};

class clsReportOfLossesBill final : public CountReport {
 public:
  Integer Referflag = 0;

  Long Inoutflag() const { return kind().side; }
  Value GetBill() noexcept { return Bill::GetBill(); }

  const Kind& kind() const override { return kind::clsReportOfLossesBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  const Operation<StockRow>* stock_operation() const override { return &operation::Loss; }
};

}  // namespace brunvik
