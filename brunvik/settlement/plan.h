// Receipt plan and payment plan: the open bills of one company that are to be settled in a period, and what is to be
// paid on each. A plan moves no money and no stock; it records, and tells which of its bills a voucher that it doesn't
// know has settled since.
#pragma once

#include <string>

#include "brunvik/billframe/class_of.h"
#include "brunvik/billframe/document.h"

namespace brunvik {

// A bill in a plan, kept in PlansBillItems.
class PlanRow final : public PublicObject {
 public:
  std::string PlanId;
  // The bill to settle, and the code of its kind.
  std::string Otbillid;
  Long BillType = 0;
  // Only a read fills it. What is written is 1 where the whole of the row is paid, else 2: both read as true.
  bool ClosedBill = false;
  // What the row is to settle, and what was paid of it.
  Money Closedamount, Paidamount;
  std::string Remarks;
  // Only a read fills it: a voucher made after the plan, audited and not in the plan's list, has settled the bill.
  bool HasLaterVoucher = false;

  static const Members& table();
  const Members& members() const override { return table(); }
};

// The two plans are one design: they differ in kind alone.
class Plan : public Document {
 public:
  // A plan is in force as soon as it is saved.
  Plan();

  Collection<PlanRow> colBillItems;

  std::string Ctcompany;
  // The company's full name; only a read fills it.
  std::string CtcompanyName;
  std::string Manager;
  // As the host works them out.
  Money Amount, Paidamount;
  // Numbers of vouchers as a list in SQL, 'FKD1','FKD2', or 0 for none. It goes into a statement as it stands.
  std::string PayBillId = "0";
  bool Closedtag = false;
  Long Billcount = 0;
  std::string StartDate, EndDate;
  Long Referflag = 0;
  std::string Referbillid;

  using Bill::GetBill;

  // Takes the plan out of force: status 1, and nothing else changes. -1 with an empty ID.
  Long SaveAsDraft() noexcept;

  // The next free number of today. Nothing reserves it.
  std::string GetNewId() noexcept;

  // Puts the plan into one of the lists that remind of it: the open ones where BillStatus is 3 and it isn't closed,
  // else the finished ones. An error shows the notice.
  void AddPlansBillMessage(const std::string& cBid, bool bClosedTag, Long BillStatus) noexcept;

  const Members& members() const override { return table(); }

 protected:
  static const Members& table();
  DocumentForm made_form() const;

  RowCollection& rows() override { return colBillItems; }
  Long status_to_save(Saving) const override { return status::audited; }
  void read_header() override;
  void read_rows() override;

 private:
  bool has_later_voucher(const PlanRow& row) const;
};

// Receipt plan: money to come in.
class ClsReceivePlanBill final : public ClassOf<Plan, kind::ClsReceivePlanBill> {};

// Payment plan: money to go out.
class clsPayPlanBill final : public ClassOf<Plan, kind::clsPayPlanBill> {};

}  // namespace brunvik
