#include "brunvik/settlement/rp_voucher.h"

#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

VoucherForm RPVoucher::voucher_form(const Kind& kind, const Members& members, std::string_view read_tag,
                                    std::string_view save_tag, std::string_view save_draft_tag,
                                    std::span<const Long> repair_codes, UndoForm undo) {
  return {read_tag,
          save_tag,
          save_draft_tag,
          repair_codes,
          undo,
          Insert(members, insert_sources(kind),
                 "insert into RPVouchers(Id,Manualid,Manager,Ccompany,Type,Paidamount,Amount,Nowpay,"
                 "Status,Creator,Createtime,[Auditor,Audittime,]Referflag,Referbillid,Summary,Remarks) values("),
          Update(members, update_sources(kind),
                 "update RPVouchers set ManualId = ,Manager = ,Ccompany = ,Paidamount = ,Amount = ,Nowpay = ,"
                 "[Auditor = ,AuditTime = ,status = ,]Referflag = ,Referbillid = ,[|status = ,]Summary = ,Remarks = "
                 " where Id=")};
}

const Insert& RPVoucher::settled_insert() {
  static const Insert insert(SettledRow::table(), {},
                             "insert into RPBRPItems(BID,RowNum,RPableBID,RPableBType,Amount,Remarks) values(");
  return insert;
}

void RPVoucher::remove_rows() {
  worker(" DeleteRPBItems(): ", [&] { execute(sql("delete from RPBItems where BID={}", ID)); });
  worker(" DeleteRPBRPItems(): ", [&] { execute(sql("delete from RPBRPItems where BID={}", ID)); });
}

void RPVoucher::read_rows() {
  worker(" GetRPBItems(): ", [&] {
    brunvik::read_rows<PaymentRow>(colRPBItems, execute(sql("select * from RPBItems where bid={}", ID)),
                                   payment_insert().members_written(), [](PaymentRow&, const ado::Recordset&) {});
  });
  worker(" GetRPBRPItems(): ",
         [&] { read_settled_rows(execute(sql("select * from RPBRPItems where bid={}", ID)), settled_insert()); });
}

}  // namespace brunvik
