// The groups that stand alike in the member tables of several families. Hosts see the members in the order of the
// table, and a family that has the same ones in another order writes them out.
#pragma once

#include "brunvik/foundation/late_binding.h"

namespace brunvik {

template <class C>
Member near_id() {
  return verb<&C::GetNearId>("GetNearId", in("CurBillID"), out("NearBillID"), optional(in("NextPreviousId"), false));
}

// The texts of a bill, and the verbs that write and remove it.
template <class C>
MemberGroup texts_and_saving() {
  return {
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      verb<&C::Delete>("Delete"),
  };
}

// The same verbs where the audit goes by the status that is stored, with a bill's number and the reading by it.
template <class C>
MemberGroup saving_and_audit_by_status() {
  return {
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::Delete>("Delete"),
      verb<&C::UpdateAudited>("UpdateAudited"),
      verb<&C::CancelAudited>("CancelAudited"),
  };
}

// The next free number, the last bill and its number, and the neighbours.
template <class C>
MemberGroup number_last_and_neighbours() {
  return {
      verb<&C::GetNewId>("GetNewId", out("BID")),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
  };
}

// The last bill and its number, a bill by its number, and its neighbours.
template <class C>
MemberGroup last_by_id_and_neighbours() {
  return {
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
  };
}

// A bill by its number, the last one, and its neighbours.
template <class C>
MemberGroup by_id_last_and_neighbours() {
  return {
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
  };
}

// The walk from number to number.
template <class C>
MemberGroup walk() {
  return {
      verb<&C::LoadLast>("LoadLast"),
      verb<&C::LoadNext>("LoadNext"),
      verb<&C::LoadPreviou>("LoadPreviou"),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      near_id<C>(),
  };
}

// Which goods it is, with a copy of the goods' names.
template <class C>
MemberGroup goods_names() {
  return {
      property<&C::Gid>("Gid", "Gid"),          property<&C::Gbarcode>("Gbarcode", "Gbarcode"),
      property<&C::Gname>("Gname", "Gname"),    property<&C::Class>("Class", "Class"),
      property<&C::Model1>("Model1", "Model1"), property<&C::Model2>("Model2", "Model2"),
      property<&C::Unit>("Unit", "Unit"),
  };
}

}  // namespace brunvik
