// A host that sells as one: the sale, the money taken at the counter and the audit of both enter the books together, or
// not at all. The second sale fails in the middle of its audit, and nothing of it stays. The books are in memory; with
// an ODBC connection string they are in the empty database of a MariaDB server.
#include <functional>
#include <iostream>

#include "brunvik/brunvik.h"
#include "drivers/odbc/connection.h"
#include "drivers/sqlite/connection.h"
#include "schema/ddl.h"

using namespace brunvik;

namespace {

void all_or_nothing(ado::Connection& books, const std::function<void()>& work) {
  books.BeginTrans();
  try {
    work();
  } catch (...) {
    books.RollbackTrans();
    throw;
  }
  // What a commit throws leaves main, and a connection that goes takes back what is open.
  books.CommitTrans();
}

// A verb may do without a part of its work and give 0; within all or nothing that is a failure, too.
void expect_done(Long result) {
  if (result == 0) result = last_failure().number;
  if (result != 0) throw ado::RuntimeError(result, last_failure().text, last_failure().statement);
}

// Boxes of screws, with the money taken at the counter.
void sell(const ado::ConnectionReference& books, Single boxes, Money amount) {
  clsSalesOutBill sale;
  clsReceiptBill receipt;
  sale.ADOConn = receipt.ADOConn = books;
  // The numbers are proposed within the transaction, too, so that nobody else is proposed the same ones.
  expect_done(sale.GetNewId(sale.ID, "XSC"));
  expect_done(receipt.GetNewId(receipt.ID));

  receipt.Ccompany = sale.ClientId = "K1";
  receipt.Amount = receipt.Paidamount = amount;
  receipt.Nowpay = true;
  PaymentRow& payment = receipt.colRPBItems.add();
  payment.BID = receipt.ID, payment.Rownum = 1, payment.Amount = amount;
  SettledRow& settled = receipt.colRPBRPItems.add();
  settled.BID = receipt.ID, settled.Rownum = 1, settled.Amount = amount;
  settled.Rpablebid = sale.ID, settled.Rpablebtype = static_cast<Byte>(bill_type::sales_issue);
  expect_done(receipt.Save());

  sale.Amount = sale.Closeamount = amount;
  sale.Nowpaybillid = receipt.ID;
  StockRow& row = sale.colBillItems.add();
  row.BillId = sale.ID, row.Rownum = 1, row.Gid = "G1", row.Class = "五金", row.Unit = "盒";
  row.Qty = row.Actualqty = boxes;
  row.Supplier = "W1";
  expect_done(sale.Save());
  expect_done(sale.Audit());
}

void show(ado::Connection& books) {
  const auto stock = books.Execute("select CurrentQty from Inventory where WID='W1'");
  const auto bills = books.Execute("select count(*) as n from StockBill");
  const auto receipts = books.Execute("select count(*) as n from RPVouchers");
  std::cout << "stock " << stock.value("CurrentQty").as_text() << ", sales " << bills.value("n").as_text()
            << ", receipts " << receipts.value("n").as_text() << '\n';
}

// The library lets stock go below zero. This company doesn't, and has its database say so.
constexpr const char* no_debts_on_sqlite =
    "create trigger No_debts before update on Inventory when new.CurrentQty<0 "
    "begin select raise(abort,'库存不足'); end";
constexpr const char* no_debts_on_mariadb = "alter table Inventory add constraint No_debts check (CurrentQty>=0)";

void lay(ado::Connection& books, schema::Engine engine, const char* no_debts) {
  for (const auto& statement : schema::statements(engine)) books.Execute(statement);
  books.Execute(no_debts);
}

ado::ConnectionReference laid_books(const char* connection_string) {
  if (connection_string == nullptr) {
    const auto books = sqlite::open(":memory:");
    lay(*books, schema::Engine::sqlite, no_debts_on_sqlite);
    return books;
  }
  const auto books = odbc::open(connection_string);
  lay(*books, schema::Engine::mariadb, no_debts_on_mariadb);
  return books;
}

}  // namespace

int main(int count, char** words) {
  const auto books = laid_books(count > 1 ? words[1] : nullptr);
  for (const char* statement : {
           "insert into goods(id,Gname,Class,Unit,Model1,Model2,AverageCost) "
           "values('G1','螺丝','五金','盒','','',4.55)",
           "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) "
           "values('W1','G1','','',0,'五金','盒',10,0,10,'')",
       }) {
    books->Execute(statement);
  }

  InitBrunvikVariable start;
  start.DATAType = sql_server_dialect;
  start.OperatorId = "u1";
  start.ADOConn = books;
  start.InitClase_PublicVariable();

  show(*books);
  for (const Single boxes : {6.0F, 6.0F}) {
    try {
      all_or_nothing(*books, [&] { sell(books, boxes, Money::from_whole(60)); });
    } catch (const ado::RuntimeError& failure) {
      std::cout << failure.number() << ": " << failure.description() << '\n';
    }
    show(*books);
  }
}
