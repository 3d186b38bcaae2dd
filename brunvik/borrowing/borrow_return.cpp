#include "brunvik/borrowing/borrow_return.h"

#include "brunvik/borrowing/borrow_members.h"
#include "brunvik/foundation/error_trap.h"

namespace brunvik {

Long BorrowReturn::draw(Change change, const BorrowRow& row, const std::string& loan) noexcept {
  return trap([&] {
    execute(change == Change::add
                ? sql("update GBorrowItems set ActualQty=ActualQty+{} where BillId={} and RowNum={} and GId={}",
                      row.Uqty, loan, row.Rownum, row.Gid)
                : sql("update GBorrowItems set ActualQty=ActualQty-{} where BillId={} and RowNum={} and GID={}",
                      row.Uqty, loan, row.Rownum, row.Gid));
  });
}

const Members& clsBorrowInReturn::members() const {
  using C = clsBorrowInReturn;
  static const Members table = borrow_members<C>({
      .before_number = {property<&C::Deliverymethod>("Deliverymethod", "Deliverymethod"),
                        collection<&C::colBillItems>("colBillItems")},
      .people = {property<&C::SManager>("SManager", "SManager"), property<&C::Receiver>("Receiver", "Receiver")},
      .verbs = {verb<&C::AddBorrowInQty>("AddBorrowInQty", in("objBillItems"), in("OutId")),
                verb<&C::ReduceBorrowInQty>("ReduceBorrowInQty", in("objBillItems"), in("OutId"))},
  });
  return table;
}

const BorrowDocument::Words& clsBorrowInReturn::words() const {
  static constexpr Words words{.direction = Direction::out,
                               .people = "Receiver,SManager,Salesman",
                               .tail = "Deliverymethod",
                               .row_columns = return_row_columns,
                               .select_rows = borrow_rows_by_receiver,
                               .closed_from_birth = true};
  return words;
}

// It asks for a whole record, unlike the other borrow documents.
void clsBorrowInReturn::find_last(std::string& last, std::string_view) {
  last = aggregated_id(
      execute(sql("select TOP 1 * from GBorrowBill where type={} order by Id desc", kind().code.value())));
}

const Members& clsBorrowOutReturn::members() const {
  using C = clsBorrowOutReturn;
  static const Members table = borrow_members<C>({
      .before_number = {property<&C::CreateFlag>("CreateFlag", "CreateFlag"),
                        collection<&C::colBillItems>("colBillItems")},
      .people = {property<&C::Supplier>("Supplier", "Supplier"), property<&C::RManager>("RManager", "RManager")},
      .verbs = {verb<&C::AddBorrowOutQty>("AddBorrowOutQty", in("objBillItems"), in("OutId")),
                verb<&C::ReduceBorrowOutQty>("ReduceBorrowOutQty", in("objBillItems"), in("OutId"))},
  });
  return table;
}

const BorrowDocument::Words& clsBorrowOutReturn::words() const {
  static constexpr Words words{.direction = Direction::in,
                               .people = "Supplier,RManager,Salesman",
                               .tail = "CreateFlag",
                               .row_columns = return_row_columns,
                               .select_rows = borrow_rows_by_supplier,
                               .closed_from_birth = true};
  return words;
}

}  // namespace brunvik
