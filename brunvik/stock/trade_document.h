// The trade documents: stock documents with a partner, an amount to settle, and money that changed hands at the
// counter.
#pragma once

#include <string>

#include "brunvik/stock/posting_document.h"

namespace brunvik {

class TradeDocument : public PostingDocument {
 public:
  Collection<StockRow> colBillItems;

  // The voucher of the money that changed hands at the counter; the bill's audit audits it too.
  std::string Nowpaybillid;

  // As the host sets them: the documents work out no amount. Vouchers move Paidamount in the table afterwards.
  Money Paidamount, Closeamount, Amount;
  Money BillCost;
  Long Referflag = 0;

  // What was paid has reached what is to be settled. A new bill without amounts is closed.
  bool Closedtag() const { return Paidamount >= Closeamount; }

 protected:
  RowCollection& rows() override { return colBillItems; }

  // Loads the voucher of this number, where there is one, and audits it as the bill's auditor, or takes its audit
  // back. What comes of it is not looked at: a voucher that fails tells the user itself, and the bill's audit goes on.
  template <class Voucher>
  void audit_voucher(const std::string& number) const {
    if (number.empty()) return;
    auto voucher = loaded<Voucher>(number);
    voucher.Status = status::audited;
    voucher.Auditor = Auditor;
    voucher.Audittime = Audittime;
    voucher.Audite(Auditor, Audittime);
  }

  template <class Voucher>
  void undo_voucher(const std::string& number) const {
    if (!number.empty()) loaded<Voucher>(number).UndoAudite();
  }

 private:
  template <class Voucher>
  Voucher loaded(const std::string& number) const {
    Voucher voucher;
    voucher.ADOConn = ADOConn;
    voucher.LoadById(number);
    return voucher;
  }
};

}  // namespace brunvik
