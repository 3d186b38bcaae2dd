#include "brunvik/warehouse/assembly_row.h"

namespace brunvik {

const Members& AssemblyRow::table() {
  using C = AssemblyRow;
  static const Members table{
      property<&C::BillId>("BillId", "BillId"),
      property<&C::RowNum>("RowNum", "RowNum"),
      property<&C::GId>("GId", "GId"),
      property<&C::GBarcode>("GBarcode", "GBarcode"),
      property<&C::GName>("GName", "GName"),
      property<&C::Class>("Class", "Class"),
      property<&C::Model1>("Model1", "Model1"),
      property<&C::Model2>("Model2", "Model2"),
      property<&C::unit>("unit", "unit"),
      property<&C::ActualQty>("ActualQty", "ActualQty"),
      property<&C::price>("price", "price"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::WareHouseId>("WareHouseId", "WareHouseId"),
      property<&C::EquipCode>("EquipCode", "EquipCode"),
      property<&C::GoodStutas>("GoodStutas", "GoodStutas"),
      property<&C::remarks>("remarks", "remarks"),
      property<&C::WName>("WName").read_from("WName"),
  };
  return table;
}

}  // namespace brunvik
