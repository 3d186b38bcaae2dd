#include "brunvik/foundation/goods_record.h"

namespace brunvik {

const Members& GoodsRecord::members() const {
  using C = GoodsRecord;
  static const Members table{
      property<&C::id>("id", "id"),
      property<&C::Gname>("Gname", "Gname"),
      property<&C::Class>("Class", "Class"),
      property<&C::Enabled>("Enabled", "Enabled"),
      property<&C::GType>("GType", "GType"),
      property<&C::Unit>("Unit", "Unit"),
      property<&C::Price>("Price", "Price"),
      property<&C::Purchaseprice>("Purchaseprice", "Purchaseprice"),
      property<&C::RetailPrice>("RetailPrice", "RetailPrice"),
      property<&C::MinInventory>("MinInventory", "MinInventory"),
      property<&C::Mnemonic>("Mnemonic", "Mnemonic"),
      property<&C::MaxInventory>("MaxInventory", "MaxInventory"),
      property<&C::ShelfLife>("ShelfLife", "ShelfLife"),
      property<&C::Model1>("Model1", "Model1"),
      property<&C::Model2>("Model2", "Model2"),
      property<&C::UnitConverter>("UnitConverter", "UnitConverter"),
      property<&C::MinUnit>("MinUnit", "MinUnit"),
      property<&C::PriceA>("PriceA", "PriceA"),
      property<&C::PriceB>("PriceB", "PriceB"),
      property<&C::PriceC>("PriceC", "PriceC"),
      property<&C::PriceD>("PriceD", "PriceD"),
      property<&C::PriceE>("PriceE", "PriceE"),
      property<&C::Popularity>("Popularity", "Popularity"),
      property<&C::Guarantee>("Guarantee", "Guarantee"),
      property<&C::Brand>("Brand", "Brand"),
      property<&C::Barcode>("Barcode", "Barcode"),
      property<&C::AverageCost>("AverageCost", "AverageCost"),
      property<&C::TecParameters>("TecParameters", "TecParameters"),
  };
  return table;
}

}  // namespace brunvik
