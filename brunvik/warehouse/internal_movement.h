// What the documents share that move goods inside the company, from one warehouse to another or from one state of the
// stock to another. Header and rows hold two warehouses: Supplier gives, Receiver takes.
#pragma once

#include <string_view>
#include <utility>

#include "brunvik/billframe/bill_members.h"
#include "brunvik/stock/posting_document.h"

namespace brunvik {

class InternalMovement : public PostingDocument {
 public:
  Collection<StockRow> colBillItems;
  // No column keeps it.
  Money Paidamount;
  Long Referflag = 0;

  using Bill::GetNearId;

 protected:
  RowCollection& rows() override { return colBillItems; }

  // The header's statements; `managers` are the two columns of the managers in the order in which the document's insert
  // names them.
  static DocumentForm movement_form(const Kind& kind, const Members& members, std::string_view managers);

  // The two ends of the movement stand between the numbers and the creation, under the names of the document; the walk
  // stands behind its verbs.
  template <class C>
  static Members movement_members(MemberGroup ends, MemberGroup verbs) {
    return {
        connection<&C::ADOConn>("ADOConn"),
        collection<&C::colBillItems>("colBillItems"),
        property<&C::ID>("ID", "Id"),
        property<&C::Manualid>("Manualid", "ManualId"),
        std::move(ends),
        property<&C::Creator>("Creator", "Creator"),
        property<&C::Createtime>("Createtime", "CreateTime"),
        property<&C::Auditor>("Auditor", "Auditor"),
        property<&C::Audittime>("Audittime", "AuditTime"),
        property<&C::Status>("Status", "Status").required(),
        property<&C::Paidamount>("Paidamount"),
        property<&C::Referflag>("Referflag", "ReferFlag"),
        property<&C::Summary>("Summary", "Summary"),
        property<&C::Remarks>("Remarks", "Remarks"),
        std::move(verbs),
        walk<C>(),
    };
  }
};

}  // namespace brunvik
