#include "brunvik/repair/staged_ticket.h"

#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/settlement/ledger.h"

namespace brunvik {

namespace {

namespace stage {
constexpr Integer request = 1;
constexpr Integer forecast = 2;
constexpr Integer completed = 3;
constexpr Integer feedback = 4;
}  // namespace stage

// The code under which the journal is told of money for a service; it has no summary there.
constexpr Long money_for_service = 35;

// A column that no property keeps: it is always written, and empty.
std::vector<ColumnSource> sources() {
  return {worked_out("UsefulBill", [](const PublicObject&) -> Value { return std::string(); })};
}

// What the customer asked for is written again at each stage up to the completion.
constexpr std::string_view request_settings =
    "KeHuBH = ,ContactPerson = ,ContactPhone = ,ContactMoblie = ,ContactAddress = ,RepairObject = ,ExpirationDate = ,"
    "BuyDate = ,RepairType = ,AdVisitDate = ,CustomerKind = ,CusProvDoc = ,BrokenType = ,BrokenDsp = ,EquipType = ,"
    "EquipNum = ,UsefulBill = ,Remarks = ";

// An update of those with `before` in front and `behind` after them.
Update update_with_request(const Members& members, std::string_view before, std::string_view behind) {
  std::string text = "update AfterServiceBill set ";
  text.append(before).append(request_settings).append(behind).append(" where BillId =");
  return {members, sources(), text};
}

}  // namespace

const Members& clsAfterServiceBillInfoOLD::members() const {
  using C = clsAfterServiceBillInfoOLD;
  static const Members table{
      properties("ReferBillId"),      verb<&C::SaveRequest>("SaveRequest"),
      verb<&C::Delete>("Delete"),     verb<&C::SetBillProccess>("SetBillProccess", in("ProcessFlag")),
      verb<&C::Forecast>("Forecast"), verb<&C::Complete>("Complete"),
      verb<&C::Feedback>("Feedback"), walking_verbs(),
  };
  return table;
}

void clsAfterServiceBillInfoOLD::before_request() { Processflag = stage::request; }

const Insert& clsAfterServiceBillInfoOLD::request_insert() const {
  static const Insert insert(
      members(), sources(),
      "insert into AfterServiceBill(BillId,KeHuBH,ContactPerson,ContactPhone,ContactMoblie,ContactAddress,"
      "RepairObject,ExpirationDate,BuyDate,RepairType,AdVisitDate,CustomerKind,CusProvDoc,BrokenType,BrokenDsp,"
      "EquipType,EquipNum,UsefulBill,Remarks,ProcessFlag,IsFinished,Creator,CreateTime) values(");
  return insert;
}

const Update& clsAfterServiceBillInfoOLD::request_update() const {
  static const Update update = update_with_request(members(), "BillId = ,", ",LastModiTime = ");
  return update;
}

Long clsAfterServiceBillInfoOLD::Forecast() noexcept {
  return trap(" Forecast(): ", [&] {
    static const Update update =
        update_with_request(members(), "",
                            ",ProcessFlag = ,ServiceDate = ,EstimateDate = ,Estimator = ,Executor = ,Solution = ,"
                            "EstimatorNote = ,ExecutorNote = ,PaiDanRen = ,PaiDanTime = ");
    Processflag = stage::forecast;
    execute(update.text(*this));
  });
}

Long clsAfterServiceBillInfoOLD::Complete() noexcept {
  return trap(" Complete(): ", [&] {
    static const Update update = update_with_request(
        members(), "",
        ",EstimatorNote = ,ExecutorNote = ,ProcessFlag = ,ArriveDate = ,ServiceFee = ,FittingsFee = ,AreaFee = ,"
        "PayType = ,PaidAmount = ,HandleResult = ,FinishDate = ,CusAppraise = ,JieDanRen = ,JieDanTime = ");
    Processflag = stage::completed;
    execute(update.text(*this));
    if (Paidamount > Money()) take_money();
  });
}

void clsAfterServiceBillInfoOLD::take_money() const {
  const std::string customer = GetContactsCompanyField(KeHuBH, "FullName");
  const std::string& operator_name = session().OperatorId;
  CreateZHJYXX_LX(BillId, Paidamount, Paytype, KeHuBH, 1, money_for_service, customer + "维修货品", false, "",
                  operator_name);
}

Long clsAfterServiceBillInfoOLD::Feedback() noexcept {
  return trap(" Feedback(): ", [&] {
    static const Update update(
        members(), {},
        "update AfterServiceBill set ProcessFlag = ,FeedBackor = ,ManYiLevel = ,CheckSvrFee = ,Score = ,LastOpinion = ,"
        "IsFinished = ,FanKuiRen = ,FanKuiTime =  where BillId =");
    Processflag = stage::feedback;
    execute(update.text(*this));
  });
}

Long clsAfterServiceBillInfoOLD::SetBillProccess(Integer stage) noexcept {
  return trap(" SetBillProccess(): ",
              [&] { execute(sql("Update AfterServiceBill set ProcessFlag={} where BillId={}", stage, BillId)); });
}

ServiceTicket::Walked clsAfterServiceBillInfoOLD::walked() const {
  return {"type is null and ", sql("ProcessFlag>={}", Processflag)};
}

}  // namespace brunvik
