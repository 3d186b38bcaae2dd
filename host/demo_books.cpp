#include "host/demo_books.h"

#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

#include "host/table.h"

namespace brunvik::host {

namespace {

struct Book {
  std::string_view title;
  std::vector<std::string> headings;
  std::string statement;
};

const std::array<Book, 4>& books() {
  static const std::array<Book, 4> books{{
      {"库存",
       {"仓库", "商品", "单位", ">入库", ">出库", ">现存"},
       "select Warehouse.WName,goods.Gname,Inventory.Unit,Inventory.InQty,Inventory.OutQty,Inventory.CurrentQty "
       "from (Inventory left join Warehouse on Inventory.WID=Warehouse.id) left join goods on Inventory.GId=goods.id "
       "order by Inventory.GId"},
      {"平均成本",
       {"商品", "单位", ">平均成本"},
       "select Gname,Unit,AverageCost from goods where AverageCost<>0 order by id"},
      {"单据",
       {"单号", "单据", "往来单位", "状态", ">应结", ">已付", "结清", ">成本"},
       "select StockBill.Id,case StockBill.Type when 2 then '进货入库' else '销售出库' end,ContactsCompany.FullName,"
       "case StockBill.Status when 3 then '已审核' else '未审核' end,StockBill.CloseAmount,StockBill.PaidAmount,"
       "case StockBill.ClosedTag when 1 then '是' else '否' end,StockBill.BillCost "
       "from StockBill left join ContactsCompany on "
       "case StockBill.Type when 2 then StockBill.Supplier else StockBill.Receiver end=ContactsCompany.id "
       "order by StockBill.Type,StockBill.Id"},
      {"收付款单",
       {"单号", "单据", "往来单位", "状态", ">金额", "结算单号"},
       "select RPVouchers.Id,case RPVouchers.Type when 0 then '付款单' else '收款单' end,ContactsCompany.FullName,"
       "case RPVouchers.Status when 3 then '已审核' else '未审核' end,RPBRPItems.Amount,RPBRPItems.RPableBID "
       "from (RPVouchers left join RPBRPItems on RPVouchers.Id=RPBRPItems.BID) left join ContactsCompany on "
       "RPVouchers.Ccompany=ContactsCompany.id order by RPVouchers.Type,RPVouchers.Id"},
  }};
  return books;
}

std::string cell_text(const Json& cell) {
  if (cell.is_null()) return {};
  return cell.is_string() ? cell.get<std::string>() : cell.dump();
}

}  // namespace

void DemoBooks::show_changes() {
  for (const Book& book : books()) {
    std::string table = table_of(book.statement, book.headings);
    std::string& before = shown_[book.title];
    if (table == before) continue;
    out_ << '\n' << book.title << '\n' << table;
    before = std::move(table);
  }
}

// Empty where there are no rows.
std::string DemoBooks::table_of(const std::string& statement, const std::vector<std::string>& headings) {
  const Json rows = ask(interpreter_, {{"do", "sql"}, {"text", statement}}).at("rows");
  if (rows.empty()) return {};
  Table table(headings);
  for (const Json& row : rows) {
    std::vector<std::string> cells;
    for (const Json& cell : row) cells.push_back(cell_text(cell));
    table.add(std::move(cells));
  }
  return table.text();
}

Json ask(Interpreter& interpreter, const Json& line) {
  Json answer = parse_object(interpreter.answer(one_line(line)));
  if (const Json* error = find(answer, "error")) {
    throw ado::RuntimeError(error->at("number").get<Long>(), error->at("description").get<std::string>());
  }
  return answer;
}

}  // namespace brunvik::host
