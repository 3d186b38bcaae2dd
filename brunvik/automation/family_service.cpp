#include "brunvik/automation/family.h"
#include "brunvik/repair/short_ticket.h"
#include "brunvik/repair/staged_ticket.h"
#include "brunvik/repair/ticket_closing.h"

namespace brunvik::automation {

Family service() {
  return {
      {document<clsAfterServiceBillInfo>(), document<clsAfterServiceBillInfoOLD>(), document<clsAfterServiceWGBill>()},
      {}};
}

}  // namespace brunvik::automation
