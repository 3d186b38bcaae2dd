#include "bench/family_books.h"

#include <algorithm>
#include <array>
#include <set>
#include <stdexcept>
#include <string_view>

#include "bench/books.h"
#include "bench/plain_sqlite.h"
#include "schema/tables.h"

namespace brunvik::bench {

namespace {

bool same_name(std::string_view left, std::string_view right) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; };
  return std::ranges::equal(left, right, {}, lower, lower);
}

bool is_one_of(std::string_view name, std::span<const std::string_view> names) {
  return std::ranges::any_of(names, [name](std::string_view other) { return same_name(name, other); });
}

const schema::Table& table_named(std::string_view name) {
  for (const schema::Table& table : schema::tables()) {
    if (same_name(table.name, name)) return table;
  }
  throw std::runtime_error("no table " + std::string(name));
}

// What a bill has in a column: id, code, day, today, r and goods are the columns of what it is selected from.
std::string value_of(const schema::Column& column, bool is_first) {
  constexpr std::array<std::string_view, 2> codes{"Type", "ProcessFlag"};
  constexpr std::array<std::string_view, 2> goods{"GId", "Goodsid"};
  constexpr std::array<std::string_view, 3> row_numbers{"RowNum", "GRowNum", "StockRowNum"};
  constexpr std::array<std::string_view, 8> other_bills{"PurChaseBill", "StockId", "Bid",       "RPableBID",
                                                        "OTBillId",     "PurInId", "SaleOutid", "DYDJH"};
  if (is_first) return "id";
  if (is_one_of(column.name, codes)) return "code";
  if (is_one_of(column.name, goods)) return "goods";
  if (is_one_of(column.name, row_numbers)) return "r";
  if (is_one_of(column.name, other_bills)) return "'JHR'||number";
  if (same_name(column.name, "Status")) return "3-today";
  switch (column.type) {
    case schema::Type::Key:
    case schema::Type::Text:
    case schema::Type::Memo:
      return "'K'||n%1000";
    case schema::Type::Date:
      return "day||' 09:30:00'";
    case schema::Type::Single:
    case schema::Type::Money:
      return "n%97*2.5+20";
    default:
      return "1";
  }
}

void fill(PlainSqlite& books, const schema::Table& table, std::string_view source) {
  std::string columns, values;
  for (const schema::Column& column : table.columns) {
    const bool is_first = columns.empty();
    const std::string separator = is_first ? "" : ",";
    columns.append(separator).append(column.name);
    values.append(separator).append(value_of(column, is_first));
  }
  books.execute("insert into " + std::string(table.name) + "(" + columns + ") select " + values + " from " +
                std::string(source));
}

// The numbers of the bills of a table, of all kinds that it has; the journal's are 1, 2, 3.
void number_bills(PlainSqlite& books, std::string_view table, int bills) {
  // A branch that is never taken, for the journal, which has no kinds.
  std::string prefixes = " when -1 then ''", codes = " when -1 then null";
  int count = 0;
  for (const Kind* kind : kind::all()) {
    if (kind->header_table() != table || kind->prefix.empty()) continue;
    const std::string when = " when " + std::to_string(count++) + " then ";
    prefixes += when + "'" + std::string(kind->prefix) + "'";
    codes += when + (kind->code ? std::to_string(*kind->code) : "null");
  }
  const std::string turn = "case n%365%" + std::to_string(std::max(count, 1));
  const std::string last = std::to_string(bills - 1);
  books.execute(
      "create temp table bills as with recursive counted(n) as (select 0 union all select n+1 from counted "
      "where n<" +
      last + ") select n, " + (count == 0 ? "cast(n+1 as text)" : turn + prefixes + " end||number") + " as id, " +
      turn + codes +
      " end as code, number, day, day='2024-03-05' as today, 1 as r, 'G0001' as "
      "goods from (select n, day, substr(strftime('%Y%m%d',day),3)||printf('%05d',n%365+1) as number from "
      "(select n, date('2024-03-05', (n/365-" +
      last + "/365)||' days') as day from counted))");
  books.execute(
      "create temp view bill_rows as select n, id, code, number, day, today, two.r, "
      "'G'||printf('%04d',(n*2+two.r)*2654435761%4294967296%5000) as goods from bills, (select 1 as r union "
      "all select 2) two");
}

}  // namespace

void lay_family_books(const std::string& path, std::span<const Kind* const> kinds, int bills) {
  constexpr std::string_view stock = "StockBill";
  std::set<std::string_view> headers, filled;
  for (const Kind* kind : kinds) headers.insert(kind->header_table());
  lay_books(path, headers.contains(stock) ? bills : 1'000);
  PlainSqlite books(path);
  books.execute("pragma journal_mode=off;pragma synchronous=off;pragma cache_size=-1000000;pragma temp_store=memory");
  books.execute("insert into BasicConfig values('启用坏件审核','1')");
  books.execute(
      "insert into goods(id,Gname,Class,Unit,Model1,Model2,AverageCost) with recursive counted(n) as (select 1 "
      "union all select n+1 from counted where n<10) select 'Q'||n,'螺丝','开业','盒','','',1 from counted");
  for (const Kind* kind : kinds) {
    if (kind->header_table() == stock || !filled.insert(kind->header_table()).second) continue;
    number_bills(books, kind->header_table(), bills);
    for (const std::string_view table : kind->tables) {
      fill(books, table_named(table), table == kind->header_table() ? "bills" : "bill_rows");
    }
    books.execute("drop view bill_rows;drop table bills");
  }
}

}  // namespace brunvik::bench
