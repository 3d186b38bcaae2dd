// Opening stock: each worker of either half tells its own error, but for the reading of the repair rows.
#include "tests/support/faults/frame.h"
#include "tests/support/faults/vocabulary.h"

namespace brunvik::test {

namespace {

struct Half {
  // What stands in the names of one half's workers and in front of its tables.
  std::string mark;
  std::string save, load, number;
  std::string updated_table;
  bool rows_are_told;
};
const Half new_goods{"", "Save", "LoadById", "GetNewId", "stockbill", true};
const Half repair_goods{"RG", "RGSave", "LoadRGById", "GetRGNewId", "RGStockBill", false};

Verbs verbs_of(const Half& half) {
  const std::string header = half.mark + "StockBill", rows = half.mark + "StockBillItems";
  const auto told = [&](const std::string& worker, const std::string& statement) {
    return ends_telling(worker + "():", "bill|" + statement);
  };
  const Step sought = told(half.save, "select count(ID) as BillCount from " + header + " where Id=");
  const Step added = told("Add" + half.mark + "InitInBill", "insert into " + header + "(");
  const Step updated = told("Update" + half.mark + "InitInBill", "update " + half.updated_table + " set ManualId = ");
  const Steps removed{told(half.save, "delete from " + rows + " where Billid="),
                      told(half.save, "delete from Inventory where Status=")};
  const Steps row{told("Add" + half.mark + "InitInBillItem", "insert into " + rows + "("),
                  told("Add" + half.mark + "InitInBillItem", "insert into Inventory(")};
  const std::string rows_statement = "select " + rows + ".*,warehouse.WName from " + rows + " ";
  const Steps read{told("Get" + half.mark + "InitInBill", "select * from " + header + " where Id="),
                   half.rows_are_told ? told("GetInitInBillItems", rows_statement) : ends("bill|" + rows_statement)};
  // The books hold the bill and its rows in the half of the new goods; the object has read them.
  const std::vector<Value> slice{"五金", Integer{2}, Integer{0}};
  return {{.verb = half.save,
           .arguments = slice,
           .steps = Steps{sought, added} + removed + row + row,
           .remark = "for_the_first_time",
           .number = "QCR24030500009"},
          {.verb = half.save,
           .arguments = slice,
           .steps = Steps{sought, updated} + removed + row + row,
           .remark = "again",
           .before = {"insert into RGStockBill(Id,ProcessFlag,Status) values('QCR24030500002',0,3)"}},
          {.verb = half.load, .arguments = {"QCR24030500002"}, .steps = read},
          {.verb = half.number, .arguments = {""}, .steps = {next_number()}}};
}

const Rehearsed opening_stock([] {
  Verbs verbs = verbs_of(new_goods);
  for (const Verb& verb : verbs_of(repair_goods)) verbs.push_back(verb);
  return stock_document("clsInitInBill", verbs);
});

}  // namespace

}  // namespace brunvik::test
