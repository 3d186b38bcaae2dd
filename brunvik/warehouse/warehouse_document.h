// What the stock documents without a trading partner share: a header with one responsible person, and rows that are
// valued at their own price.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/stock/posting_document.h"

namespace brunvik {

class WarehouseDocument : public PostingDocument {
 protected:
  // ActualQty is written from the row's Qty: on most of these documents the two are the same.
  static constexpr ColumnSource actual_as_asked = from("ActualQty", "Qty");

  // The header's statements around the column of the responsible person, and the document's row statement.
  static DocumentForm warehouse_form(const Kind& kind, const Members& members, std::string_view person_column,
                                     WarehouseColumn warehouse, std::string_view insert_row,
                                     const std::vector<ColumnSource>& row_sources = {actual_as_asked,
                                                                                     constant("GoodStutas", 0)});
};

// Those of them that name a receiving manager, and post in a way of their own or not at all.
class ReceivingDocument : public WarehouseDocument {
 public:
  Collection<StockRow> colBillItems;
  std::string RManager;
  // No column keeps Paidamount.
  Money Paidamount, BillCost;
  Long Referflag = 0;

  using Bill::GetBill;

 protected:
  RowCollection& rows() override { return colBillItems; }
};

}  // namespace brunvik
