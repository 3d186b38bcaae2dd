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
  static DocumentForm return_form(const Kind& kind, std::string_view own_columns = {});

  Operations stock_operations() const override { return {&operation::FactoryBack, 1}; }

  // The audit leaves the voucher to the audit of accounts where that is in use; the undo asks for no setting.
  void audit_money() const override;
  void undo_money() const override;
};

class clsRGStockSxfh final : public FactoryReturn {
 public:
  clsRGStockSxfh() : FactoryReturn(kind::clsRGStockSxfh) {}

  const Kind& kind() const override { return kind::clsRGStockSxfh; }

 protected:
  const DocumentForm& form() const override;
  bool is_replacement() const override { return false; }
};

class clsRGStockSxDh final : public FactoryReturn {
 public:
  clsRGStockSxDh() : FactoryReturn(kind::clsRGStockSxDh) {}

  const Kind& kind() const override { return kind::clsRGStockSxDh; }

 protected:
  const DocumentForm& form() const override;
  bool is_replacement() const override { return true; }
};

}  // namespace brunvik
