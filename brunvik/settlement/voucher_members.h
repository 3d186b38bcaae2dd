// The groups that stand alike in the member tables of the vouchers, of the advances and of what is shaped like them.
#pragma once

#include "brunvik/foundation/late_binding.h"

namespace brunvik {

// Its number, who handled the money, the other party, and the money: really paid or received, and settled.
template <class C, auto manager>
MemberGroup voucher_heading(std::string_view manager_name) {
  return {
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "Manualid"),
      property<manager>(manager_name, "Manager"),
      property<&C::Ccompany>("Ccompany", "Ccompany"),
      property<&C::Paidamount>("Paidamount", "Paidamount"),
      property<&C::Amount>("Amount", "Amount"),
  };
}

// Its status, and by whom and when it was made and audited.
template <class C>
MemberGroup voucher_marks() {
  return {
      property<&C::Status>("Status", "Status").required(),  property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "Createtime"), property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "Audittime"),
  };
}

// Reading, deleting and walking.
template <class C>
MemberGroup voucher_reading() {
  return {
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::Delete>("Delete"),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
      verb<&C::GetPreviousId>("GetPreviousId", in("CurBillID"), out("PreviousId")),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::GetNextId>("GetNextId", in("CurBillID"), out("NextId")),
  };
}

template <class C>
MemberGroup voucher_audit() {
  return {
      verb<&C::Audite>("Audite", optional(in_out("Auditor"), ""), optional(in_out("Audittime"), "")),
      verb<&C::UndoAudite>("UndoAudite"),
  };
}

// The verbs of an advance and of a freight settlement.
template <class C>
MemberGroup advance_verbs() {
  return Members::group({
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      voucher_reading<C>(),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      voucher_audit<C>(),
  });
}

}  // namespace brunvik
