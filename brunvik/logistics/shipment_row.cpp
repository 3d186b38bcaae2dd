#include "brunvik/logistics/shipment_row.h"

#include "brunvik/billframe/bill_members.h"

namespace brunvik {

const Members& ShipmentRow::table() {
  using C = ShipmentRow;
  static const Members table{
      property<&C::Billid>("Billid", "Billid"),
      property<&C::Rownum>("Rownum", "Rownum"),
      property<&C::Gstutas>("Gstutas", "Gstutas"),
      property<&C::Businessclass>("Businessclass", "Businessclass"),
      goods_names<C>(),
      property<&C::Qty>("Qty", "Qty"),
      property<&C::Price>("Price", "Price"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Supplier>("Supplier", "Supplier"),
      property<&C::Receiver>("Receiver", "Receiver"),
      property<&C::Outfactorydate>("Outfactorydate", "Outfactorydate"),
      property<&C::Equipcode>("Equipcode", "Equipcode"),
      property<&C::Buydate>("Buydate", "Buydate"),
      property<&C::Accessory>("Accessory", "Accessory"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::Bid>("Bid", "Bid"),
      property<&C::BType>("BType", "BType"),
      property<&C::BillDate>("BillDate", "BillDate"),
  };
  return table;
}

const Members& ShippedBillRow::table() {
  using C = ShippedBillRow;
  static const Members table{
      property<&C::Billid>("Billid", "Billid"),
      property<&C::Bid>("Bid", "Bid"),
      property<&C::DYType>("DYType", "DYType"),
      property<&C::Closeamount>("Closeamount", "Closeamount"),
      property<&C::Paidamount>("Paidamount", "Paidamount"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "Createtime"),
      property<&C::Auditor>("Auditor", "Auditor"),
      property<&C::Audittime>("Audittime", "Audittime"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::DJBJ>("DJBJ", "DJBJ"),
      property<&C::SKLX>("SKLX", "SKLX"),
  };
  return table;
}

}  // namespace brunvik
