#include "brunvik/repair/sales_return_link.h"

namespace brunvik {

const Members& RGBxrkSaleInList::table() {
  using C = RGBxrkSaleInList;
  static const Members table{
      property<&C::RGBxrkId>("RGBxrkId", "RGBxrkId"),
      property<&C::Stockid>("Stockid", "StockId"),
      property<&C::RGStocktype>("RGStocktype", "RGStockType"),
      property<&C::Stocktype>("Stocktype", "StockType"),
      property<&C::RgstockRownum>("RgstockRownum", "RGStockRowNum"),
      property<&C::StockRownum>("StockRownum", "StockRowNum"),
      property<&C::GoodsId>("GoodsId", "Goodsid"),
      property<&C::Unit>("Unit", "unit"),
      property<&C::Qty>("Qty", "Qty"),
      property<&C::Goodstutas>("Goodstutas", "GoodStutas"),
  };
  return table;
}

}  // namespace brunvik
