#include "brunvik/billframe/stock_document.h"

#include <utility>

namespace brunvik {

namespace {

constexpr DocumentStatements statements_of_receipts{
    "select * from StockBill where Id={}", "delete from stockbill where Id={}",
    "select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
    "stockbillitems.Receiver = Warehouse.id where stockbillitems.BillId={} order by stockbillitems.rownum",
    "delete from StockBillItems where BillId={}"};

constexpr DocumentStatements statements_of_issues{
    "select * from StockBill where Id={}", "delete from stockbill where Id={}",
    "select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
    "stockbillitems.Supplier = Warehouse.id where stockbillitems.BillId={} order by stockbillitems.rownum",
    "delete from StockBillItems where BillId={}"};

}  // namespace

DocumentForm StockDocument::stock_form(const Kind& kind, const Members& members, WarehouseColumn warehouse,
                                       std::string_view insert, std::string_view update, std::string_view insert_row,
                                       const std::vector<ColumnSource>& row_sources) {
  Insert insert_stock_row(StockRow::table(), row_sources, insert_row);
  RowMembers read = members_read_back(insert_stock_row);
  read.push_back(&StockRow::table().named("Wname"));
  return {warehouse == WarehouseColumn::Receiver ? statements_of_receipts : statements_of_issues,
          Insert(members, header_sources(kind), header_text(insert, kind.opening)),
          Update(members, header_sources(kind), header_text(update, kind.opening)), std::move(insert_stock_row),
          std::move(read)};
}

void StockDocument::mark(Long status) {
  execute(sql("update stockbill set Status={},Auditor={},AuditTime={} where id={}", status, Auditor, Audittime, ID));
}

}  // namespace brunvik
