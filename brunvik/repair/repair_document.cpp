#include "brunvik/repair/repair_document.h"

#include <algorithm>
#include <utility>

#include "brunvik/ado/names.h"
#include "brunvik/billframe/bill_members.h"
#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/stock/StockPoster.h"

namespace brunvik {

namespace {

constexpr StatementText<1> rows_in_their_order{"select * from RGStockBillItems where BillId={} order by RowNum"};
constexpr StatementText<1> rows_as_they_come{"select * from RGStockBillItems where BillId={}"};

}  // namespace

Members RepairDocument::repair_members(OwnMembers own) {
  using C = RepairDocument;
  return {
      connection<&C::ADOConn>("ADOConn"),
      std::move(own.behind_connection),
      collection<&C::RGBillItems>("RGBillItems"),
      property<&C::BillId>("BillId", "Id"),
      property<&C::Manualid>("Manualid", "ManualId"),
      property<&C::process_flag_>("Processflag", "ProcessFlag").read_only(),
      std::move(own.behind_kind),
      property<&C::Creator>("Creator", "Creator"),
      property<&C::Createtime>("Createtime", "CreateTime"),
      std::move(own.behind_creation),
      computed<&C::Inoutflag>("Inoutflag", "InOutFlag"),
      property<&C::Status>("Status", "Status").required(),
      property<&C::Auditor>("Auditor", "Auditor").not_read(),
      property<&C::Audittime>("Audittime", "AuditTime").not_read(),
      property<&C::Referflag>("Referflag"),
      property<&C::Referbillid>("Referbillid"),
      property<&C::Summary>("Summary", "Summary"),
      property<&C::Remarks>("Remarks", "Remarks"),
      verb<&C::GetBillAndItem>("GetBillAndItem", optional(in_out("bGetItems"), false)),
      verb<&C::Save>("Save"),
      verb<&C::SaveAsDraft>("SaveAsDraft"),
      verb<&C::Delete>("Delete"),
      by_id_last_and_neighbours<C>(),
      verb<&C::GetNewId>("GetNewId", out("BID")),
      verb<&C::GetPreviousId>("GetPreviousId", in("CurBillID"), out("PreviousId")),
      verb<&C::GetLastId>("GetLastId", out("LastId")),
      verb<&C::GetNextId>("GetNextId", in("CurBillID"), out("NextId")),
      verb<&C::Audit>("Audit"),
      verb<&C::UndoAudit>("UndoAudit"),
      std::move(own.verbs),
  };
}

DocumentForm RepairDocument::repair_form(const Kind& kind, const Members& members, const RepairTexts& texts) {
  std::vector<ColumnSource> sources = texts.header_sources;
  sources.insert(sources.end(),
                 {constant("ProcessFlag", kind.code.value()), constant("InOutFlag", kind.side), argument("Status")});
  Insert insert_row(RepairRow::table(), {bill_number("BillId")}, texts.insert_row);
  RowMembers read;
  for (const Member* member : insert_row.members_written()) {
    const auto is_read = [&](std::string_view column) { return !ado::same_name(member->read_column(), column); };
    if (std::all_of(texts.unread.begin(), texts.unread.end(), is_read)) read.push_back(member);
  }
  return {{"select * from RGStockBill where Id={}", " Delete from RGStockBill where Id={}",
           texts.reads_rows_in_order ? rows_in_their_order : rows_as_they_come,
           " Delete from RGStockBillItems where BillId={}"},
          Insert(members, sources, header_text(texts.insert, kind.opening)),
          Update(members, sources, header_text(texts.update, kind.opening)),
          std::move(insert_row),
          std::move(read)};
}

Long RepairDocument::GetBillAndItem(bool bGetItems) noexcept {
  return trap(" GetBillAndItem(): ", [&] {
    read_header();
    if (bGetItems) read_rows();
  });
}

void RepairDocument::read_header() {
  worker(" GetBillAndItem(): ", [&] { Document::read_header(); });
}

void RepairDocument::read_rows() {
  worker(" GetBillAndItem(): ", [&] { Document::read_rows(); });
}

Long RepairDocument::Save() noexcept {
  return trap(" Save(): ", [&] {
    save_bill_and_items(GetKeyValue(config::audit_of_broken_goods) == "1" ? status::saved : status::audited);
  });
}

Long RepairDocument::SaveAsDraft() noexcept {
  return trap(" SaveAsDraft(): ", [&] { save_bill_and_items(status::draft); });
}

bool RepairDocument::is_stored() const {
  return !BillId.empty() && !execute(sql("select ID from RGStockBill where ID={}", BillId)).at_end();
}

void RepairDocument::expect_number_and_rows() const {
  if (BillId.empty()) throw Stop{result_without_id};
  if (RGBillItems.Count() == 0) throw Stop{result_without_rows};
}

void RepairDocument::save_bill_and_items(Long status) {
  const bool stored = is_stored();
  expect_number_and_rows();
  if (stored) {
    worker(" UpdateBillInfo(): ", [&] { execute(form().update.text(*this, status)); });
    worker(" SaveBillAndItem(): ", [&] { remove_rows(); });
  } else {
    worker(" AddNewBill(): ", [&] { execute(form().insert.text(*this, status)); });
    Status = status;
  }
  for_each_row(RGBillItems, [&](const PublicObject& object) {
    save_row(object);
    if (kind().opening) return;
    const bool at_once = GetKeyValue(config::audit_of_broken_goods) == "0";
    if (at_once && status != status::draft) post(static_cast<const RepairRow&>(object));
  });
}

void RepairDocument::save_row(const PublicObject& row) {
  worker(" SaveBillAndItem(): ", [&] { Document::save_row(row); });
}

void RepairDocument::post(const RepairRow& row) {
  Long result = 0;
  for (const auto& operation : stock_operations()) {
    const StockPoster& stock = session_poster();
    result = trap([&] { stock.Post(operation, row); });
  }
  stop_unless_done(result);
  row_posted(row);
}

Long RepairDocument::take_back() {
  Long result = 0;
  if (Status != status::audited) return result;
  for (const RepairRow& row : RGBillItems) {
    for (const auto& operation : stock_operations()) {
      const StockPoster& stock = session_poster();
      result = trap([&] { stock.Undo(operation, row); });
    }
    row_undone(row);
  }
  return result;
}

Long RepairDocument::Delete() noexcept {
  return trap(" Delete(): ", [&] {
    expect_number_and_rows();
    const Long taken_back = take_back();
    remove_header();
    remove_rows();
    stop_unless_done(taken_back);
  });
}

void RepairDocument::mark(Long status) const {
  execute(
      sql("update RGStockBill set Status={},Auditor={},AuditTime={} where id={}", status, Auditor, Audittime, BillId));
}

Long RepairDocument::Audit() noexcept {
  return trap(" Audit(): ", [&] {
    if (BillId.empty()) return;
    mark(status::audited);
    if (kind().opening) return;
    audit_money();
    read_rows();
    for (const RepairRow& row : RGBillItems) post(row);
  });
}

Long RepairDocument::UndoAudit() noexcept {
  return trap(" UndoAudit(): ", [&] {
    if (BillId.empty()) return;
    mark(status::saved);
    if (kind().opening) return;
    undo_money();
    read_rows();
    for (const RepairRow& row : RGBillItems) {
      for (const auto& operation : stock_operations()) {
        const StockPoster& stock = session_poster();
        stop_unless_done(trap([&] { stock.Undo(operation, row); }));
      }
      row_undone(row);
    }
  });
}

void RepairDocument::find_last(std::string& last, std::string_view) {
  worker(" GetLastId(): ", [&] {
    last = aggregated_id(execute(sql("select Max(Id) as Id from RGStockBill where ProcessFlag={}", *kind().code)));
  });
}

void RepairDocument::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  const Long code = *kind().code;
  worker(next ? " GetNextId(): " : " GetPreviousId(): ", [&] {
    near = aggregated_id(
        next ? execute(sql("select Min(Id) as Id from RGStockBill where Id > {like} and Processflag={}", current, code))
             : execute(
                   sql("select Max(Id) as Id from RGStockBill where Id < {like} and Processflag={}", current, code)));
  });
}

Long RepairDocument::GetRgStockBillitems(const std::string& cBillid) noexcept {
  Long dealt_with = 0;
  const Long failure = trap(" GetRgStockBillitems(): ", [&] {
    const auto sum =
        execute(sql("SELECT Sum(RGStockBillItems.YfQty) AS YfQty FROM RGStockBill INNER JOIN RGStockBillItems ON "
                    "RGStockBill.Id = RGStockBillItems.BillId Where RGStockBill.ID = {}",
                    cBillid));
    dealt_with = sum.value("YfQty").as_integer() > 0 ? 1 : 0;
  });
  return failure != 0 ? failure : dealt_with;
}

}  // namespace brunvik
