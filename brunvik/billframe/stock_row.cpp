#include "brunvik/billframe/stock_row.h"

namespace brunvik {

const Members& StockRow::table() {
  using C = StockRow;
  static const Members table{
      goods_members(),
      property<&C::Qty>("Qty", "qty"),
      property<&C::Actualqty>("Actualqty", "ActualQty"),
      property<&C::price>("price", "price"),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Cost>("Cost", "Cost"),
      property<&C::Receiver>("Receiver", "Receiver"),
      property<&C::Wname>("Wname").read_from("WName"),
      property<&C::Equipcode>("Equipcode", "Equipcode"),
      property<&C::Remarks>("Remarks", "remarks"),
      property<&C::Supplier>("Supplier", "Supplier"),
      property<&C::Outfactorydate>("Outfactorydate", "Outfactorydate"),
      property<&C::Buydate>("Buydate", "Buydate"),
      property<&C::Accessory>("Accessory", "Accessory"),
      property<&C::ShareCost>("ShareCost", "ShareCost"),
      property<&C::GoodStutas>("GoodStutas", "GoodStutas"),
      property<&C::SendStutas>("SendStutas", "SendStutas"),
      property<&C::xfmount>("xfmount").read_from("XFMount"),
      property<&C::MeansOfPayment>("MeansOfPayment").read_from("MeansOfPayment"),
  };
  return table;
}

}  // namespace brunvik
