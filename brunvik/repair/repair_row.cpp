#include "brunvik/repair/repair_row.h"

namespace brunvik {

const Members& RepairRow::table() {
  using C = RepairRow;
  static const Members table{
      property<&C::DYGId>("DYGId", "DYGId"),
      property<&C::YfQty>("YfQty", "YfQty"),
      property<&C::DYRowNum>("DYRowNum", "DYRowNum"),
      property<&C::Rownum>("Rownum", "RowNum"),
      property<&C::Gid>("Gid", "GId"),
      property<&C::Gname>("Gname", "GName"),
      property<&C::Gbarcode>("Gbarcode", "GBarcode"),
      property<&C::Class>("Class", "Class"),
      property<&C::Model1>("Model1", "Model1"),
      property<&C::Model2>("Model2", "Model2"),
      property<&C::Unit>("Unit", "unit"),
      property<&C::Qty>("Qty", "qty"),
      property<&C::GuanLianBill>("GuanLianBill", "GuanLianBill"),
      property<&C::price>("price", "price"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Storehouse>("Storehouse", "StoreHouse"),
      property<&C::OutHouse>("OutHouse", "OutHouse"),
      property<&C::Brokendspt>("Brokendspt", "BrokenDspt"),
      property<&C::Fixmeans>("Fixmeans", "FixMeans"),
      property<&C::Outfactorydate>("Outfactorydate", "OutFactoryDate"),
      property<&C::Equipcode>("Equipcode", "EquipCode"),
      property<&C::Buydate>("Buydate", "BuyDate"),
      property<&C::Accessory>("Accessory", "Accessory"),
      property<&C::Remarks>("Remarks", "remarks"),
  };
  return table;
}

}  // namespace brunvik
