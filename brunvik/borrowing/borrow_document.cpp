#include "brunvik/borrowing/borrow_document.h"

#include <utility>

#include "brunvik/foundation/error_trap.h"
#include "brunvik/stock/StockPoster.h"

namespace brunvik {

namespace {

// The warehouse of a row is told by the kind of the header in the books, not by the object. Without a header, or with
// one of another kind, goods come into the Receiver and leave the Supplier.
Operation<BorrowRow> stored_operation(const StockPoster& stock, Direction direction, const std::string& bill) {
  const auto header = ado::execute(stock.ADOConn, sql("select * from GBorrowBill where Id={}", bill));
  const Value type = header.at_end() ? Value() : header.value("Type");
  std::string BorrowRow::*warehouse = direction == Direction::in ? &BorrowRow::Receiver : &BorrowRow::Supplier;
  if (!type.is_empty() && !type.is_null()) {
    switch (type.as_long()) {
      case bill_type::borrow_in:
      case bill_type::borrow_in_return:
        warehouse = &BorrowRow::Receiver;
        break;
      case bill_type::borrow_out:
      case bill_type::borrow_out_return:
        warehouse = &BorrowRow::Supplier;
        break;
      default:
        break;
    }
  }
  return {"select * from GBorrowItems where BillId={}",
          {direction, warehouse, &BorrowRow::Uqty, &BorrowRow::GoodStutas}};
}

// "A,B" as an update assigns them: "A = ,B = ".
std::string assigned(std::string_view columns) {
  std::string text;
  for (const char c : columns) c == ',' ? text += " = ," : text += c;
  return text + " = ";
}

}  // namespace

DocumentForm BorrowDocument::made_form() const {
  const Words& own = words();
  std::vector<ColumnSource> sources{constant("Type", kind().code.value()), argument("Status")};
  if (own.closed_from_birth) sources.push_back(constant("ClosedTag", 1));
  const std::string people(own.people), tail(own.tail);
  const std::string closed = own.closed_from_birth ? "ClosedTag =" : "ClosedTag = ";
  RowMembers read;
  for (const Member& member : BorrowRow::table()) read.push_back(&member);
  return {{"select * from GBorrowBill where Id={}", "delete from GBorrowBill where Id={}", own.select_rows,
           "delete from GBorrowItems where BillId={}"},
          Insert(members(), sources,
                 "insert into GBorrowBill(Id,ManualId,Userflag," + people +
                     ",Creator,CreateTime,Type,InOutFlag,Status,[Auditor,AuditTime,]Amount,BillCost,ClosedTag,"
                     "ReferFlag,Referbillid,Summary,Remarks," +
                     tail + ") values("),
          Update(members(), sources,
                 "update GBorrowBill set ManualId = ,Userflag = ," + assigned(people) +
                     ",Type = ,InOutFlag = ,Status = ,[Auditor = ,AuditTime = ,]Amount = ,BillCost = ," + closed +
                     ",ReferFlag = ,Referbillid = ,Summary = ,Remarks = ," + assigned(tail) + " where Id="),
          Insert(BorrowRow::table(), {},
                 "insert into GBorrowItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit," +
                     std::string(own.row_columns) + ") values("),
          std::move(read)};
}

void BorrowDocument::mark(Long status, const std::string& bill) const {
  execute(
      sql("update GBorrowBill set Status={},Auditor={},AuditTime={} where id={}", status, Auditor, Audittime, bill));
}

template <class Act>
void BorrowDocument::for_each_stored_row(const std::string& bill, Act&& act) {
  take_rows(execute(sql(form().statements.select_rows, bill)), finish_row());
  for_each_row(colBillItems, [&](const PublicObject& row) { act(static_cast<const BorrowRow&>(row)); });
}

Long BorrowDocument::Audit() noexcept {
  return trap([&] {
    if (ID.empty()) return;
    mark(status::audited, ID);
    if (kind().opening) return;
    if (words().direction == Direction::out) {
      const StockPoster& stock = session_poster();
      stock.Post(stored_operation(stock, Direction::out, ID), ID);
      return;
    }
    for_each_stored_row(ID, [](const BorrowRow& row) {
      const StockPoster& stock = session_poster();
      stock.Post(stored_operation(stock, Direction::in, row.BillId), row);
    });
  });
}

Long BorrowDocument::UndoAudit() noexcept {
  return trap([&] { take_back(status::saved, ID); });
}

void BorrowDocument::take_back(Long status, const std::string& bill) {
  if (bill.empty()) return;
  mark(status, bill);
  if (kind().opening) return;
  if (words().direction == Direction::in) {
    const StockPoster& stock = session_poster();
    stock.Undo(stored_operation(stock, Direction::in, bill), bill);
    return;
  }
  for_each_stored_row(bill, [](const BorrowRow& row) {
    const StockPoster& stock = session_poster();
    stock.Undo(stored_operation(stock, Direction::out, row.BillId), row);
  });
}

}  // namespace brunvik
