// The member table of an order.
#pragma once

#include <utility>

#include "brunvik/billframe/bill_members.h"

namespace brunvik {

// What a side names in its own way, by its place in the table.
struct OwnOrderMembers {
  // The vendor or customer, and the person in charge.
  Member partner, person;
  Member read_links, delete_links, is_in_use, save_links;
};

template <class C>
Members order_members(OwnOrderMembers own) {
  return {
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      collection<&C::colOrderOutItems>("colOrderOutItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      std::move(own.partner),
      std::move(own.person),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::BillCost>("BillCost", "BillCost"),
      property<&C::SendClosedtag>("SendClosedtag", "SendClosedtag"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::Save>("Save"),
      verb<&C::Delete>("Delete"),
      last_by_id_and_neighbours<C>(),
      std::move(own.read_links),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      near_id<C>(),
      verb<&C::AddSaleOrderQty>("AddSaleOrderQty", in("objBillItems")),
      verb<&C::ReduceSaleOrderQty>("ReduceSaleOrderQty", in("objBillItems")),
      std::move(own.delete_links),
      verb<&C::SetSaleClose>("SetSaleClose", in("BillId")),
      verb<&C::UndoSetSaleClose>("UndoSetSaleClose", in("BillId")),
      std::move(own.is_in_use),
      std::move(own.save_links),
  };
}

}  // namespace brunvik
