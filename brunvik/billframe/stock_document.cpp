#include "brunvik/billframe/stock_document.h"

#include <utility>

#include "brunvik/ado/names.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/foundation/sql_text.h"

namespace brunvik {

namespace {

std::string header_text(std::string_view text, bool opening) {
  std::string result;
  for (auto open = text.find('<'); open != std::string_view::npos; open = text.find('<')) {
    const auto close = text.find('>', open);
    result += text.substr(0, open);
    if (!opening) result += text.substr(open + 1, close - open - 1);
    text.remove_prefix(close + 1);
  }
  return result.append(text);
}

std::vector<ColumnSource> header_sources(const Kind& kind) {
  return {constant("Type", kind.code.value()), constant("InOutFlag", kind.side), argument("Status")};
}

}  // namespace

StockForm::StockForm(const Kind& kind, const Members& members, WarehouseColumn warehouse_column,
                     std::string_view insert_text, std::string_view update_text, std::string_view insert_row_text,
                     const std::vector<ColumnSource>& row_sources)
    : warehouse(warehouse_column),
      insert(members, header_sources(kind), header_text(insert_text, kind.opening)),
      update(members, header_sources(kind), header_text(update_text, kind.opening)),
      insert_row(StockRow::table(), row_sources, insert_row_text) {
  for (const Member* member : insert_row.members_written()) {
    if (!ado::same_name(member->name(), "Cost")) row_members_read.push_back(member);
  }
  row_members_read.push_back(&StockRow::table().named("Wname"));
}

void StockDocument::save_header(Saving saving) {
  if (ID.empty()) throw Stop{-1};
  const Long status = saving == Saving::draft ? status::draft : status::saved;
  if (execute(sql("select * from StockBill where Id={}", ID)).at_end()) {
    execute(form().insert.text(*this, status));
  } else {
    remove_rows();
    execute(form().update.text(*this, status));
  }
}

void StockDocument::save_rows() {
  for_each_row(rows(), [&](const PublicObject& row) { execute(form().insert_row.text(row)); });
}

void StockDocument::read_header() { read_properties(execute(sql("select * from StockBill where Id={}", ID))); }

void StockDocument::read_rows() {
  if (form().warehouse == WarehouseColumn::Receiver) {
    take_rows(execute(sql("select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
                          "stockbillitems.Receiver = Warehouse.id where stockbillitems.BillId={} "
                          "order by stockbillitems.rownum",
                          ID)),
              finish_row());
  } else {
    take_rows(execute(sql("select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
                          "stockbillitems.Supplier = Warehouse.id where stockbillitems.BillId={} "
                          "order by stockbillitems.rownum",
                          ID)),
              finish_row());
  }
}

void StockDocument::take_rows(ado::Recordset set, FinishRow finish) {
  brunvik::read_rows<StockRow>(rows(), std::move(set), form().row_members_read, finish);
}

void StockDocument::remove_rows() { execute(sql("delete from StockBillItems where BillId={}", ID)); }

void StockDocument::remove_header() { execute(sql("delete from stockbill where Id={}", ID)); }

void StockDocument::find_last(std::string& last, std::string_view) {
  last = aggregated_id(execute(sql("select Max(Id) as Id from StockBill where type={}", *kind().code)));
}

void StockDocument::find_near(const std::string& current, std::string& near, bool next, std::string_view) {
  near = aggregated_id(
      next ? execute(sql("select Min(Id) as Id from StockBill where id > {like} and type={}", current, *kind().code))
           : execute(sql("select Max(Id) as Id from StockBill where Id < {like} and type={}", current, *kind().code)));
}

}  // namespace brunvik
