#include "brunvik/repair/short_ticket.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

const Members& clsAfterServiceBillInfo::members() const {
  using C = clsAfterServiceBillInfo;
  static const Members table{
      properties("BorrowBill"),
      verb<&C::SaveAfterServiceBillInfo>("SaveAfterServiceBillInfo"),
      verb<&C::UpdateAfterServiceBillInfoAsDraft>("UpdateAfterServiceBillInfoAsDraft", in("Status")),
      verb<&C::SaveRequest>("SaveRequest"),
      verb<&C::Delete>("Delete"),
      walking_verbs(),
  };
  return table;
}

const Insert& clsAfterServiceBillInfo::request_insert() const {
  static const Insert insert(
      members(), {constant("type", *kind().code)},
      "insert into AfterServiceBill(BillId,KeHuBH,ContactPerson,ContactPhone,ContactAddress,BuyDate,RepairType,"
      "AdVisitDate,BrokenDsp,Remarks,IsFinished,processflag,Creator,CreateTime,PaiDanTime,LastModiTime,Executor,"
      "BorrowBill,Status,type,Solution) values(");
  return insert;
}

const Update& clsAfterServiceBillInfo::request_update() const {
  static const Update update(
      members(), {constant("Type", *kind().code)},
      "update AfterServiceBill set BillId = ,KeHuBH = ,Contactperson = ,Contactphone = ,Contactaddress = ,Buydate = ,"
      "Repairtype = ,Advisitdate = ,Brokendsp = ,Remarks = ,PaiDanTime = ,Executor = ,LastModiTime = ,BorrowBill = ,"
      "Status = ,Solution = ,Type =  where BillId =");
  return update;
}

Long clsAfterServiceBillInfo::UpdateAfterServiceBillInfoAsDraft(Long to) noexcept {
  return trap(" UpdateAfterServiceBillInfoAsDraft(): ",
              [&] { execute(sql("update AfterServiceBill set Status={} where BillId = {}", to, BillId)); });
}

Long clsAfterServiceBillInfo::Delete() noexcept {
  return trap(" Delete(): ", [&] {
    if (BillId.empty()) return;
    if (!Referbillid.empty()) execute(sql("delete from GBorrowBill where Id={}", Referbillid));
    remove_header();
  });
}

ServiceTicket::Walked clsAfterServiceBillInfo::walked() const { return {"", sql("Type={}", *kind().code)}; }

}  // namespace brunvik
