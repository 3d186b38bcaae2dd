// Receipt and payment plan.
#include "brunvik/automation/automation.h"
#include "tests/support/faults/books.h"
#include "tests/support/faults/frame.h"

namespace brunvik::test {

namespace {

Frame frame() {
  Frame frame = frame_over("PlansBill", "PlansBillItems");
  // A header is looked up in other words than it is read.
  const Step later_voucher = ends("bill|select RPVouchers.id from RPVouchers Left join RPBRPItems on ");
  frame.rows_read = {ends("bill|select * from PlansBillItems where PlanId="), later_voucher, later_voucher};
  frame.rows_removed = {ends("bill|delete from PlansBillItems where planid=")};
  return frame;
}

// Three plans; the second has two bills.
RehearsedDocument plan(const std::string& class_name) {
  const Kind& kind = *automation::class_named(class_name).kind;
  RehearsedDocument document{.class_name = class_name, .prefix = std::string(kind.prefix)};
  document.lay_bills("insert into PlansBill(Id,Type,Status,PayBillId) values(",
                     "," + std::to_string(*kind.code) + ",3,'0')");
  document.lay_rows("insert into PlansBillItems(PlanId,OTBillId,BillType) values(",
                    {",'JHR24030500001',2)", ",'QTS24030500001',17)"});
  const Frame shared = frame();
  const Steps read =
      Steps{ends("bill|select PlansBill.*,ContactsCompany.FullName from PlansBill left join ")} + shared.rows_read;
  const auto list = [](const std::string& begins) {
    // It has no result: the notice alone tells.
    return ending_with(0, ends_telling("AddPlansBillMessage():", "bill|" + begins));
  };
  const Steps removed{list("Delete from WWCPlansItems where PlanId="), list("Delete from WCPlansItems where PlanId=")};
  document.verbs =
      with_frame(class_name, document.prefix, shared,
                 {
                     {.verb = "SaveAsDraft", .steps = {ends("bill|Update PlansBill set Status=1 where Id=")}},
                     {.verb = "GetBill", .steps = read},
                     {.verb = "LoadById", .arguments = {document.bill()}, .steps = read},
                     {.verb = "GetNewId", .steps = {goes_on("Get_BillMaxId():", "session|select max(ID)  from ")}},
                     {.verb = "AddPlansBillMessage",
                      .arguments = {document.bill(), false, 3},
                      .steps = removed + Steps{list("insert into WWCPlansItems values(")},
                      .remark = "open"},
                     {.verb = "AddPlansBillMessage",
                      .arguments = {document.bill(), true, 3},
                      .steps = removed + Steps{list("insert into WCPlansItems values(")},
                      .remark = "finished"},
                 });
  return document;
}

const Rehearsed receipt_plan([] { return plan("ClsReceivePlanBill"); });
const Rehearsed payment_plan([] { return plan("clsPayPlanBill"); });

}  // namespace

}  // namespace brunvik::test
