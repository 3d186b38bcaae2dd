#include "brunvik/settlement/ledger.h"

#include <string_view>

#include "brunvik/ado/clock.h"
#include "brunvik/ado/connection.h"
#include "brunvik/billframe/catalogue.h"
#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/foundation/text.h"

namespace brunvik {

inline namespace SqlOPT_Function {

namespace {

// The names that the journal knows. It was never told of the kinds that came later: their movements have no summary.
std::string_view summary_of(Long code, bool voucher) {
  switch (code) {
    case 0:
      return voucher ? "付款单" : "期初入库";
    case 1:
      return voucher ? "收款单" : "期初出库";
    default:
      break;
  }
  if (voucher) return {};
  switch (code) {
    case bill_type::purchase_receipt:
      return "进货入库";
    case bill_type::purchase_return:
      return "进货退货出库";
    case bill_type::sales_return:
      return "销售退货入库";
    case bill_type::sales_issue:
      return "销售出库";
    case bill_type::other_receipt:
      return "其他入库";
    case bill_type::other_issue:
      return "其他出库";
    case bill_type::overage_report:
      return "报溢入库";
    case bill_type::loss_report:
      return "报损出库";
    case bill_type::transfer:
      return "调拨";
    case bill_type::repair_intake:
      return "坏件报修入库";
    case bill_type::repair_to_factory:
      return "坏件返厂维修出库";
    case bill_type::repair_from_factory:
      return "坏件送修返回入库";
    case bill_type::repair_to_customer:
      return "修复品返还顾客出库";
    case bill_type::warehouse_repair:
      return "仓库新品报修出库";
    case bill_type::warehouse_restore:
      return "仓库报修修复品入库";
    case bill_type::other_receivable:
      return "其他应收单";
    case bill_type::other_payable:
      return "其他应付单";
    case bill_type::shipment:
      return "物流发货";
    case bill_type::broken_goods_transfer:
      return "坏件调拨";
    case bill_type::restored_goods_transfer:
      return "修复品调拨";
    case bill_type::goods_repair:
      return "商品维修";
    case bill_type::after_service:
      return "售后服务";
    default:
      return {};
  }
}

std::string doubled(std::string_view text) { return replaced(text, "'", "''"); }

}  // namespace

Long CreateZHJYXX_LX(const std::string& BillId, Money Amount, const std::string& AccountId,
                     const std::string& Responsible, Integer Direction, Long TypeCode, const std::string& Item,
                     bool Voucher, const std::string& DateText, const std::string& Payer) {
  return trap("CreateZHJYXX_LX():", [&] {
    const std::string_view summary = summary_of(TypeCode, Voucher);
    const Long id = Get_UniqV("ZHJYXX", "id");
    const Date moment = DateText.empty() ? ado::now() : ado::parse_day(DateText);
    const auto& connection = session().ADOConn;
    ado::execute(
        connection,
        sql("insert into ZHJYXX(id,ZHID,JYZY,JYSJ,JYJE,JYFS,JYLX,ZCZHID,DYID,CJSJ,CZY,JBR,DYDJH,XM,SFKR) "
            "values('{}','{raw}','{raw}','{raw}',{},2,{},'','','{raw}','{raw}','{raw}','{raw}','{raw}','{raw}')",
            id, AccountId, doubled(summary), ado::day_text(moment), Amount, Direction, ado::timestamp_text(moment),
            session().OperatorId, Responsible, doubled(BillId), doubled(Item), Payer));
    ado::execute(connection,
                 sql("update ZHXX set YE=YE + {} where ID='{raw}'", Amount * Money::from_whole(Direction), AccountId));
  });
}

Long DeleteZHJYXX(const std::string& BillId) {
  return trap("DeleteZHJYXX():", [&] {
    ado::Recordset rows;
    Open_Recordset(rows);
    rows.Open(sql("select * from ZHJYXX where DYDJH={}", BillId));
    const auto& connection = session().ADOConn;
    for (; !rows.at_end(); rows.MoveNext()) {
      const Money amount = rows.value("Jyje").as_money();
      const Money direction = Money::from_whole(rows.value("Jylx").as_long());
      ado::execute(connection,
                   sql("update ZHXX set YE=YE - {} where ID={}", amount * direction, rows.value("ZhID").joined_text()));
    }
    ado::execute(connection, sql("delete from ZHJYXX where DYDJH={}", BillId));
  });
}

}  // namespace SqlOPT_Function

}  // namespace brunvik
