// A row of an assembly or a dismantling, kept in GoodsBillItems. It has one quantity.
#pragma once

#include <string>

#include "brunvik/stock/stock_movement.h"

namespace brunvik {

class AssemblyRow final : public PublicObject {
 public:
  // The number of the bill and the position in it. The host gives each row a position of its own.
  std::string BillId;
  Integer RowNum = 0;
  std::string GId, GBarcode, GName, Class, Model1, Model2;
  // The unit of the quantity.
  std::string unit;
  Single ActualQty = 0;
  // For one unit of the row.
  Money price;
  Money Amount;
  std::string WareHouseId, EquipCode;
  // The state in which the goods stand in the stock.
  Long GoodStutas = 0;
  std::string remarks;
  // The name of the warehouse, which only a read fills.
  std::string WName;

  static const Members& table();
  const Members& members() const override { return table(); }
};

template <>
struct GoodsFields<AssemblyRow> {
  static constexpr std::string AssemblyRow::*goods = &AssemblyRow::GId;
  static constexpr std::string AssemblyRow::*goods_class = &AssemblyRow::Class;
  static constexpr std::string AssemblyRow::*model1 = &AssemblyRow::Model1;
  static constexpr std::string AssemblyRow::*model2 = &AssemblyRow::Model2;
  static constexpr std::string AssemblyRow::*unit = &AssemblyRow::unit;
};

}  // namespace brunvik
