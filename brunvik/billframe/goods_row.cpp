#include "brunvik/billframe/goods_row.h"

namespace brunvik {

MemberGroup GoodsRow::goods_members() {
  using C = GoodsRow;
  return {
      property<&C::BillId>("BillId", "BillId"), property<&C::Rownum>("Rownum", "RowNum"),
      property<&C::Gid>("Gid", "GId"),          property<&C::Gbarcode>("Gbarcode", "GBarcode"),
      property<&C::Gname>("Gname", "GName"),    property<&C::Class>("Class", "Class"),
      property<&C::Model1>("Model1", "Model1"), property<&C::Model2>("Model2", "Model2"),
      property<&C::Unit>("Unit", "unit"),
  };
}

}  // namespace brunvik
