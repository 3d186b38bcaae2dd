#include "brunvik/automation/family.h"
#include "brunvik/settlement/advance.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/settlement/receipt_bill.h"

namespace brunvik::automation {

Family settlement() {
  return {
      {document<clsPayBill>(), document<clsReceiptBill>(), document<clsAdvanceBill>(), document<clsAdvanceYSBill>()},
      {record<PaymentRow>("PaymentRow"), record<SettledRow>("SettledRow")}};
}

}  // namespace brunvik::automation
