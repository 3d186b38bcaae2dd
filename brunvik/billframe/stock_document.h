// The documents of StockBill with their rows in StockBillItems.
#pragma once

#include <string_view>
#include <vector>

#include "brunvik/billframe/bill.h"
#include "brunvik/billframe/row_reader.h"
#include "brunvik/billframe/stock_row.h"
#include "brunvik/foundation/column_statement.h"

namespace brunvik {

// The column that holds the warehouse of a row: where goods come in it is Receiver, where they go out Supplier.
enum class WarehouseColumn { Receiver, Supplier };

// What a stock document says of itself in statements. The texts are the statements of the document; the frame runs
// them. In a header text <...> stands around what an opening balance leaves out.
class StockForm {
 public:
  StockForm(const Kind& kind, const Members& members, WarehouseColumn warehouse, std::string_view insert,
            std::string_view update, std::string_view insert_row, const std::vector<ColumnSource>& row_sources);

  WarehouseColumn warehouse;
  Insert insert;
  Update update;
  Insert insert_row;
  // A document reads back the row fields that it writes, but for the cost, and the name of the warehouse.
  RowMembers row_members_read;
};

class StockDocument : public Bill {
 protected:
  virtual const StockForm& form() const = 0;
  virtual RowCollection& rows() = 0;

  void save_header(Saving saving) override;
  void save_rows() override;
  void read_header() override;
  void read_rows() override;
  void remove_rows() override;
  void remove_header() override;
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;

  // The rows become those of the set. `finish` gets each row, and the set at its record, for what a document reads
  // beside the fields that it writes.
  using FinishRow = void (*)(StockRow& row, const ado::Recordset& set);
  void take_rows(ado::Recordset set, FinishRow finish);

  // What take_rows is given for all rows of the bill.
  virtual FinishRow finish_row() const {
    return [](StockRow&, const ado::Recordset&) {};
  }

  StockRow& row(std::size_t position) { return static_cast<StockRow&>(rows().at(position)); }
};

}  // namespace brunvik
