#include "brunvik/automation/family.h"
#include "brunvik/logistics/freight_settlement.h"
#include "brunvik/logistics/shipment.h"

namespace brunvik::automation {

Family logistics() {
  return {
      {document<clsSendGoodsBill>(), document<clsSendGoodsVouchersbill>()},
      {record<ShipmentRow>("ShipmentRow"), record<ShippedBillRow>("ShippedBillRow"), record<FreightRow>("FreightRow")}};
}

}  // namespace brunvik::automation
