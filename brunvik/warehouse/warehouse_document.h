// What the stock documents without a trading partner share: a header with one responsible person, and rows that are
// valued at their own price.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/stock/posting_document.h"

namespace brunvik {

class WarehouseDocument : public PostingDocument {
 protected:
  // The header's statements around the column of the responsible person, and the document's row statement. ActualQty is
  // written from the row's Qty: on these documents the two are the same.
  static DocumentForm warehouse_form(const Kind& kind, const Members& members, std::string_view person_column,
                                     WarehouseColumn warehouse, std::string_view insert_row,
                                     std::vector<ColumnSource> row_sources = {constant("GoodStutas", 0)});
};

}  // namespace brunvik
