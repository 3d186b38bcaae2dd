// A row of a repair document, kept in RGStockBillItems. It doesn't know the number of its document.
#pragma once

#include <string>

#include "brunvik/foundation/members.h"

namespace brunvik {

class RepairRow final : public PublicObject {
 public:
  // On a replacement: the goods of the row drawn on. The row's own Gid is what was given for them.
  std::string DYGId;
  // How much of the row later documents have dealt with.
  Single YfQty = 0;
  // The position of the row drawn on, in the document GuanLianBill.
  Integer DYRowNum = 0;
  Integer Rownum = 0;
  std::string Gid, Gname, Gbarcode, Class, Model1, Model2;
  // The unit of the quantities of this row.
  std::string Unit;
  Single Qty = 0;
  std::string GuanLianBill;
  // The charge for one unit, and for the row.
  Money price, Amount;
  // The warehouse of the row; and on an exchange the one that the goods given for it leave.
  std::string Storehouse, OutHouse;
  // What is broken, and how it is to be repaired.
  std::string Brokendspt, Fixmeans;
  std::string Outfactorydate, Equipcode, Buydate, Accessory, Remarks;

  static const Members& table();
  const Members& members() const override { return table(); }
};

}  // namespace brunvik
