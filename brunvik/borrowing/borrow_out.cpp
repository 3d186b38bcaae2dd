#include "brunvik/borrowing/borrow_out.h"

#include "brunvik/borrowing/borrow_members.h"
#include "brunvik/foundation/error_trap.h"

namespace brunvik {

const Members& BorrowOut::table() {
  using C = BorrowOut;
  static const Members table = borrow_members<C>({
      .before_number = {property<&C::CreateFlag>("CreateFlag", "CreateFlag"),
                        property<&C::BorrowDays>("BorrowDays", "BorrowDays"),
                        property<&C::Deliverymethod>("Deliverymethod", "Deliverymethod"),
                        collection<&C::colSaleOutItems>("colSaleOutItems"),
                        collection<&C::colBillItems>("colBillItems"), property<&C::Telphone>("Telphone", "Telphone")},
      .people = {property<&C::SManager>("SManager", "SManager"), property<&C::Receiver>("Receiver", "Receiver")},
      .verbs = {verb<&C::GetBorrowSaleOutBillItems>("GetBorrowSaleOutBillItems", in("BorrowOutId"), in("SaleOutId")),
                verb<&C::AddBorrowPurQty>("AddBorrowPurQty", in("objBillItems")),
                verb<&C::ReduceBorrowPurQty>("ReduceBorrowPurQty", in("objBillItems")),
                verb<&C::DeteleBorrowPurList>("DeteleBorrowPurList", in("PurId")),
                verb<&C::SetBorrowOutClosedTag>("SetBorrowOutClosedTag", in("BillId")),
                verb<&C::UndoSetBorrowOutClosedTag>("UndoSetBorrowOutClosedTag", in("BillId")),
                verb<&C::ExitReturnGoods>("ExitReturnGoods", in("BillId")),
                verb<&C::SaveBorrowOutPurLists>("SaveBorrowOutPurLists", in("BorrowOutPurLists")),
                verb<&C::UndoAuditSaveAsDraft>("UndoAuditSaveAsDraft", in("BillId"))},
  });
  return table;
}

const BorrowDocument::Words& BorrowOut::words() const {
  static constexpr Words words{
      .direction = Direction::out,
      .people = "Receiver,SManager,Salesman,Telphone",
      .tail = "Deliverymethod,BorrowDays,CreateFlag",
      .row_columns = "UQty,ActualQty,price,Amount,Cost,Supplier,Equipcode,remarks,Receiver,GoodStutas",
      .select_rows = borrow_rows_by_supplier};
  return words;
}

Long BorrowOut::UndoAuditSaveAsDraft(const std::string& BillId) noexcept {
  return trap([&] { take_back(status::draft, BillId); });
}

}  // namespace brunvik
