// Shipment (物流发货): a consignment handed to a carrier, the goods in it, and the bills that they come from.
//
// A bill that is under way holds a mark of it, FHBJ on its header and SendStutas on its rows. The host sets the mark;
// a shipment that is undone takes it away. A bill's table isn't known here, so that a number is looked for in the
// stock, the repair and the borrow documents, and one that stands in two of them loses the mark in both.
//
// Each worker tells the user of its own error.
#pragma once

#include <string>
#include <string_view>

#include "brunvik/billframe/telling_document.h"
#include "brunvik/logistics/shipment_row.h"

namespace brunvik {

class clsSendGoodsBill final : public TellingDocument<Document> {
 public:
  Collection<ShipmentRow> colBillItems;
  Collection<ShippedBillRow> colSendBillItems;

  // The account that the freight is paid from, and the settlement mark of the freight. Both are saved with a shipment;
  // a reading leaves them as they are.
  std::string YFZFZH;
  Integer Jsbj = 0;

  std::string Receiveunit, Receiver, Receiveaddress, Receivetel;
  std::string Sendgoodsunit, Sendgoodser, Sendgoodstel;
  // The carrier and the freight.
  std::string Logisticcompany;
  Money Logisticfare;
  // Whether the carrier collects money on delivery, who takes it, to which account, and how much.
  Byte Collecttag = 0;
  std::string Receiptcasher, Openingbank, Bankaccount;
  Money Receiptmoney;
  std::string Sendgoodsdate;
  std::string Operater, Operatedate;

  using Bill::GetNearId;

  // Steps a saved shipment back to this status: its account movements are taken out of the balances, its rows written
  // anew, and no other column of the header changes. -1 with an empty ID.
  Value SaveAsDraft(Long to) noexcept;

  // Takes the mark off the bills whose DJBJ isn't above 0, then removes goods, bills and header. A mark that can't be
  // taken off ends it, and nothing is removed.
  Long Delete() noexcept;

  // Takes the mark off every bill of the shipment.
  Long UpdateItems() noexcept;

  // The next free number of today. Nothing reserves it.
  Long GetNewId(std::string& BID) noexcept;

  const Kind& kind() const override { return kind::clsSendGoodsBill; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  RowCollection& rows() override { return colBillItems; }

  const WorkerTags& tags() const override;
  void save_rows() override;
  void read_rows() override;
  void remove_rows() override;
  void find_last(std::string& last, std::string_view series) override;
  void find_near(const std::string& current, std::string& near, bool next, std::string_view series) override;

 private:
  enum class Marks { all, of_free_bills };

  void take_marks_off(Marks marks) const;
  void take_mark_off(const std::string& bill) const;
};

}  // namespace brunvik
