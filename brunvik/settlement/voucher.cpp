#include "brunvik/settlement/voucher.h"

#include <array>
#include <utility>

#include "brunvik/ado/or_zero.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"
#include "brunvik/settlement/voucher_status.h"

namespace brunvik {

namespace {

// Where a row's open amount is read, every repair document is found.
constexpr std::array all_repair_codes{bill_type::repair_from_factory, bill_type::repair_to_customer,
                                      bill_type::factory_replacement, bill_type::replacement_to_customer};

}  // namespace

std::vector<ColumnSource> Voucher::insert_sources(const Kind& kind) {
  return {constant("Type", *kind.code), argument("Status"), constant("Referflag", 0)};
}

std::vector<ColumnSource> Voucher::update_sources(const Kind& kind) {
  return {constant("Type", *kind.code), argument("Status")};
}

void Voucher::save_header(Saving saving) {
  const bool draft = saving == Saving::draft;
  worker(draft ? form().save_draft_tag : form().save_tag, [&] {
    if (ID.empty()) throw Stop{result_without_id};
    const bool stored = !execute(sql("select * from {raw} where Id={}", kind().header_table(), ID)).at_end();
    const Long status = draft ? status::draft : status_of_saved_voucher();
    if (stored) {
      worker(" UpdatePayBill(): ", [&] {
        before_update();
        execute(form().update.text(*this, status));
      });
    } else {
      worker(" AddPayBill(): ", [&] { execute(form().insert.text(*this, status)); });
    }
  });
}

ado::Recordset Voucher::select_header() const {
  return execute(sql("select * from {raw} where Id={}", kind().header_table(), ID));
}

void Voucher::read_header() {
  worker(form().read_tag, [&] { read_properties(select_header()); });
}

void Voucher::remove_header() {
  worker(" DeletePayBillAndItems(): ",
         [&] { execute(sql("delete from {raw} where Id={}", kind().header_table(), ID)); });
}

void Voucher::find_last(std::string& last, std::string_view) {
  worker(" GetLastId(): ", [&] {
    last = aggregated_id(
        execute(sql("select Max(Id) as Id from {raw} where type={}", kind().header_table(), *kind().code)));
  });
}

void Voucher::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  const auto table = kind().header_table();
  const Long type = *kind().code;
  worker(next ? " GetNextId(): " : " GetPreviousId(): ", [&] {
    near = aggregated_id(
        next ? execute(sql("select Min(Id) as Id from {raw} where id > {like} and type={}", table, current, type))
             : execute(sql("select Max(Id) as Id from {raw} where id < {like} and type={}", table, current, type)));
  });
}

void Voucher::insert_rows(RowCollection& rows, const Insert& insert, std::string_view insert_tag) const {
  for_each_row(rows, [&](const PublicObject& row) { worker(insert_tag, [&] { execute(insert.text(row)); }); });
}

Long Voucher::Audite(const std::string& auditor, const std::string& audit_time) noexcept {
  return trap(" Audite(): ", [&] {
    execute(sql("Update {raw} set Auditor={} ,AuditTime={},Status={}  where id={} and type={}", kind().header_table(),
                auditor, audit_time, status::audited, ID, *kind().code));
    SourceTable table(form().repair_codes);
    for (const SettledRow& row : settled_rows()) {
      table.pick(row.Rpablebtype);
      settle(row, table);
    }
  });
}

void Voucher::settle(const SettledRow& row, const SourceTable& table) const {
  execute(sql("update {raw} set paidAmount= paidAmount +{} where id={}{raw}{}", table.name(), row.Amount, row.Rpablebid,
              table.kind_test(), row.Rpablebtype));
  execute(sql("update {raw} set ClosedTag= 1 where id={}{raw}{} and CloseAmount=PaidAmount", table.name(),
              row.Rpablebid, table.kind_test(), row.Rpablebtype));
}

Long Voucher::UndoAudite() noexcept {
  return trap(" UndoAudite(): ", [&] {
    if (form().undo == UndoForm::by_kind) {
      execute(sql("Update {raw} set Auditor=null ,AuditTime=null,Status={}  where id={} and type={}",
                  kind().header_table(), status::saved, ID, *kind().code));
    } else {
      execute(sql("Update {raw} set Auditor=null ,AuditTime=null,Status={}  where id={}", kind().header_table(),
                  status::saved, ID));
    }
    SourceTable table(form().repair_codes);
    for (const SettledRow& row : settled_rows()) {
      table.pick(row.Rpablebtype);
      take_back(row, table);
    }
  });
}

void Voucher::take_back(const SettledRow& row, const SourceTable& table) const {
  if (form().undo == UndoForm::by_kind) {
    execute(sql("update {raw} set paidAmount= paidAmount -{}  where id={}{raw}{}", table.name(), row.Amount,
                row.Rpablebid, table.kind_test(), row.Rpablebtype));
    execute(sql("update {raw} set ClosedTag= 0 where id={}{raw}{}", table.name(), row.Rpablebid, table.kind_test(),
                row.Rpablebtype));
  } else {
    execute(sql("update {raw} set paidAmount= paidAmount -{} where id={}", table.name(), row.Amount, row.Rpablebid));
    execute(sql("update {raw} set ClosedTag= 0 where id={}", table.name(), row.Rpablebid));
  }
}

void Voucher::read_settled_rows(ado::Recordset set, const Insert& written_by) {
  SourceTable table(all_repair_codes);
  brunvik::read_rows<SettledRow>(settled_rows(), std::move(set), written_by.members_written(),
                                 [&](SettledRow& row, const ado::Recordset&) {
                                   table.pick(row.Rpablebtype);
                                   if (!table.name().empty()) read_open_amount(row, table.name());
                                 });
}

void Voucher::read_open_amount(SettledRow& row, std::string_view table) const {
  const auto set = execute(select_open_amount(table, row.Rpablebid));
  if (set.at_end()) return;
  row.BillAmount = ado::money_or_zero(set.value("billamount"));
  row.OpenAmount = row.BillAmount - ado::money_or_zero(set.value("PaidAmount"));
  if (set.has("PaidAmount2")) row.OpenAmount -= ado::money_or_zero(set.value("PaidAmount2"));
}

std::string sum_of_vouchers(const std::string& bill) {
  return sql(
      "(select sum(RPBRPItems.Amount) from RPVouchers left join RPBRPItems on RPVouchers.id=RPBRPItems.BID "
      "where (RPVouchers.status<>1 or RPVouchers.status is null) and RPBRPItems.RPableBID={})",
      bill);
}

std::string sum_of_advances(const std::string& bill) {
  return sql(
      "(select sum(AdvanceItems.Amount) from AdvanceBill left join AdvanceItems on "
      "AdvanceBill.id=AdvanceItems.BID where (AdvanceBill.status<>1 or AdvanceBill.status is null) and "
      "AdvanceItems.RPableBID={})",
      bill);
}

}  // namespace brunvik
