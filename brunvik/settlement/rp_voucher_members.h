// The member table of both vouchers; they differ in the staff member who handled the money.
#pragma once

#include "brunvik/settlement/voucher_members.h"

namespace brunvik {

template <class C, auto manager>
Members rp_voucher_members(std::string_view manager_name) {
  return {
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colRPBItems>("colRPBItems"),
      collection<&C::colRPBRPItems>("colRPBRPItems"),
      voucher_heading<C, manager>(manager_name),
      computed<&C::DiscountAmount>("DiscountAmount"),
      property<&C::Nowpay>("Nowpay", "Nowpay"),
      voucher_marks<C>(),
      property<&C::Referflag>("Referflag", "Referflag"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      voucher_reading<C>(),
      voucher_audit<C>(),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
  };
}

}  // namespace brunvik
