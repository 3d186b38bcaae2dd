#include "brunvik/settlement/plan.h"

#include <utility>

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/late_binding.h"

namespace brunvik {

namespace {

Value paid_in_whole(const PublicObject& object) {
  const auto& row = static_cast<const PlanRow&>(object);
  return row.Closedamount == row.Paidamount ? Integer{1} : Integer{2};
}

}  // namespace

const Members& PlanRow::table() {
  using C = PlanRow;
  static const Members table{
      property<&C::PlanId>("PlanId", "PlanId"),
      property<&C::Otbillid>("Otbillid", "OTBillId"),
      property<&C::BillType>("BillType", "BillType"),
      property<&C::ClosedBill>("ClosedBill").read_from("ClosedBill"),
      property<&C::Closedamount>("Closedamount", "ClosedAmount"),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      property<&C::Remarks>("Remarks", "remarks"),
      property<&C::HasLaterVoucher>("HasLaterVoucher"),
  };
  return table;
}

Plan::Plan() { Status = status::audited; }

const Members& Plan::table() {
  using C = Plan;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colBillItems>("colBillItems"),
      property<&C::ID>("ID", "Id"),
      property<&C::Ctcompany>("Ctcompany", "CtCompany"),
      property<&C::CtcompanyName>("CtcompanyName").read_from("FullName"),
      property<&C::Manager>("Manager", "Manager"),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Amount>("Amount", "Amount"),
      property<&C::Paidamount>("Paidamount", "PaidAmount"),
      property<&C::PayBillId>("PayBillId", "PayBillId"),
      property<&C::Closedtag>("Closedtag", "ClosedTag"),
      property<&C::Billcount>("Billcount", "BillCount"),
      property<&C::StartDate>("StartDate", "StartDate"),
      property<&C::EndDate>("EndDate", "Enddate"),
      property<&C::Referflag>("Referflag", "ReferFlag"),
      property<&C::Referbillid>("Referbillid", "ReferBillID"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      verb<&C::GetBill>("GetBill"),
      verb<&C::Delete>("Delete"),
      verb<&C::LoadById>("LoadById", in_out("BID")),
      verb<&C::GetNewId>("GetNewId"),
      verb<&C::AddPlansBillMessage>("AddPlansBillMessage", in_out("cBid"), in_out("bClosedTag"), in_out("BillStatus")),
  };
  return table;
}

DocumentForm Plan::made_form() const {
  const std::vector<ColumnSource> sources{constant("Type", kind().code.value()), argument("Status")};
  Insert insert_row(PlanRow::table(), {worked_out("ClosedBill", paid_in_whole)},
                    "insert into PlansBillItems(PlanId,OTBillId,BillType,ClosedBill,ClosedAmount,PaidAmount,remarks) "
                    "values(");
  RowMembers read = members_read_back(insert_row);
  read.push_back(&PlanRow::table().named("ClosedBill"));
  return {{"select * from PlansBill where Id={}", "delete from PlansBill where Id={}",
           "select * from PlansBillItems where PlanId={}", "delete from PlansBillItems where planid={}"},
          Insert(table(), sources,
                 "insert into PlansBill(Id,CtCompany,Manager,Creator,CreateTime,Status,Amount,PaidAmount,PayBillId,"
                 "ClosedTag,BillCount,Type,StartDate,Enddate,ReferFlag,ReferBillID,Summary,Remarks) values("),
          Update(table(), sources,
                 "update PlansBill set CtCompany = ,manager = ,Status = ,ClosedTag = ,Amount=,Paidamount=,"
                 "Paybillid = ,Billcount = ,Type = ,Startdate = ,Enddate = ,ReferFlag = ,ReferBillID = ,Summary = ,"
                 "Remarks =  where Id="),
          std::move(insert_row),
          std::move(read)};
}

Long Plan::SaveAsDraft() noexcept {
  return trap([&] {
    if (ID.empty()) throw Stop{result_without_id};
    execute(sql("Update PlansBill set Status={} where Id={}", status::draft, ID));
  });
}

std::string Plan::GetNewId() noexcept {
  std::string number;
  Bill::GetNewId(number);
  return number;
}

// A plan of the other kind isn't found, though its rows are.
void Plan::read_header() {
  read_properties(
      execute(sql("select PlansBill.*,ContactsCompany.FullName from PlansBill left join ContactsCompany  on "
                  "PlansBill.CtCompany=ContactsCompany.id where PlansBill.Id={} and PlansBill.Type={}",
                  ID, *kind().code)));
}

void Plan::read_rows() {
  colBillItems.clear();
  brunvik::read_rows<PlanRow>(
      colBillItems, execute(sql(form().statements.select_rows, ID)), form().row_members_read,
      [&](PlanRow& row, const ado::Recordset&) { row.HasLaterVoucher = has_later_voucher(row); });
}

// Audited vouchers alone count, and no advance.
bool Plan::has_later_voucher(const PlanRow& row) const {
  return !execute(sql("select RPVouchers.id from RPVouchers Left join RPBRPItems on RPVouchers.Id=RPBRPItems.BID where "
                      "RPVouchers.CreateTime>{} And RPVouchers.Status={} And RPBRPItems.RPableBID ={} And "
                      "RPBRPItems.RPableBType={} and RPVouchers.id not in ({raw})",
                      Createtime, status::audited, row.Otbillid, row.BillType, PayBillId))
              .at_end();
}

void Plan::AddPlansBillMessage(const std::string& cBid, bool bClosedTag, Long BillStatus) noexcept {
  trap("AddPlansBillMessage():", [&] {
    execute(sql("Delete from WWCPlansItems where PlanId={}", cBid));
    execute(sql("Delete from WCPlansItems where PlanId={}", cBid));
    if (BillStatus == status::audited && !bClosedTag) {
      execute(sql("insert into WWCPlansItems values({})", cBid));
    } else {
      execute(sql("insert into WCPlansItems values({})", cBid));
    }
  });
}

}  // namespace brunvik
