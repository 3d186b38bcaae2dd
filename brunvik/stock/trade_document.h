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
};

}  // namespace brunvik
