#include "brunvik/automation/family.h"
#include "brunvik/repair/allocation.h"
#include "brunvik/repair/customer_return.h"
#include "brunvik/repair/factory_dispatch.h"
#include "brunvik/repair/factory_return.h"
#include "brunvik/repair/repair_intake.h"
#include "brunvik/repair/warehouse_repair.h"

namespace brunvik::automation {

Family repair() {
  return {
      {document<clsRGStockBxrk>(), document<clsRGStockFcwx>(), document<clsRGStockSxfh>(), document<clsRGStockFhgk>(),
       document<clsRGStockSxDh>(), document<clsRGStockDhgk>(), document<clsRGStockBxrkBjkc>(),
       document<clsRGStockFcwxBjkc>(), document<clsRGStockWxdh>(), document<clsBrokenAllocate>(),
       document<clsRestoreAllocate>(), document<clsWareHouseRepairBill>(), document<clsWareHouseRestoreBill>()},
      {record<RepairRow>("RepairRow"), record<RGBxrkSaleInList>("RGBxrkSaleInList")}};
}

}  // namespace brunvik::automation
