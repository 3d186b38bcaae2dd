#include "brunvik/automation/family.h"
#include "brunvik/repair/customer_return.h"
#include "brunvik/repair/factory_dispatch.h"
#include "brunvik/repair/factory_return.h"
#include "brunvik/repair/repair_intake.h"

namespace brunvik::automation {

Family repair() {
  return {{document<clsRGStockBxrk>(), document<clsRGStockFcwx>(), document<clsRGStockSxfh>(),
           document<clsRGStockFhgk>(), document<clsRGStockSxDh>(), document<clsRGStockDhgk>(),
           document<clsRGStockBxrkBjkc>(), document<clsRGStockFcwxBjkc>(), document<clsRGStockWxdh>()},
          {record<RepairRow>("RepairRow"), record<RGBxrkSaleInList>("RGBxrkSaleInList")}};
}

}  // namespace brunvik::automation
