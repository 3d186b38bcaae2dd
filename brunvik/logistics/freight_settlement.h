// Freight settlement: what is due to a carrier for a set of shipments, and what was paid. It records alone: neither the
// shipments nor any account knows of it, and its audit changes its own status.
//
// Each worker tells the user of its own error.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/billframe/telling_document.h"

namespace brunvik {

// A shipment that is settled, kept in SendGoodsVouchersbillItems.
class FreightRow final : public PublicObject {
 public:
  // Only a read fills these two: a row is written under the number of its document and at its place there.
  std::string BID;
  Integer Rownum = 0;
  // The number of the shipment.
  std::string Rpablebid;
  // Due on the shipment, and paid.
  Money Amount, Paidamount;
  // The carrier, and the day of dispatch.
  std::string Ccompany, Fhtime;
  std::string Remarks;
  // Only a read fills these: what others have written to the row, and the telephone of the sender on the shipment.
  std::string ReceptId, PayId, Sendgoodstel;

  static const Members& table();
  const Members& members() const override { return table(); }
};

class clsSendGoodsVouchersbill final : public TellingDocument<Document> {
 public:
  Collection<FreightRow> colSGVItems;

  std::string Manager;
  // The carrier.
  std::string Ccompany;
  // As the host works them out.
  Money Paidamount, Amount;
  // The carrier's fee rate, the fee's setting, and the account for money collected for the company. The first save
  // alone writes these.
  Long Sxfbl = 0, Sxfzd = 0;
  std::string Dszh;

  using Bill::GetNextId;
  using Bill::GetPreviousId;

  // Marks the stored document audited by these; the object stays as it is.
  Long Audite(const std::string& auditor = {}, const std::string& audit_time = {}) noexcept;

  // Marks it saved, and by whom and when it was audited is null.
  Long UndoAudite() noexcept;

  const Kind& kind() const override { return kind::clsSendGoodsVouchersbill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  RowCollection& rows() override { return colSGVItems; }

  const WorkerTags& tags() const override;
  Long status_to_save(Saving saving) const override;
  void save_rows() override;
  void read_rows() override;
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;
};

}  // namespace brunvik
