#include "brunvik/repair/service_ticket.h"

#include "brunvik/billframe/bill_members.h"
#include "brunvik/billframe/bill_number.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

Long ServiceTicket::Delete() noexcept {
  return trap(" Delete(): ", [&] { remove_header(); });
}

void ServiceTicket::remove_header() { execute(sql("delete from AfterServiceBill  where BillId={}", number())); }

void ServiceTicket::read_header() {
  worker(" LoadById(): ",
         [&] { read_properties(execute(sql("select * from AfterServiceBill where BillId={}", number()))); });
}

Long ServiceTicket::GetFirstId(std::string& FirstId) noexcept {
  return trap(" GetFirstId(): ", [&] {
    FirstId.clear();
    const auto [before, after] = walked();
    FirstId = aggregated_number(
        execute(sql("select Min(BillId) as BillId from AfterServiceBill where {raw}{raw}", before, after)), "BillId");
  });
}

void ServiceTicket::find_last(std::string& last, std::string_view) {
  worker(" GetLastId(): ", [&] {
    const auto [before, after] = walked();
    last = aggregated_number(
        execute(sql("select Max(BillId) as BillId from AfterServiceBill where {raw}{raw}", before, after)), "BillId");
  });
}

void ServiceTicket::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  worker(next ? " GetNextId(): " : " GetPreviousId(): ", [&] {
    const auto [before, after] = walked();
    near = aggregated_number(
        next ? execute(sql("select Min(BillId) as BillId from AfterServiceBill where {raw}BillId > {like} and {raw}",
                           before, current, after))
             : execute(sql("select Max(BillId) as BillId from AfterServiceBill where {raw}BillId < {like} and {raw}",
                           before, current, after)),
        "BillId");
  });
}

MemberGroup ServiceTicket::neighbour_numbers() {
  using C = ServiceTicket;
  return {
      verb<&C::GetPreviousId>("GetPreviousId", in("CurBillID"), out("PreviousId")),
      verb<&C::GetFirstId>("GetFirstId", out("FirstId")),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::GetNextId>("GetNextId", in("CurBillID"), out("NextId")),
  };
}

MemberGroup RequestedTicket::properties(std::string_view borrow_column) {
  using C = RequestedTicket;
  return {
      connection<&C::ADOConn>("ADOConn"),
      property<&C::Status>("Status", "Status"),
      property<&C::Referbillid>("Referbillid", borrow_column),
      property<&C::BillId>("BillId", "BillId"),
      property<&C::KeHuBH>("KeHuBH", "KeHuBH"),
      property<&C::Contactperson>("Contactperson", "ContactPerson"),
      property<&C::Contactphone>("Contactphone", "ContactPhone"),
      property<&C::Contactmoblie>("Contactmoblie", "ContactMoblie"),
      property<&C::Contactaddress>("Contactaddress", "ContactAddress"),
      property<&C::Repairobject>("Repairobject", "RepairObject"),
      property<&C::Expirationdate>("Expirationdate", "ExpirationDate"),
      property<&C::Buydate>("Buydate", "BuyDate"),
      property<&C::Repairtype>("Repairtype", "RepairType"),
      property<&C::Advisitdate>("Advisitdate", "AdVisitDate"),
      property<&C::Customerkind>("Customerkind", "CustomerKind"),
      property<&C::Cusprovdoc>("Cusprovdoc", "CusProvDoc"),
      property<&C::Brokentype>("Brokentype", "BrokenType"),
      property<&C::Brokendsp>("Brokendsp", "BrokenDsp"),
      property<&C::Equiptype>("Equiptype", "EquipType"),
      property<&C::Equipnum>("Equipnum", "EquipNum"),
      property<&C::Remarks>("Remarks", "Remarks"),
      property<&C::Processflag>("Processflag", "ProcessFlag"),
      property<&C::Servicedate>("Servicedate", "ServiceDate"),
      property<&C::Estimatedate>("Estimatedate", "EstimateDate"),
      property<&C::Estimator>("Estimator", "Estimator"),
      property<&C::Executor>("Executor", "Executor"),
      property<&C::Solution>("Solution", "Solution"),
      property<&C::Estimatornote>("Estimatornote", "EstimatorNote"),
      property<&C::Executornote>("Executornote", "ExecutorNote"),
      property<&C::Arrivedate>("Arrivedate", "ArriveDate"),
      property<&C::Servicefee>("Servicefee", "ServiceFee"),
      property<&C::Fittingsfee>("Fittingsfee", "FittingsFee"),
      property<&C::Areafee>("Areafee", "AreaFee"),
      property<&C::Paytype>("Paytype", "PayType"),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      property<&C::Handleresult>("Handleresult", "HandleResult"),
      property<&C::Finishdate>("Finishdate", "FinishDate"),
      property<&C::Cusappraise>("Cusappraise", "CusAppraise"),
      property<&C::Feedbackor>("Feedbackor", "FeedBackor"),
      property<&C::Manyilevel>("Manyilevel", "ManYiLevel"),
      property<&C::Checksvrfee>("Checksvrfee", "CheckSvrFee"),
      property<&C::Score>("Score", "Score"),
      property<&C::Lastopinion>("Lastopinion", "LastOpinion"),
      property<&C::Isfinished>("Isfinished", "IsFinished"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Lastmoditime>("Lastmoditime", "LastModiTime"),
      property<&C::PaiDanRen>("PaiDanRen", "PaiDanRen"),
      property<&C::PaiDanTime>("PaiDanTime", "PaiDanTime"),
      property<&C::JieDanRen>("JieDanRen", "JieDanRen"),
      property<&C::JieDanTime>("JieDanTime", "JieDanTime"),
      property<&C::FanKuiRen>("FanKuiRen", "FanKuiRen"),
      property<&C::FanKuiTime>("FanKuiTime", "FanKuiTime"),
  };
}

MemberGroup RequestedTicket::walking_verbs() {
  using C = RequestedTicket;
  return Members::group(
      {by_id_last_and_neighbours<C>(), verb<&C::GetNewId>("GetNewId", out("BID")), neighbour_numbers()});
}

void RequestedTicket::save_header(Saving) {
  worker(" SaveRequest(): ", [&] {
    if (BillId.empty()) throw Stop{result_without_id};
    before_request();
    const bool stored = !execute(sql("select BillId from AfterServiceBill where BillId= {}", BillId)).at_end();
    execute(stored ? request_update().text(*this) : request_insert().text(*this));
  });
}

Long RequestedTicket::GetNewId(std::string& BID) noexcept {
  // Whatever comes of it, the verb is done.
  trap([&] { BID = proposed_number(kind().header_table(), "BillId", kind().prefix); });
  return 0;
}

}  // namespace brunvik
