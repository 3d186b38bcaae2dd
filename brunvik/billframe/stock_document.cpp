#include "brunvik/billframe/stock_document.h"

#include <utility>

#include "brunvik/foundation/error_trap.h"

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

constexpr DocumentStatements statements_of_movements{
    "select * from StockBill where Id={}", "delete from stockbill where Id={}",
    "select * from StockBillItems where BillId={} order by rownum", "delete from StockBillItems where BillId={}"};

const DocumentStatements& statements_of(WarehouseColumn warehouse) {
  switch (warehouse) {
    case WarehouseColumn::Receiver:
      return statements_of_receipts;
    case WarehouseColumn::Supplier:
      return statements_of_issues;
    case WarehouseColumn::both:
      break;
  }
  return statements_of_movements;
}

}  // namespace

DocumentForm StockDocument::stock_form(const Kind& kind, const Members& members, WarehouseColumn warehouse,
                                       std::string_view insert, std::string_view update, std::string_view insert_row,
                                       const std::vector<ColumnSource>& row_sources) {
  Insert insert_stock_row(StockRow::table(), row_sources, insert_row);
  RowMembers read = members_read_back(insert_stock_row);
  if (warehouse != WarehouseColumn::both) read.push_back(&StockRow::table().named("Wname"));
  return {statements_of(warehouse), Insert(members, header_sources(kind), header_text(insert, kind.opening)),
          Update(members, header_sources(kind), header_text(update, kind.opening)), std::move(insert_stock_row),
          std::move(read)};
}

void StockDocument::mark(Long status) {
  execute(sql("update stockbill set Status={},Auditor={},AuditTime={} where id={}", status, Auditor, Audittime, ID));
}

void StockDocument::mark_if_stored_otherwise(Long status) {
  if (ID.empty()) throw Stop{result_without_id};
  const auto stored = execute(sql(form().statements.select_header, ID));
  const bool to_audit = status == status::audited;
  if (stored.at_end() || (stored.value("Status").as_long() == status::audited) == to_audit) {
    ID.clear();
    return;
  }
  execute(sql(mark_statement(), status, Auditor, Audittime, ID));
}

}  // namespace brunvik
