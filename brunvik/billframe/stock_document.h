// The documents of StockBill with their rows in StockBillItems.
#pragma once

#include <string_view>
#include <vector>

#include "brunvik/billframe/document.h"
#include "brunvik/billframe/stock_row.h"

namespace brunvik {

// The column that holds the warehouse of a row: where goods come in it is Receiver, where they go out Supplier. Goods
// that move inside the company have both, and their rows are read without the name of either.
enum class WarehouseColumn { Receiver, Supplier, both };

class StockDocument : public Document {
 protected:
  // The form of a document. The texts are its statements; in those of the header <...> stands around what an opening
  // balance leaves out. Beside the members that its row insert writes, the name of the one warehouse is read.
  static DocumentForm stock_form(const Kind& kind, const Members& members, WarehouseColumn warehouse,
                                 std::string_view insert, std::string_view update, std::string_view insert_row,
                                 const std::vector<ColumnSource>& row_sources);

  // Writes the status with the object's Auditor and Audittime, in front of all else that an audit does: a failure
  // further on leaves the bill marked.
  void mark(Long status);

  // The mark of the documents whose audit and undo look at the stored status, so that they may be repeated. Empties ID
  // and writes nothing where there is no such bill, where an audit finds it audited, and where an undo finds it not;
  // -1 ends the verb where ID is empty already.
  void mark_if_stored_otherwise(Long status);

  // The statement that writes this mark: status, auditor, time, number.
  virtual StatementText<4> mark_statement() const {
    return "update stockbill set Status = {},Auditor = {},AuditTime = {} where Id={}";
  }
};

}  // namespace brunvik
