#include "tests/support/fault_books.h"

#include <algorithm>
#include <stdexcept>

namespace brunvik::test {

namespace {

struct Kept {
  Numbered numbered;
  int type;
  // The voucher and the advance at the side of the bill.
  std::string voucher, advance;
};

const std::vector<Kept> stock_bills{
    {{"clsPurchaseInBill", "JHR"}, 2, "FKD", "YFX"},
    {{"clsPurchaseInBjkcBill", "JQC"}, 36, "FKD", "YFX"},
    {{"clsPurchaseOutBill", "JTC"}, 3, "FKD", ""},
    {{"clsPurchaseOutBjkcBill", "JTQ"}, 37, "FKD", ""},
    {{"clsSalesInBill", "XTR"}, 4, "SKD", ""},
    {{"clsSalesInBjkcBill", "XTQ"}, 39, "SKD", ""},
    {{"clsSalesOutBill", "XSC"}, 5, "SKD", "YSX"},
    {{"clsSalesOutBjkcBill", "XSQ"}, 38, "SKD", "YSX"},
    {{"clsOthersInBill", "QTR"}, 6, "", ""},
    {{"clsOthersOutBill", "QTC"}, 7, "", ""},
    {{"clsReportOfOverflowBill", "BYR"}, 8, "", ""},
    {{"clsReportOfLossesBill", "BSC"}, 9, "", ""},
    {{"clsTZBill", "TZD"}, 32, "", ""},
};

const std::vector<Kept> vouchers{
    {{"clsPayBill", "FKD"}, 0, "", ""},
    {{"clsReceiptBill", "SKD"}, 1, "", ""},
    {{"clsAdvanceBill", "YFX"}, 2, "", ""},
    {{"clsAdvanceYSBill", "YSX"}, 3, "", ""},
};

std::string quoted(const std::string& text) { return "'" + text + "'"; }

std::string number_of(const std::string& prefix, int number) { return prefix + "2403050000" + std::to_string(number); }

// Three bills; the second has two rows: boxes of screws, which are kept by the piece, and packs of nuts, whose balance
// is still to be made.
void add_stock_bill(std::vector<std::string>& statements, const Kept& kept) {
  const std::string voucher = kept.voucher.empty() ? "" : number_of(kept.voucher, 2);
  const std::string advance = kept.advance.empty() ? "" : number_of(kept.advance, 2);
  for (int number = 1; number <= 3; ++number) {
    statements.push_back(
        "insert into StockBill(Id,Type,InOutFlag,Status,CloseAmount,Amount,Nowpaybillid,"
        "NowAdvanceBillID) values(" +
        quoted(number_of(kept.numbered.prefix, number)) + "," + std::to_string(kept.type) + ",1,2,100,100," +
        quoted(voucher) + "," + quoted(advance) + ")");
  }
  const std::string row =
      "insert into StockBillItems(BillId,RowNum,GId,Class,Model1,Model2,unit,qty,ActualQty,price,"
      "Receiver,Supplier,GoodStutas) values(" +
      quoted(kept.numbered.bill());
  statements.push_back(row + ",1,'G1','五金','M6','','箱',2,2,120,'W1','W1',0)");
  statements.push_back(row + ",2,'G2','五金','M8','','盒',3,3,5,'W1','W1',0)");
}

// Three vouchers; the second has money by two means and settles a purchase and another receivable.
void add_voucher(std::vector<std::string>& statements, const Kept& kept) {
  const bool advance = kept.type >= 2;
  for (int number = 1; number <= 3; ++number) {
    statements.push_back(std::string("insert into ") + (advance ? "AdvanceBill" : "RPVouchers") +
                         "(Id,Type,Status,Paidamount,Amount,Nowpay) values(" +
                         quoted(number_of(kept.numbered.prefix, number)) + "," + std::to_string(kept.type) +
                         ",2,100,100,0)");
  }
  const std::string bill = quoted(kept.numbered.bill());
  if (!advance) {
    for (const char* row : {",1,1,60)", ",2,2,40)"}) {
      statements.push_back("insert into RPBItems(BID,RowNum,MeansOfPayment,Amount) values(" + bill + row);
    }
  }
  for (const char* row : {",1,'JHR24030500001',2,60)", ",2,'QTS24030500001',17,40)"}) {
    statements.push_back(std::string("insert into ") + (advance ? "AdvanceItems" : "RPBRPItems") +
                         "(BID,RowNum,RPableBID,RPableBType,Amount) values(" + bill + row);
  }
}

}  // namespace

Numbered numbered(const std::string& class_name) {
  for (const auto* family : {&stock_bills, &vouchers}) {
    const auto found = std::find_if(family->begin(), family->end(),
                                    [&](const Kept& kept) { return kept.numbered.class_name == class_name; });
    if (found != family->end()) return found->numbered;
  }
  throw std::logic_error("no bills of " + class_name + " are kept");
}

std::vector<std::string> fault_books() {
  std::vector<std::string> statements{
      "insert into BasicConfig(keyname,keyvalue) values('启用帐款审核','1')",
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
      "insert into OthersIEBill(Id,Type,Status,Closeamount,Amount) values('QTS24030500001',17,2,40,40)",
  };
  for (const Kept& kept : stock_bills) add_stock_bill(statements, kept);
  for (const Kept& kept : vouchers) add_voucher(statements, kept);
  return statements;
}

}  // namespace brunvik::test
