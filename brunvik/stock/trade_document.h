// The trade documents: stock documents with a partner, an amount to settle, and money that changed hands at the
// counter.
#pragma once

#include <string>

#include "brunvik/foundation/error_trap.h"
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

  // An audit: marks the bill, audits the voucher at its side, and goes on. An opening balance ends with its voucher: it
  // is a debt alone, as its goods came or went before the books were opened. Nothing happens with an empty ID.
  template <class Voucher, class GoOn>
  Long audit_with(GoOn&& go_on) noexcept {
    return trap([&] {
      if (ID.empty()) return;
      mark(status::audited);
      audit_voucher<Voucher>(Nowpaybillid);
      if (!kind().opening) go_on();
    });
  }

  // The same the other way.
  template <class Voucher, class GoOn>
  Long undo_with(GoOn&& go_on) noexcept {
    return trap([&] {
      if (ID.empty()) return;
      mark_undone();
      undo_voucher<Voucher>(Nowpaybillid);
      if (!kind().opening) go_on();
    });
  }

  // Marks the bill as no longer audited.
  virtual void mark_undone() { mark(status::saved); }
};

}  // namespace brunvik
