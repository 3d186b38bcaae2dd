#include "brunvik/automation/family.h"
#include "brunvik/sales/sales_issue.h"
#include "brunvik/sales/sales_order.h"
#include "brunvik/sales/sales_return.h"

namespace brunvik::automation {

Family sales() {
  return {{document<clsSalesInBill>(), document<clsSalesOutBill>(), document<clsSalesOutBjkcBill>(),
           document<clsSalesInBjkcBill>(), document<clsSalesOrderBill>()},
          {record<SalesOrderRow>("SalesOrderRow"), record<SalesOrderLink>("SalesOrderLink")}};
}

}  // namespace brunvik::automation
