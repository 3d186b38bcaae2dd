// The member table of a borrow document.
#pragma once

#include <utility>

#include "brunvik/billframe/bill_members.h"

namespace brunvik {

// What a document names in its own way, by its place in the table.
struct OwnBorrowMembers {
  // In front of the number, with the rows among them.
  MemberGroup before_number;
  // The other party and the persons.
  MemberGroup people;
  // Behind the audit.
  MemberGroup verbs;
};

template <class C>
Members borrow_members(OwnBorrowMembers own) {
  return {
      connection<&C::ADOConn>("ADOConn"),
      std::move(own.before_number),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::UserFlag>("UserFlag", "Userflag"),
      std::move(own.people),
      property<&C::Salesman>("Salesman", "Salesman"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Inoutflag>("Inoutflag", "InOutFlag"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "AuditTime"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::BillCost>("BillCost", "BillCost"),
      property<&C::Closedtag>("Closedtag", "ClosedTag"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      texts_and_saving<C>(),
      number_last_and_neighbours<C>(),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      near_id<C>(),
      verb<&C::Audit>("Audit"),
      verb<&C::UndoAudit>("UndoAudit"),
      std::move(own.verbs),
  };
}

}  // namespace brunvik
