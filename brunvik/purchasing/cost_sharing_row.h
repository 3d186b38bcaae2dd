// The rows of a cost sharing: the kinds of cost, and what each row of goods bears of them.
#pragma once

#include <string>

#include "brunvik/foundation/members.h"

namespace brunvik {

// A kind of cost, such as freight, kept in PurChaseCostItems.
class CostKindRow final : public PublicObject {
 public:
  std::string BillId;
  Integer RowNum = 0;
  std::string CostId, CostName;
  Money Amount;
  // How the amount is shared, in the host's words.
  std::string ShareMethod;
  std::string remarks;

  const Members& members() const override { return table(); }
  static const Members& table();
};

// The share that a row of the receipt bears of a kind of cost, kept in PuchaseBillItems. The host works it out; nothing
// here computes it.
class GoodsShareRow final : public PublicObject {
 public:
  std::string Billid, CostId;
  // The row of the receipt, its goods and their quantity.
  Integer GRowNum = 0;
  std::string GId;
  Single GoodQty = 0;
  std::string ShareId;
  Money Sharecost;
  std::string ShareMethod, UseShare;

  const Members& members() const override { return table(); }
  static const Members& table();
};

}  // namespace brunvik
