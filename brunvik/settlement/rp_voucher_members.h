// The member table of both vouchers; they differ in the staff member who handled the money.
#pragma once

#include "brunvik/foundation/late_binding.h"

namespace brunvik {

template <class C, auto manager>
Members rp_voucher_members(std::string_view manager_name) {
  return {
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colRPBItems>("colRPBItems"),
      collection<&C::colRPBRPItems>("colRPBRPItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "Manualid"),
      property<manager>(manager_name, "Manager"),
      property<&C::Ccompany>("Ccompany", "Ccompany"),
      property<&C::Paidamount>("Paidamount", "Paidamount"),
      property<&C::Amount>("Amount", "Amount"),
      computed<&C::DiscountAmount>("DiscountAmount"),
      property<&C::Nowpay>("Nowpay", "Nowpay"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "Createtime"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "Audittime"),
      property<&C::Referflag>("Referflag", "Referflag"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::Delete>("Delete"),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
      verb<&C::GetPreviousId>("GetPreviousId", in("CurBillID"), out("PreviousId")),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::GetNextId>("GetNextId", in("CurBillID"), out("NextId")),
      verb<&C::Audite>("Audite", optional(in_out("Auditor"), ""), optional(in_out("Audittime"), "")),
      verb<&C::UndoAudite>("UndoAudite"),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
  };
}

}  // namespace brunvik
