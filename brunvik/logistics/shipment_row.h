// The rows of a shipment.
#pragma once

#include <string>

#include "brunvik/foundation/members.h"

namespace brunvik {

// Goods in a consignment, kept in SendGoodsBillItems.
class ShipmentRow final : public PublicObject {
 public:
  std::string Billid;
  Integer Rownum = 0;
  // The state of the goods, and the line of business; codes of the host.
  Long Gstutas = 0;
  std::string Businessclass;
  std::string Gid, Gbarcode, Gname, Class, Model1, Model2, Unit;
  Single Qty = 0;
  Money Price, Amount;
  std::string Supplier, Receiver;
  std::string Outfactorydate, Equipcode, Buydate, Accessory;
  std::string Remarks;
  // The bill that the row comes from, the code of its kind, and its day.
  std::string Bid;
  Long BType = 0;
  std::string BillDate;

  static const Members& table();
  const Members& members() const override { return table(); }
};

// A bill whose goods are in a consignment, kept in SendBillItems.
class ShippedBillRow final : public PublicObject {
 public:
  std::string Billid;
  // The bill, and the code of its kind.
  std::string Bid;
  Long DYType = 0;
  Money Closeamount, Paidamount;
  std::string Creator, Createtime;
  std::string Auditor, Audittime;
  std::string Remarks;
  // Above 0 the bill stays marked as shipped when the shipment is deleted.
  Integer DJBJ = 0;
  // The kind of collection; a code of the host.
  Integer SKLX = 0;

  static const Members& table();
  const Members& members() const override { return table(); }
};

}  // namespace brunvik
