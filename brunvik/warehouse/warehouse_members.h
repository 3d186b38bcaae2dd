// The member table of the five warehouse documents. A class has those of the members at choice that it publishes.
#pragma once

#include "brunvik/foundation/late_binding.h"

namespace brunvik {

namespace detail {

template <class C>
Member paid_amount() {
  if constexpr (requires { &C::Paidamount; }) return property<&C::Paidamount>("Paidamount");
  return Member::unpublished();
}

template <class C>
Member bill_cost() {
  if constexpr (requires { &C::BillCost; }) return property<&C::BillCost>("BillCost", "BillCost");
  return Member::unpublished();
}

template <class C>
Member in_out_flag() {
  if constexpr (requires { &C::Inoutflag; }) return computed<&C::Inoutflag>("Inoutflag", "InOutFlag");
  return Member::unpublished();
}

template <class C>
Member get_bill() {
  if constexpr (requires { &C::GetBill; }) return verb<&C::GetBill>("GetBill");
  return Member::unpublished();
}

template <class C>
Member get_near_id() {
  if constexpr (requires { &C::GetNearId; }) {
    return verb<&C::GetNearId>("GetNearId",
                               {in("CurBillID"), out("NearBillID"), optional(in("NextPreviousId"), false)});
  }
  return Member::unpublished();
}

template <class C>
Member audit() {
  if constexpr (requires { &C::UpdateAudited; }) {
    return verb<&C::UpdateAudited>("UpdateAudited");
  } else {
    return verb<&C::Audit>("Audit");
  }
}

template <class C>
Member undo_audit() {
  if constexpr (requires { &C::CancelAudited; }) {
    return verb<&C::CancelAudited>("CancelAudited");
  } else {
    return verb<&C::UndoAudit>("UndoAudit");
  }
}

}  // namespace detail

// `person` is the responsible person, under the name and in the column of the document.
template <class C>
Members warehouse_members(const Member& person) {
  return {
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      person,
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      detail::in_out_flag<C>(),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Status>("Status", "Status").required(),
      detail::paid_amount<C>(),
      detail::bill_cost<C>(),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      detail::get_bill<C>(),
      verb<&C::Delete>("Delete"),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::GetLastId>("GetLastId", {out("LastId")}),
      verb<&C::LoadById>("LoadById", {in_out("BID")}),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
      verb<&C::GetNewId>("GetNewId", {out("BID")}),
      detail::get_near_id<C>(),
      detail::audit<C>(),
      detail::undo_audit<C>(),
  };
}

}  // namespace brunvik
