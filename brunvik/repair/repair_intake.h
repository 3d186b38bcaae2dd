// Repair intake (坏件报修入库), its opening balance (客户报修期初), and the exchange on the spot (客户商品维修调换): a
// customer brings a broken item. The rows of an intake are what later documents draw on: YfQty of a row is what they
// have dealt with, QtyStutas says that nothing is left.
#pragma once

#include <array>

#include "brunvik/repair/repair_document.h"
#include "brunvik/repair/repair_operations.h"
#include "brunvik/repair/sales_return_link.h"

namespace brunvik {

class RepairIntake : public RepairDocument {
 public:
  std::string CustomerBH;
  // The kind of repair, and how many days it is expected to take.
  std::string Fixtype;
  Integer Needdays = 0;
  Integer QtyStutas = 0;
  // Who took the goods in, and who is in charge.
  std::string RuKuRen, JingBanRen;
  // The day on which the repair was reported.
  std::string BaoXiuDate;

  using RepairDocument::GetRgStockBillitems;

  const Members& members() const override;

 protected:
  using RepairDocument::RepairDocument;

  static Members intake_members(MemberGroup behind_connection = {}, MemberGroup verbs = {});

  DocumentForm made_form() const;

  // What stands behind YfQty in the row insert's columns.
  virtual std::string_view own_row_columns() const { return {}; }
};

class clsRGStockBxrk final : public RepairClassOf<RepairIntake, kind::clsRGStockBxrk> {
 public:
  // The links of this intake to one sales return, through which its goods went back; filled on demand.
  Collection<RGBxrkSaleInList> colSaleInItems;

  // The host keeps the links with the verbs that follow. They fail in silence: the result is the error's number.

  Long GetRGBxrkSaleInBillItems(const std::string& RGBxrkId, const std::string& SaleInId) noexcept;

  // Raise and lower what is dealt with of the intake row by the link's quantity in base units. The row is found by its
  // goods and by the goods' state too, which is compared with how it is to be repaired.
  Long AddRGBxrkSaleInQty(const RGBxrkSaleInList& objBillItems) noexcept;
  Long ReduceRGBxrkSaleInQty(const RGBxrkSaleInList& objBillItems) noexcept;

  // Removes all links of a sales return.
  Long DeteleRGBxrkSaleInList(const std::string& SaleInId) noexcept;

  // Closes the document where no row has more than was dealt with: 0, or 1 where it stays open. A document without rows
  // is closed.
  Long SetRGBxrkSaleInClosedTag(const std::string& BillId) noexcept;

  // Opens it again, whatever the rows say.
  Long UndoSetRGBxrkSaleInClosedTag(const std::string& BillId) noexcept;

  // 1 where nothing has been dealt with of any row, so that the goods may leave by a return; else 0.
  Long ExitReturnGoods(const std::string& BillId) noexcept;

  Long SaveRGBxrkSaleInLists(const Collection<RGBxrkSaleInList>& RGBxrkSaleInLists) noexcept;

  const Members& members() const override;

 protected:
  Operations stock_operations() const override { return {&operation::RepairIn, 1}; }
};

// What lay in the shop when the books were opened: it never touches the stock.
class clsRGStockBxrkBjkc final : public RepairClassOf<RepairIntake, kind::clsRGStockBxrkBjkc> {};

// The broken item comes in, and a repaired one is given for it.
class clsRGStockWxdh final : public RepairClassOf<RepairIntake, kind::clsRGStockWxdh> {
 protected:
  std::string_view own_row_columns() const override { return ",OutHouse"; }
  Operations stock_operations() const override {
    static constexpr std::array operations{operation::RepairIn, operation::ExchangeOut};
    return operations;
  }
};

}  // namespace brunvik
