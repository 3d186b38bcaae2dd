#include "bench/books.h"

#include <stdlib.h>

#include <stdexcept>
#include <vector>

#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/stock/InitBrunvikVariable.h"
#include "schema/ddl.h"
#include "schema/tables.h"

namespace brunvik::bench {

namespace {

// Bills, numbered from 0 on, in the order of their days; of each ten the first two are purchase receipts, the next
// five sales issues. Those of the last day wait for their audit.
constexpr const char* numbered_bills =
    "create temp table numbered as with recursive counted(n) as (select 0 union all select n+1 from counted where "
    "n+1<?) select n, s, day, case when s%10<2 then 'JHR' when s%10<7 then 'XSC' when s%10=7 then 'QTR' when s%10=8 "
    "then 'QTC' when s%20=9 then 'XTR' else 'DBD' end as prefix, case when s%10<2 then 2 when s%10<7 then 5 when "
    "s%10=7 then 6 when s%10=8 then 7 when s%20=9 then 4 else 10 end as kind, "
    "substr(strftime('%Y%m%d',day),3)||printf('%05d',s+1) as number, day='2024-03-05' as today from (select n, n%365 "
    "as s, "
    "date('2024-03-05', (n/365-(?-1)/365)||' days') as day from counted)";

constexpr const char* fillings[] = {
    "insert into BasicConfig values('启用帐款审核','1'),('启用进销审核','1'),('启用仓库业务审核','1')",
    "insert into Warehouse values('W1','总仓'),('W2','门市')",
    "create temp table numbers as with recursive counted(n) as (select 0 union all select n+1 from counted where "
    "n<4999) select n from counted",
    "insert into ContactsCompany select 'K'||printf('%04d',n), '往来单位'||n from numbers where n<1000",
    "insert into goods(id,Gname,Class,Enabled,GType,Unit,Price,Purchaseprice,RetailPrice,Mnemonic,Model1,Model2,"
    "UnitConverter,MinUnit,Popularity,Guarantee,Brand,Barcode,AverageCost,TecParameters) select "
    "'G'||printf('%04d',n),'螺丝 "
    "M'||n,'五金',1,'常规','盒',n%90+1.5,n%80+1.25,n%99+2.5,'LS'||n,'','',1,'盒',0,12,'工牌',"
    "'69'||printf('%011d',n),n%80+1.25,'' from numbers",
    "insert into GoodsUnit select 'G'||printf('%04d',n),'盒',1 from numbers union all select "
    "'G'||printf('%04d',n),'箱',12 from numbers",
    "insert into Inventory select 'W1','G'||printf('%04d',n),'','',0,'五金','盒',5000,1000,4000,'' from numbers",
    "insert into Inventory select 'W2','G'||printf('%04d',n),'','',0,'五金','盒',900,300,600,'' from numbers",
    "insert into StockBill(Id,ManualId,Supplier,Receiver,RManager,SManager,Salesman,Creator,CreateTime,Type,InOutFlag,"
    "Status,Auditor,AuditTime,PaidAmount,AdvanceAmount,CloseAmount,Amount,BillCost,Nowpaybillid,NowAdvanceBillID,"
    "InvoiceName,InvoiceType,TaxRate,DiscountType,DiscountCard,DiscountRate,DeliveryMethod,ClosedTag,CreateFlag,"
    "ReferFlag,Referbillid,Summary,Remarks) select prefix||number,'',case when kind=2 then "
    "'K'||printf('%04d',n%200) end,case when kind in (4,5) then 'K'||printf('%04d',200+n%800) end,'u1','u2','u3','u1',"
    "day||' 09:30:00',kind,case kind when 2 then 1 when 6 then 1 when 10 then 0 else 2 end,3-today,case when today "
    "then null else 'u4' end,case when today then null else day||' 17:00:00' end,0,0,n%97*2.5+20,n%97*2.5+20,case "
    "when today then 0 else n%97*2+10 end,'','','',0,0,0,'',0,0,0,0,0,'','','按合同 '||n from numbered",
    "insert into StockBillItems(BillId,RowNum,GId,GBarcode,GName,Class,Model1,Model2,unit,qty,ActualQty,price,Amount,"
    "Cost,ShareCost,Receiver,Supplier,Equipcode,remarks,GoodStutas,SendStutas) select "
    "prefix||number,r,'G'||printf('%04d',g),'69'||printf('%011d',g),'螺丝 M'||g,'五金','','','盒',n%12+1,n%12+1,"
    "g%90+1.5,(g%90+1.5)*(n%12+1),case when today then 0 else (g%80+1.25)*(n%12+1) end,0,case when kind in (2,4,6) "
    "then 'W1' end,case when kind in (5,7,10) then 'W1' end,'','',0,0 from (select "
    "*,(n*2+r)*2654435761%4294967296%5000 "
    "as g from numbered, (select 1 as r union all select 2))",
    // Of each ten bills a payment settles the two receipts, and a receipt of money the first two issues.
    "insert into RPVouchers(Id,Manualid,Manager,Ccompany,Type,Paidamount,Amount,Nowpay,Status,Creator,Createtime,"
    "Referflag,Referbillid,Summary,Remarks) select "
    "case s%10 when 0 then 'FKD' else 'SKD' end||number,'',1,'K'||printf('%04d',n%1000),case s%10 when 0 then 0 else 1 "
    "end,20,20,0,2,'u1',day||' 11:00:00',0,'','','' from numbered where s%10 in (0,2)",
    "insert into RPBItems select case s%10 when 0 then 'FKD' else 'SKD' end||number,1,1,'',20,'' from numbered where "
    "s%10 in (0,2)",
    "insert into RPBRPItems select case bill.s%10 when 0 then 'FKD' else 'SKD' end||bill.number,settled.n-bill.n+1,"
    "settled.prefix||settled.number,settled.kind,10,'' from numbered bill join numbered settled on settled.n between "
    "bill.n and bill.n+1 where bill.s%10 in (0,2)",
    "insert into AdvanceBill(Id,Manager,Ccompany,Type,Paidamount,Amount,Status,Creator,Createtime) select "
    "'YFD'||number,1,'K0001',2,5,5,3,'u1',day from numbered where s%50=0",
    "insert into AdvanceItems select 'YFD'||number,1,prefix||number,kind,5,'' from numbered where s%50=0",
    "drop table numbered",
    "drop table numbers",
};

std::string unused_file(const Folder& folder) {
  static int count = 0;
  return folder.file("copy" + std::to_string(++count) + ".db");
}

// Memory is filled from the file, table by table.
template <class Execute>
void copy_into_memory(const std::string& books, Execute&& execute) {
  for (const std::string& statement : schema::statements(schema::Engine::sqlite)) execute(statement);
  execute("attach database '" + books + "' as filled");
  for (const schema::Table& table : schema::tables()) {
    const std::string name(table.name);
    execute("insert into main." + name + " select * from filled." + name);
  }
  execute("detach database filled");
}

std::string copy_of(const Folder& folder, const std::string& books) {
  std::string path = unused_file(folder);
  std::filesystem::copy_file(books, path);
  return path;
}

}  // namespace

Folder::Folder() {
  std::string name = (std::filesystem::temp_directory_path() / "brunvik-bench-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
  path_ = name;
}

Folder::~Folder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

void lay_books(const std::string& path, int bills) {
  PlainSqlite books(path);
  books.execute("pragma journal_mode=off;pragma synchronous=off;pragma cache_size=-1000000;pragma temp_store=memory");
  for (const std::string& statement : schema::statements(schema::Engine::sqlite)) books.execute(statement);
  std::string number = numbered_bills;
  for (auto mark = number.find('?'); mark != std::string::npos; mark = number.find('?')) {
    number.replace(mark, 1, std::to_string(bills));
  }
  books.execute(number);
  books.execute("create unique index temp.numbered_n on numbered(n)");
  for (const char* const filling : fillings) books.execute(filling);
}

std::shared_ptr<sqlite::Connection> open_copy(const Folder& folder, const std::string& books, const Place& place) {
  if (!place.in_memory) return sqlite::open(copy_of(folder, books), {.synchronous = place.synchronous});
  auto connection = sqlite::open(":memory:");
  copy_into_memory(books, [&](const std::string& text) { connection->Execute(text); });
  return connection;
}

std::unique_ptr<PlainSqlite> open_plain_copy(const Folder& folder, const std::string& books, const Place& place) {
  const std::string path = place.in_memory ? ":memory:" : copy_of(folder, books);
  auto plain = std::make_unique<PlainSqlite>(path, place.synchronous);
  if (place.in_memory) copy_into_memory(books, [&](const std::string& text) { plain->execute(text); });
  return plain;
}

void start_session(const ado::ConnectionReference& connection, std::string_view dialect) {
  InitBrunvikVariable start;
  start.DATAType = dialect;
  start.OperatorId = "u1";
  start.ADOConn = connection;
  start.InitClase_PublicVariable();
}

}  // namespace brunvik::bench
