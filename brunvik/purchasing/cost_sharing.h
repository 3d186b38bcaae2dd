// Cost sharing: spreads extra costs of a purchase, such as freight, over the goods of one purchase receipt.
//
// The document itself has no status. Its audit changes the average cost of the goods and the costs of the receipt and
// its rows, and nothing keeps that it was done: an audit twice shares the cost twice.
#pragma once

#include <string>
#include <vector>

#include "brunvik/billframe/document.h"
#include "brunvik/billframe/stock_row.h"
#include "brunvik/purchasing/cost_sharing_row.h"

namespace brunvik {

class clsShareCost final : public Document {
 public:
  // The vendor, and the full name, which only a read fills.
  std::string Vendors, VendorsName;
  // The total to share.
  Money BillCost;
  // The receipt and its amount.
  std::string PurchaseBill;
  Money PurchaseAmount;
  Long Referflag = 0;
  std::string Referbillid;

  // The rows of the receipt. The host sets ShareCost on each: what this document adds to the cost of one unit.
  Collection<StockRow> colBillItems;
  Collection<CostKindRow> colBillCostItems;
  Collection<GoodsShareRow> colBillGoodCostItems;

  // Removes the header first, then the kinds of cost, then the shares; the first failure ends it.
  Long Delete() noexcept;
  Long DeleteShareCostBill() noexcept;
  Long DeleteShareCostBillItems() noexcept;
  Long DeleteShareGoodCostBillItems() noexcept;

  // Finds the document by its own number, by that of the receipt, or by both; without either the first there is. ID
  // becomes BID where that is given, and the number of the document found; the rows are those of ID.
  Long LoadById(const std::string& BID = {}, const std::string& PurID = {}) noexcept;

  // Fills colBillItems as a reading of this receipt does, without Cost and ShareCost.
  Long GetPurchaseInBillItems(const std::string& BillId) noexcept;

  // Shares the costs over the receipt's rows in the object, or takes them out again. All rows of one goods id go into
  // the average together, under the key, the unit and the ShareCost of the first: a ShareCost above zero is spread over
  // the stock that is there, any other takes the goods in at their mean price once more. Then each row is costed at the
  // new average, and the receipt's cost is written anew; taking out sets the rows' ShareCost to zero.
  //
  // -1 without ID or PurchaseBill. A failing cost procedure shows its notice and is gone on from.
  Long AuditShareCostBillItems(bool bAudit) noexcept;

  const Kind& kind() const override { return kind::clsShareCost; }
  const Members& members() const override;

 protected:
  const DocumentForm& form() const override;
  RowCollection& rows() override { return colBillCostItems; }

  void update_header(Long status) override;
  void save_rows() override;
  void read_rows() override;

 private:
  void remove_shares();

  // Shares over the rows of one goods id.
  void share_over(const std::vector<StockRow*>& rows, bool audit);
};

}  // namespace brunvik
