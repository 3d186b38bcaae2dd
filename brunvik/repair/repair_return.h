// What the documents share that draw on an earlier repair document: those that come back from the factory draw on what
// was sent there, those that go back to the customer on the intake. Each row names the document and the row drawn on;
// posting it raises YfQty of that row and marks that document as dealt with where nothing is left. A charge settles
// through the voucher at the document's side.
#pragma once

#include "brunvik/repair/repair_document.h"
#include "brunvik/repair/repair_operations.h"

namespace brunvik {

class RepairReturn : public RepairDocument {
 public:
  Money BillAmount;
  // A code of the host.
  std::string PayMethod;
  Money Paidamount, Closeamount;
  // The voucher of the charge that was paid on the spot.
  std::string Nowpaybillid;

  // What was paid has reached what is to be settled. A new document without amounts is closed.
  bool Closedtag() const { return Paidamount >= Closeamount; }

 protected:
  using RepairDocument::RepairDocument;

  // A replacement gives other goods than those of the row drawn on, and names these in DYGId.
  virtual bool is_replacement() const = 0;

  // What stands at the end of the row insert's columns.
  std::string_view own_row_columns() const { return is_replacement() ? ",DYGId" : ""; }

  // Neither raising nor marking holds the document up: each tells the user of its own error.
  void row_posted(const RepairRow& row) override;
  void row_undone(const RepairRow& row) override;

 private:
  void raise_dealt_with(const RepairRow& row) const;
  void lower_dealt_with(const RepairRow& row) const;
  void mark_document_drawn_on(const RepairRow& row) const;
  const std::string& goods_drawn_on(const RepairRow& row) const { return is_replacement() ? row.DYGId : row.Gid; }
};

}  // namespace brunvik
