#include "brunvik/automation/family.h"
#include "brunvik/purchasing/cost_sharing.h"
#include "brunvik/purchasing/goods_arrival.h"
#include "brunvik/purchasing/purchase_order.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/purchasing/purchase_return.h"

namespace brunvik::automation {

Family purchasing() {
  return {
      {document<clsPurchaseInBill>(), document<clsPurchaseOutBill>(), document<clsPurchaseInBjkcBill>(),
       document<clsPurchaseOutBjkcBill>(), document<clsPurOrderBill>(), document<clsShareCost>(),
       document<ClsAdjustInBill>()},
      {record<PurchaseOrderRow>("PurchaseOrderRow"), record<PurchaseOrderLink>("PurchaseOrderLink"),
       record<CostKindRow>("CostKindRow"), record<GoodsShareRow>("GoodsShareRow"), record<ArrivalRow>("ArrivalRow")}};
}

}  // namespace brunvik::automation
