#include "brunvik/borrowing/borrow_in.h"

#include "brunvik/borrowing/borrow_members.h"

namespace brunvik {

const Members& BorrowIn::table() {
  using C = BorrowIn;
  static const Members table = borrow_members<C>({
      .before_number = {property<&C::BorrowDays>("BorrowDays", "BorrowDays"),
                        collection<&C::colBillItems>("colBillItems"),
                        collection<&C::colPurchaseInItems>("colPurchaseInItems")},
      .people = {property<&C::Supplier>("Supplier", "Supplier"), property<&C::Receiver>("Receiver", "Receiver"),
                 property<&C::RManager>("RManager", "RManager"), property<&C::SManager>("SManager", "SManager")},
      .verbs = {verb<&C::GetBorrowPurInBillItems>("GetBorrowPurInBillItems", in("BorrowInId"), in("PurId")),
                verb<&C::AddBorrowPurQty>("AddBorrowPurQty", in("objBillItems")),
                verb<&C::ReduceBorrowPurQty>("ReduceBorrowPurQty", in("objBillItems")),
                verb<&C::DeteleBorrowPurList>("DeteleBorrowPurList", in("PurId")),
                verb<&C::SetBorrowInClosedTag>("SetBorrowInClosedTag", in("BillId")),
                verb<&C::UndoSetBorrowInClosedTag>("UndoSetBorrowInClosedTag", in("BillId")),
                verb<&C::ExitReturnGoods>("ExitReturnGoods", in("BillId")),
                verb<&C::SaveBorrowInPurLists>("SaveBorrowInPurLists", in("BorrowInPurLists"))},
  });
  return table;
}

const BorrowDocument::Words& BorrowIn::words() const {
  static constexpr Words words{
      .direction = Direction::in,
      .people = "Supplier,RManager,Salesman",
      .tail = "BorrowDays",
      .row_columns = "Uqty,ActualQty,price,Amount,Cost,Receiver,Equipcode,remarks,GoodStutas,Supplier",
      .select_rows = borrow_rows_by_receiver};
  return words;
}

}  // namespace brunvik
