#include "brunvik/purchasing/cost_sharing_row.h"

namespace brunvik {

const Members& CostKindRow::table() {
  using C = CostKindRow;
  static const Members table{
      property<&C::BillId>("BillId", "BillId"),    property<&C::RowNum>("RowNum", "RowNum"),
      property<&C::CostId>("CostId", "CostId"),    property<&C::CostName>("CostName", "CostName"),
      property<&C::Amount>("Amount", "Amount"),    property<&C::ShareMethod>("ShareMethod", "ShareMethod"),
      property<&C::remarks>("remarks", "remarks"),
  };
  return table;
}

const Members& GoodsShareRow::table() {
  using C = GoodsShareRow;
  static const Members table{
      property<&C::Billid>("Billid", "Billid"),          property<&C::CostId>("CostId", "CostId"),
      property<&C::GRowNum>("GRowNum", "GRowNum"),       property<&C::GId>("GId", "GId"),
      property<&C::GoodQty>("GoodQty", "GoodQty"),       property<&C::ShareId>("ShareId", "ShareId"),
      property<&C::Sharecost>("Sharecost", "Sharecost"), property<&C::ShareMethod>("ShareMethod", "ShareMethod"),
      property<&C::UseShare>("UseShare", "UseShare"),
  };
  return table;
}

}  // namespace brunvik
