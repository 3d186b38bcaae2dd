// Item back from the factory (坏件送修返回入库), and factory replacement (送修调还): other goods in its place. A charge
// by the factory is paid through a payment voucher.
#pragma once

#include "brunvik/repair/repair_return.h"

namespace brunvik {

class FactoryReturn : public RepairReturn {
 public:
  // The repairer, and who took the goods in.
  std::string GongYingShangBH, RuKuRen;

  const Members& members() const override { return table(); }

 protected:
  using RepairReturn::RepairReturn;

  static const Members& table();
  DocumentForm made_form() const;

  Operations stock_operations() const override { return {&operation::FactoryBack, 1}; }

  // The audit leaves the voucher to the audit of accounts where that is in use; the undo asks for no setting.
  void audit_money() const override;
  void undo_money() const override;
};

class clsRGStockSxfh final : public RepairClassOf<FactoryReturn, kind::clsRGStockSxfh> {
 protected:
  bool is_replacement() const override { return false; }
};

class clsRGStockSxDh final : public RepairClassOf<FactoryReturn, kind::clsRGStockSxDh> {
 protected:
  bool is_replacement() const override { return true; }
};

}  // namespace brunvik
