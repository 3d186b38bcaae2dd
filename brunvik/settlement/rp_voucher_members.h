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
      property<&C::ID>("ID", "Id"),
      property<&C::Manualid>("Manualid", "Manualid"),
      property<manager>(manager_name, "Manager"),
      property<&C::Ccompany>("Ccompany", "Ccompany"),
      property<&C::Paidamount>("Paidamount", "Paidamount"),
      property<&C::Amount>("Amount", "Amount"),
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
