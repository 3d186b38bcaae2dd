// The rows of vouchers and advances.
#pragma once

#include <string>

#include "brunvik/foundation/members.h"

namespace brunvik {

// How the money of a voucher moved, kept in RPBItems.
class PaymentRow final : public PublicObject {
 public:
  std::string BID;
  Integer Rownum = 0;
  Long MeansOfPayment = 0;
  // Card number; only receipts keep it.
  std::string kh;
  Money Amount;
  std::string Remarks;

  static const Members& table();
  const Members& members() const override { return table(); }
};

// A bill that a voucher or an advance settles, kept in RPBRPItems or AdvanceItems.
class SettledRow final : public PublicObject {
 public:
  std::string BID;
  Integer Rownum = 0;
  // The source bill, and the code of its kind, which says in which table it lives.
  std::string Rpablebid;
  Byte Rpablebtype = 0;
  // How much of this voucher is set against the bill.
  Money Amount;
  std::string Remarks;
  // Only a read fills these: the amount of the source bill, and what no voucher or advance has taken of it yet.
  Money BillAmount, OpenAmount;

  static const Members& table();
  const Members& members() const override { return table(); }
};

}  // namespace brunvik
