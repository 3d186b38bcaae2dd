#include "brunvik/automation/family.h"
#include "brunvik/billframe/stock_row.h"
#include "brunvik/warehouse/assembly.h"
#include "brunvik/warehouse/count_report.h"
#include "brunvik/warehouse/opening_stock.h"
#include "brunvik/warehouse/other_stock_document.h"
#include "brunvik/warehouse/state_conversion.h"
#include "brunvik/warehouse/stock_adjustment.h"
#include "brunvik/warehouse/transfer.h"

namespace brunvik::automation {

Family warehouse() {
  return {
      {document<clsOthersInBill>(), document<clsOthersOutBill>(), document<clsReportOfOverflowBill>(),
       document<clsReportOfLossesBill>(), document<clsTZBill>(), document<clsDbBill>(), document<clsGoodsConvertBill>(),
       document<clsGoodsAssembled>(), document<clsGoodsDismantled>(), document<clsInitInBill>()},
      {record<StockRow>("StockRow"), record<CountRow>("CountRow"), record<AssemblyRow>("AssemblyRow")}};
}

}  // namespace brunvik::automation
