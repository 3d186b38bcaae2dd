// Goods lent and borrowed, and their returns: documents of the tables GBorrowBill and GBorrowItems. They stand outside
// of purchase and sales, so that no audit works out a cost or settles money; it moves the goods alone. An opening
// balance moves nothing: its goods are where they are already.
//
// The quantities that were returned, bought or sold are counted on the rows of the loan. The host does that with the
// verbs of the loan and of the return; no audit does.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/billframe/document.h"
#include "brunvik/borrowing/borrow_row.h"
#include "brunvik/stock/stock_movement.h"

namespace brunvik {

class BorrowDocument : public Document {
 public:
  Collection<BorrowRow> colBillItems;
  // The host's.
  Long UserFlag = 0;
  // The person in charge.
  std::string Salesman;
  Integer Inoutflag = 1;
  // In the place of the frame's, which is wider.
  Byte Status = 0;
  Money Amount, BillCost;
  // Whether all goods have come back or changed hands.
  bool Closedtag = false;
  Long Referflag = 0;
  std::string Referbillid;

  using Bill::GetNearId;

  // Marks the document and moves its goods: row by row as they are read back where they come in, by what the books hold
  // where they go out. The first row that can't be moved ends it, with the document marked and the rows before moved.
  // Nothing happens with an empty ID.
  Long Audit() noexcept;

  // Marks the document as saved and takes the goods back, by what the books hold where they came in, and row by row
  // where they went out.
  Long UndoAudit() noexcept;

 protected:
  // What a document says in its own way of the header and of its rows.
  struct Words {
    // Whether its goods come in or go out.
    Direction direction;
    // The columns of the other party and of the persons, and those at the end of the header.
    std::string_view people, tail;
    // The columns of a row from the quantities on.
    std::string_view row_columns;
    // Reads the rows in their order, each with the name of its warehouse.
    StatementText<1> select_rows;
    bool closed_from_birth = false;
  };
  virtual const Words& words() const = 0;
  DocumentForm made_form() const;

  RowCollection& rows() override { return colBillItems; }

  // Marks the document of this number with a status in front of the audit and takes its goods back. Nothing happens
  // with an empty number.
  void take_back(Long status, const std::string& bill);

  // What becomes of the quantity that of a row was returned, bought or sold.
  enum class Change { add, reduce };

 private:
  void mark(Long status, const std::string& bill) const;

  // Reads the rows of the document of this number into the object, and hands each to `act`.
  template <class Act>
  void for_each_stored_row(const std::string& bill, Act&& act);
};

// The rows that join the name of the warehouse by either column.
inline constexpr StatementText<1> borrow_rows_by_receiver{
    "select GBorrowItems.*,warehouse.WName from GBorrowItems left join Warehouse on GBorrowItems.Receiver = "
    "Warehouse.id where GBorrowItems.BillId={} order by GBorrowItems.rownum"};
inline constexpr StatementText<1> borrow_rows_by_supplier{
    "select GBorrowItems.*,warehouse.WName from GBorrowItems left join Warehouse on GBorrowItems.Supplier = "
    "Warehouse.id where GBorrowItems.BillId={} order by GBorrowItems.rownum"};

}  // namespace brunvik
