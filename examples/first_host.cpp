// A first host: lays the books in memory, buys ten boxes of screws, and prints what is in stock.
#include <iostream>

#include "brunvik/brunvik.h"
#include "drivers/sqlite/connection.h"
#include "schema/ddl.h"

using namespace brunvik;

int main() {
  const auto books = sqlite::open(":memory:");
  for (const auto& statement : schema::statements(schema::Engine::sqlite)) books->Execute(statement);
  books->Execute("insert into goods(id,Gname,Class,Unit,Model1,Model2) values('G1','螺丝','五金','盒','','')");
  ado::set_notice([](const ado::Notice& notice) { std::cerr << notice.title << ": " << notice.text << '\n'; });

  InitBrunvikVariable start;
  start.DATAType = sql_server_dialect;
  start.OperatorId = "u1";
  start.ADOConn = books;
  start.InitClase_PublicVariable();

  clsPurchaseInBill receipt;
  receipt.ADOConn = books;
  receipt.GetNewId(receipt.ID);
  receipt.Vendor = "V1";
  receipt.Amount = receipt.Closeamount = Money::parse("45.5");
  StockRow& row = receipt.colBillItems.add();
  row.BillId = receipt.ID;
  row.Rownum = 1;
  row.Gid = "G1", row.Class = "五金", row.Unit = "盒";
  row.Qty = 10, row.price = Money::parse("4.55");
  row.Receiver = "W1";

  Long result = receipt.Save();
  if (result == 0) result = receipt.Audit(true);  // true: the goods enter the stock, too
  if (result != 0) return 1;

  const auto stock = books->Execute(
      "select Gname,CurrentQty,goods.Unit,AverageCost from Inventory inner join goods on GId=id where WID='W1'");
  for (const char* column : {"Gname", "CurrentQty", "Unit", "AverageCost"}) {
    std::cout << stock.value(column).as_text() << '\n';
  }
}
