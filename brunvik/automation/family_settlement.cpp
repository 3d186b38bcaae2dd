#include "brunvik/automation/family.h"
#include "brunvik/settlement/account.h"
#include "brunvik/settlement/advance.h"
#include "brunvik/settlement/other_money.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/settlement/plan.h"
#include "brunvik/settlement/receipt_bill.h"

namespace brunvik::automation {

Family settlement() {
  return {{document<clsPayBill>(), document<clsReceiptBill>(), document<clsAdvanceBill>(), document<clsAdvanceYSBill>(),
           document<ClsOthersIncomeBill>(), document<clsOthersExpenseBill>(), document<clsOthersIncomeBjkcBill>(),
           document<clsOthersExpenseBjkcBill>(), document<ClsReceivePlanBill>(), document<clsPayPlanBill>(),
           document<ClsZHXX>(), document<clsZHJYXX>()},
          {record<PaymentRow>("PaymentRow"), record<SettledRow>("SettledRow"), record<OtherMoneyRow>("OtherMoneyRow"),
           record<PlanRow>("PlanRow")}};
}

}  // namespace brunvik::automation
