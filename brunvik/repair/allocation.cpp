#include "brunvik/repair/allocation.h"

#include <vector>

#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/error_trap.h"

namespace brunvik {

const Members& GoodsAllocation::members() const {
  static const Members table = transfer_members<GoodsAllocation>();
  return table;
}

DocumentForm GoodsAllocation::made_form() const {
  const std::vector<ColumnSource> sources{constant("processFlag", kind().code.value()),
                                          constant("InOutFlag", kind().side), argument("Status")};
  return form_reading_back(
      {"select * from RGStockBill where Id={}", "delete from RGstockbill where Id={}",
       "select * from RGStockBillItems where BillId={} order by rownum",
       "delete from RGStockBillItems where BillId={}"},
      Insert(members(), sources,
             "insert into RGStockBill(Id,ManualId,Supplier,Receiver,RManager,SManager,Creator,CreateTime,"
             "processFlag,InOutFlag,Status,[Auditor,AuditTime,]ReferFlag,Summary,Remarks) values("),
      Update(members(), sources,
             "update RGstockbill set ManualId = ,Supplier = ,Receiver = ,RManager = ,SManager = ,processFlag = ,"
             "InOutFlag = ,Status = ,[Auditor = ,AuditTime = ,]ReferFlag = ,Summary = ,Remarks =  where Id="),
      Insert(StockRow::table(), {},
             "insert into RgStockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,price,"
             "Amount,remarks) values("));
}

Operation<StockRow> GoodsAllocation::movement(std::string_view supplier, std::string_view receiver, Long state) {
  return {"select * from RGStockBillItems where BillId={}",
          {Direction::out, supplier, &StockRow::Qty, state},
          Movement<StockRow>{Direction::in, receiver, &StockRow::Qty, state}};
}

StatementText<4> GoodsAllocation::mark_statement() const {
  return "update RGstockbill set Status = {}, Auditor = {}, AuditTime = {} where Id={}";
}

Long GoodsAllocation::status_to_save(Saving saving) const {
  if (saving == Saving::draft) return status::draft;
  return GetKeyFlag(config::audit_of_trade) ? status::saved : status::audited;
}

void GoodsAllocation::update_header(Long status) {
  remove_rows();
  worker(" UpdateDbBill(): ", [&] { execute(form().update.text(*this, status)); });
}

void GoodsAllocation::save_row(const PublicObject& row) {
  worker(" AddDbBillItems(): ", [&] {
    if (GetKeyValue(config::audit_of_broken_goods) == "0") {
      const StockPoster& stock = poster();
      stop_unless_done(trap([&] { stock.Post(movement(), static_cast<const StockRow&>(row)); }));
    }
    WarehouseTransfer::save_row(row);
  });
}

void GoodsAllocation::remove_header() {
  worker(" DeleteDbBillAndItems(): ", [&] { WarehouseTransfer::remove_header(); });
}

Long GoodsAllocation::UpdateAudited() noexcept {
  return trap([&] {
    worker(" UpdateDbBillAudited(): ", [&] { mark_if_stored_otherwise(status::audited); });
    if (ID.empty()) return;
    for_each_stock_row([&](const StockRow& row) { poster().Post(movement(), row); });
  });
}

Long GoodsAllocation::CancelAudited() noexcept {
  return trap([&] {
    mark_if_stored_otherwise(status::saved);
    if (!ID.empty()) take_back();
  });
}

void GoodsAllocation::find_last(std::string& last, std::string_view) {
  last = aggregated_id(execute(sql("select Max(Id) as Id from RGstockbill where processflag={}", *kind().code)));
}

void GoodsAllocation::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  const Long code = *kind().code;
  near = aggregated_id(
      next
          ? execute(sql("select Min(Id) as Id from RgStockBill where id > {like} and processflag ={}", current, code))
          : execute(sql("select Max(Id) as Id from RGStockBill where Id < {like} and processflag ={}", current, code)));
}

void clsBrokenAllocate::take_back() {
  for_each_row_backwards(
      colBillItems, [&](const PublicObject& row) { poster().Undo(movement(), static_cast<const StockRow&>(row)); });
}

void clsRestoreAllocate::take_back() {
  const StockPoster& stock = poster();
  const auto header = ado::execute(stock.ADOConn, sql("select * from RGStockBill where Id={}", ID));
  if (header.at_end()) return;
  const std::string supplier = header.value("Supplier").joined_text();
  const std::string receiver = header.value("Receiver").joined_text();
  stock.Undo(movement(supplier, receiver, goods_state()), ID);
}

}  // namespace brunvik
