#include "brunvik/settlement/advance.h"

#include <array>

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/settlement/voucher_members.h"

namespace brunvik {

namespace {

const Insert& settled_insert() {
  static const Insert insert(SettledRow::table(), {},
                             "insert into AdvanceItems(BID,RowNum,RPableBID,RPableBType,Amount,Remarks) values(");
  return insert;
}

}  // namespace

const Members& Advance::table() {
  using C = Advance;
  static const Members table{
      connection<&C::ADOConn>("ADOConn"),
      collection<&C::colAdvanceItems>("colAdvanceItems"),
      voucher_heading<C, &C::Payer>("Payer"),
      property<&C::Nowpay>("Nowpay", "Nowpay"),
      voucher_marks<C>(),
      property<&C::Referflag>("Referflag", "Referflag"),
      property<&C::Referbillid>("Referbillid", "Referbillid"),
      property<&C::Summary>("Summary", "Summary"),
      computed<&C::DiscountAmount>("DiscountAmount"),
      property<&C::Remarks>("Remarks", "Remarks"),
      advance_verbs<C>(),
  };
  return table;
}

const Members& Advance::members() const { return table(); }

VoucherForm Advance::made_form() const {
  // The received advance finds the repair documents of the paying side too.
  static constexpr std::array repair_codes{bill_type::repair_from_factory, bill_type::repair_to_customer,
                                           bill_type::factory_replacement};
  return {" GetPayBill(): ",
          " SavePayBill(): ",
          " SavePayBillForDraft(): ",
          repair_codes,
          UndoForm::by_number_alone,
          Insert(table(), insert_sources(kind()),
                 "insert into AdvanceBill(Id,Manualid,Manager,Ccompany,Type,Paidamount,Amount,Nowpay,"
                 "Status,Creator,Createtime,[Auditor,Audittime,]Referflag,Referbillid,Summary,Remarks) values("),
          Update(table(), update_sources(kind()),
                 "update AdvanceBill set ManualId = ,Manager = ,Ccompany = ,Paidamount = ,Amount = ,Nowpay = ,Type = ,"
                 "Status = ,[Auditor = ,AuditTime = ,]Referflag = ,Referbillid = ,Summary = ,Remarks =  where Id=")};
}

// The other family's total is the second sum; on a payment voucher the two stand the other way round.
std::string Advance::select_open_amount(std::string_view table, const std::string& bill) const {
  return sql(
      "Select {raw}.amount as billamount,{raw} as PaidAmount, {raw} as PaidAmount2 from {raw} where id = {} "
      "group by {raw}.amount",
      table, sum_of_advances(bill), sum_of_vouchers(bill), table, bill, table);
}

ado::Recordset Advance::select_header() const {
  return execute(sql("select * from AdvanceBill where Id={} and Type= {}", ID, *kind().code));
}

void Advance::save_rows() {
  worker(" SaveAdvanceItems(): ", [&] { insert_rows(colAdvanceItems, settled_insert(), " AddAdvanceItems(): "); });
}

void Advance::read_rows() {
  worker(" GetAdvanceItems(): ",
         [&] { read_settled_rows(execute(sql("select * from AdvanceItems where bid={}", ID)), settled_insert()); });
}

void Advance::remove_rows() {
  worker(" DeleteAdvanceItems(): ", [&] { execute(sql("delete from AdvanceItems where BID={}", ID)); });
}

}  // namespace brunvik
