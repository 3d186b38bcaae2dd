#include "brunvik/repair/ticket_closing.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

namespace {

// The stage of a ticket that is closed: completed.
constexpr Integer closed_stage = 3;

}  // namespace

const Members& clsAfterServiceWGBill::members() const {
  using C = clsAfterServiceWGBill;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      property<&C::ID>("ID", "BillId"),
      property<&C::KeHuBH>("KeHuBH", "KeHuBH"),
      property<&C::Repairobject>("Repairobject", "RepairObject"),
      property<&C::Cusprovdoc>("Cusprovdoc", "CusProvDoc"),
      property<&C::Brokentype>("Brokentype", "BrokenType"),
      property<&C::Brokendsp>("Brokendsp", "BrokenDsp"),
      property<&C::Referbillid>("Referbillid", "ReferBillId"),
      property<&C::BorrowBill>("BorrowBill", "BorrowBill"),
      property<&C::Servicefee>("Servicefee", "ServiceFee"),
      property<&C::Areafee>("Areafee", "AreaFee"),
      property<&C::Paytype>("Paytype", "PayType"),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      property<&C::Handleresult>("Handleresult", "HandleResult"),
      property<&C::Arrivedate>("Arrivedate", "ArriveDate"),
      property<&C::Finishdate>("Finishdate", "FinishDate"),
      property<&C::Cusappraise>("Cusappraise", "CusAppraise"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Status>("Status", "Status"),
      verb<&C::Delete>("Delete"),
      verb<&C::Save>("Save"),
      by_id_last_and_neighbours<C>(),
      neighbour_numbers(),
  };
  return table;
}

void clsAfterServiceWGBill::save_header(Saving) {
  worker(" Save(): ", [&] {
    if (ID.empty()) throw Stop{result_without_id};
    if (!execute(sql("select BillId from AfterServiceBill where BillId={}", ID)).at_end()) update_bill();
  });
}

void clsAfterServiceWGBill::update_bill() const {
  static const Update update(
      members(), {constant("Type", *kind().code), constant("Isfinished", 1), constant("ProcessFlag", closed_stage)},
      "update AfterServiceBill set KeHuBH = ,Repairobject = ,Cusprovdoc = ,Brokentype = ,Brokendsp = ,ReferBillId = ,"
      "BorrowBill = ,Type = ,ArriveDate = ,ServiceFee = ,AreaFee = ,PayType = ,PaidAmount = ,HandleResult = ,"
      "FinishDate = ,CusAppraise = ,Remarks = ,Status = ,Isfinished = ,ProcessFlag =  where BillId=");
  worker(" UpdateBill(): ", [&] { execute(update.text(*this)); });
}

ServiceTicket::Walked clsAfterServiceWGBill::walked() const {
  return {"", sql("Type={} and ProcessFlag={}", *kind().code, closed_stage)};
}

}  // namespace brunvik
