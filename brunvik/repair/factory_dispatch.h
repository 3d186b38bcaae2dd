// Broken item sent to the factory (坏件返厂维修出库), and its opening balance (返厂送修期初). The documents that come
// back from the factory draw on its rows.
#pragma once

#include "brunvik/repair/repair_document.h"
#include "brunvik/repair/repair_operations.h"

namespace brunvik {

class FactoryDispatch : public RepairDocument {
 public:
  // The repairer, and who sent the goods out.
  std::string GongYingShangBM, ChuKuRen;
  Long Deliverymethod = 1;
  Integer QtyStutas = 0;
  std::string BaoXiuDate;

  using RepairDocument::GetRgStockBillitems;

  const Members& members() const override { return table(); }

 protected:
  using RepairDocument::RepairDocument;

  static const Members& table();
  DocumentForm made_form() const;
};

class clsRGStockFcwx final : public RepairClassOf<FactoryDispatch, kind::clsRGStockFcwx> {
 protected:
  Operations stock_operations() const override { return {&operation::FactoryOut, 1}; }
};

// What lay at the factory when the books were opened: it never touches the stock.
class clsRGStockFcwxBjkc final : public RepairClassOf<FactoryDispatch, kind::clsRGStockFcwxBjkc> {};

}  // namespace brunvik
