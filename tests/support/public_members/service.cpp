// After-service tickets.
#include "tests/support/public_members/expected.h"

namespace brunvik::test {

namespace {

const std::string requested_properties = R"(
property Connection: ADOConn
property Long: Status
property String: Referbillid BillId KeHuBH Contactperson Contactphone Contactmoblie Contactaddress Repairobject
property String: Expirationdate Buydate Repairtype Advisitdate Customerkind Cusprovdoc Brokentype Brokendsp
property String: Equiptype Equipnum Remarks
property Integer: Processflag
property String: Servicedate Estimatedate Estimator Executor Solution Estimatornote Executornote
property String: Arrivedate Servicefee Fittingsfee Areafee Paytype
property Money: Paidamount
property String: Handleresult Finishdate Cusappraise Feedbackor Manyilevel Checksvrfee Score Lastopinion
property Integer: Isfinished
property String: Creator Createtime Lastmoditime PaiDanRen PaiDanTime JieDanRen JieDanTime FanKuiRen FanKuiTime
)";

const std::string ticket_walking_verbs = R"(
verb Long: LoadById(&BID:String) LoadLast() LoadNext() LoadPreviou() GetNewId(&BID:String)
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetFirstId(&FirstId:String)
verb Long: GetLastId(&LastId:String) GetNextId(CurBillID:String,&NextId:String)
)";

const ExpectedClass staged_ticket("clsAfterServiceBillInfoOLD", requested_properties + R"(
verb Long: SaveRequest() Delete() SetBillProccess(ProcessFlag:Integer) Forecast() Complete() Feedback()
)" + ticket_walking_verbs);

const ExpectedClass short_ticket("clsAfterServiceBillInfo", requested_properties + R"(
verb Long: SaveAfterServiceBillInfo() UpdateAfterServiceBillInfoAsDraft(Status:Long) SaveRequest() Delete()
)" + ticket_walking_verbs);

const ExpectedClass closing("clsAfterServiceWGBill", R"(
property Connection: ADOConn
property String: ID KeHuBH Repairobject Cusprovdoc Brokentype Brokendsp Referbillid BorrowBill Servicefee Areafee
property String: Paytype
property Money: Paidamount
property String: Handleresult Arrivedate Finishdate Cusappraise Remarks Creator Createtime
property Long: Status
verb Long: Delete() Save() LoadById(&BID:String) LoadLast() LoadNext() LoadPreviou()
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetFirstId(&FirstId:String)
verb Long: GetLastId(&LastId:String) GetNextId(CurBillID:String,&NextId:String)
)");

}  // namespace

}  // namespace brunvik::test
