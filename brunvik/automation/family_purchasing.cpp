#include "brunvik/automation/family.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/purchasing/purchase_return.h"

namespace brunvik::automation {

Family purchasing() {
  return {{document<clsPurchaseInBill>(), document<clsPurchaseOutBill>(), document<clsPurchaseInBjkcBill>(),
           document<clsPurchaseOutBjkcBill>()},
          {}};
}

}  // namespace brunvik::automation
