#include "tests/support/faults/books.h"

#include "tests/support/faults/document.h"

namespace brunvik::test {

std::string quoted(const std::string& text) { return "'" + text + "'"; }

std::vector<std::string> fault_books() {
  std::vector<std::string> statements{
      "insert into BasicConfig(keyname,keyvalue) values('启用帐款审核','1')",
      "insert into BasicConfig(keyname,keyvalue) values('启用坏件审核','0')",
      "insert into BasicConfig(keyname,keyvalue) values('启用进销审核','1')",
      "insert into BasicConfig(keyname,keyvalue) values('启用仓库业务审核','0')",
      "insert into Warehouse(id,WName) values('W1','主仓')",
      "insert into goods(id,Class,Model1,Model2,Unit,AverageCost) values('G1','五金','M6','','个',10)",
      "insert into goods(id,Class,Model1,Model2,Unit,AverageCost) values('G2','五金','M8','','只',2)",
      "insert into GoodsUnit(id,Unit,UnitConverter) values('G1','箱',12)",
      "insert into GoodsUnit(id,Unit,UnitConverter) values('G2','盒',50)",
      "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty)"
      " values('W1','G1','M6','',0,'五金','个',100,0,100)",
      // Screws that were sold before they had a cost.
      "insert into StockBill(Id,Type,InOutFlag,Status) values('ALT24020100001',5,2,3)",
      "insert into StockBillItems(BillId,RowNum,GId,unit,qty,ActualQty,Cost) "
      "values('ALT24020100001',1,'G1','箱',1,1,0)",
  };
  for (const RehearsedDocument& document : rehearsed_documents()) {
    statements.insert(statements.end(), document.books.begin(), document.books.end());
  }
  return statements;
}

}  // namespace brunvik::test
