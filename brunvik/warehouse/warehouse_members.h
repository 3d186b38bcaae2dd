// The member table of the warehouse documents.
#pragma once

#include "brunvik/billframe/bill_members.h"

namespace brunvik {

// What a class of the family has of its own, by its place in the table.
struct OwnMembers {
  // The responsible person, under the name and in the column of the document.
  Member person;
  MemberGroup behind_creation = {};
  MemberGroup money = {};
  MemberGroup behind_saving = {};
  MemberGroup behind_number = {};
  // Audit and its undo.
  MemberGroup audit;
};

// What the documents have of it that name a receiving manager.
template <class C>
OwnMembers receiving_members(const MemberGroup& behind_number = {}) {
  return {.person = property<&C::RManager>("RManager", "RManager"),
          .money = {property<&C::Paidamount>("Paidamount"), property<&C::BillCost>("BillCost", "BillCost")},
          .behind_saving = {verb<&C::GetBill>("GetBill")},
          .behind_number = behind_number,
          .audit = {verb<&C::Audit>("Audit"), verb<&C::UndoAudit>("UndoAudit")}};
}

template <class C>
Members warehouse_members(OwnMembers own) {
  return {
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      std::move(own.person),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      std::move(own.behind_creation),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Status>("Status", "Status").required(),
      std::move(own.money),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      std::move(own.behind_saving),
      verb<&C::Delete>("Delete"),
      last_by_id_and_neighbours<C>(),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      std::move(own.behind_number),
      std::move(own.audit),
  };
}

}  // namespace brunvik
