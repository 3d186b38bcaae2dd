// Sales issue (销售出库) and its opening balance (销售期初): goods go out to a customer at the present average cost,
// the customer's debt opens, and money taken at the counter is audited with it.
#pragma once

#include "brunvik/billframe/class_of.h"
#include "brunvik/sales/sales_document.h"

namespace brunvik {

// The numbers of this document have no prefix of their own: several series live under one kind, and the host names one
// in sIDQZ. Without a name every series counts.
class SalesIssue : public SalesDocument {
 public:
  // Only a read fills these two: the bill is settled, and a shipment has taken it.
  bool JQBJ = false, FHBJ = false;
  bool CreateFlag = false;
  std::string ClientId;
  // The stock keeper who hands the goods out.
  std::string CkrId;
  std::string Salesman;
  std::string Invoicename;
  Long Invoicetype = 0;
  Single Taxrate = 0;
  Integer Discounttype = 0;
  std::string Discountcard;
  Single Discountrate = 0;
  Long Deliverymethod = 0;
  std::string Referbillid;

  Long LoadLast(const std::string& sIDQZ = {}) noexcept;
  Long GetLastId(std::string& LastId, const std::string& sIDQZ = {}) noexcept;
  Long LoadNext(const std::string& sIDQZ = {}) noexcept;
  Long LoadPreviou(const std::string& sIDQZ = {}) noexcept;
  Long GetNewId(std::string& BID, const std::string& sIDQZ = {}) noexcept;
  Long GetNearId(const std::string& CurBillID, std::string& NearBillID, bool NextPreviousId = false,
                 const std::string& sIDQZ = {}) noexcept;

  // The stock moves only where bJKC is false; on a purchase receipt it moves where bJKC is true.
  Long Audit(bool bJKC = false) noexcept { return audit(bJKC ? Stock::stays : Stock::moves); }
  Long UndoAudit(bool bJKC = false) noexcept { return undo_audit(bJKC ? Stock::stays : Stock::moves); }

 protected:
  // An opening balance has no advance.
  std::string NowAdvanceBillID;
  Money AdvanceAmount;

  static Members issue_members(const Kind& kind);
  DocumentForm made_form() const;

  void audit_advance() override;
  void undo_advance() override;
  const Operation<StockRow>* stock_operation() const override { return &operation::StockOut; }
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;
};

class clsSalesOutBill final : public ClassOf<SalesIssue, kind::clsSalesOutBill> {
 public:
  using SalesIssue::AdvanceAmount;
  using SalesIssue::NowAdvanceBillID;

  const Members& members() const override;
};

class clsSalesOutBjkcBill final : public ClassOf<SalesIssue, kind::clsSalesOutBjkcBill> {
 public:
  const Members& members() const override;
};

}  // namespace brunvik
