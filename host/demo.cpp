#include "host/demo.h"

#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

#include "brunvik/ado/clock.h"
#include "host/database.h"
#include "host/demo_books.h"

namespace brunvik::host {

namespace {

constexpr const char* master_data[] = {
    // Vouchers wait for their audit.
    "insert into BasicConfig(keyname,keyvalue) values('启用帐款审核','1')",
    "insert into Warehouse(id,WName) values('W1','主仓库')",
    "insert into ContactsCompany(id,FullName) values('C1','东方办公设备厂')",
    "insert into ContactsCompany(id,FullName) values('C2','红星小学')",
    "insert into goods(id,Gname,Class,Model1,Model2,Enabled,Unit) values('G1','激光打印机','办公','','',1,'台')",
    "insert into goods(id,Gname,Class,Model1,Model2,Enabled,Unit) values('G2','硒鼓','耗材','','',1,'支')",
    "insert into GoodsUnit(id,Unit,UnitConverter) values('G1','台',1)",
    "insert into GoodsUnit(id,Unit,UnitConverter) values('G2','支',1)",
};

// A kind of trade document as the demo uses it, with the voucher that takes its money at the counter.
struct Trade {
  const char* title;
  const char* class_name;
  // What its numbers begin with, where the class leaves that to the host.
  const char* prefix;
  int code;
  const char* company_property;
  const char* warehouse_property;
  // What audits with the stock: the two sides ask for it the other way round.
  bool audit_argument;
  const char* voucher_class;
  const char* voucher_title;
};

struct Line {
  const char* goods;
  const char* name;
  const char* class_name;
  const char* unit;
  int quantity;
  int price;
};

constexpr Trade purchase{"进货入库", "clsPurchaseInBill", nullptr, 2, "Vendor", "Receiver",
                         true,       "clsPayBill",        "付款单"};
constexpr Trade sale{"销售出库", "clsSalesOutBill", "XSC",   5, "ClientId", "Supplier",
                     false,      "clsReceiptBill",  "收款单"};

class Demo {
 public:
  Demo(Interpreter& interpreter, std::ostream& out)
      : interpreter_(interpreter), out_(out), books_(interpreter, out), time_(ado::timestamp_text(ado::now())) {}

  void enter_master_data() {
    for (const char* statement : master_data) ask(interpreter_, {{"do", "sql"}, {"text", statement}});
  }

  // A document for the whole of its lines, with this much of the money at the counter.
  void trade(const Trade& trade, const std::string& company, const std::vector<Line>& lines, int counter) {
    int total = 0;
    for (const Line& line : lines) total += line.quantity * line.price;
    const std::string id = new_object("bill", trade.class_name, trade.title, trade.prefix);
    std::string voucher;
    if (counter > 0) voucher = take_money(trade, company, id, counter);
    put("bill", {{"ID", id},
                 {trade.company_property, company},
                 {"Nowpaybillid", voucher},
                 {"Amount", total},
                 {"Closeamount", total},
                 {"Creator", "u1"},
                 {"Createtime", time_}});
    int row = 0;
    for (const Line& line : lines) {
      add("bill", "colBillItems",
          {{"BillId", id},
           {"Rownum", ++row},
           {"Gid", line.goods},
           {"Gname", line.name},
           {"Class", line.class_name},
           {"Unit", line.unit},
           {"Qty", line.quantity},
           {"Actualqty", line.quantity},
           {"price", line.price},
           {"Amount", line.quantity * line.price},
           {trade.warehouse_property, "W1"}});
    }
    call("bill", trade.title, id, "Save");
    put("bill", {{"Auditor", "u2"}, {"Audittime", time_}});
    call("bill", trade.title, id, "Audit", Json::array({trade.audit_argument}));
  }

 private:
  std::string take_money(const Trade& trade, const std::string& company, const std::string& bill, int amount) {
    std::string id = new_object("voucher", trade.voucher_class, trade.voucher_title, nullptr);
    put("voucher", {{"ID", id},
                    {"Ccompany", company},
                    {"Paidamount", amount},
                    {"Amount", amount},
                    {"Nowpay", true},
                    {"Creator", "u1"},
                    {"Createtime", time_}});
    add("voucher", "colRPBItems", {{"BID", id}, {"Rownum", 1}, {"Amount", amount}});
    add("voucher", "colRPBRPItems",
        {{"BID", id}, {"Rownum", 1}, {"Rpablebid", bill}, {"Rpablebtype", trade.code}, {"Amount", amount}});
    call("voucher", trade.voucher_title, id, "Save");
    return id;
  }

  // The number that the new object proposes.
  std::string new_object(const std::string& name, const char* class_name, const char* title, const char* prefix) {
    Json arguments = Json::array({""});
    if (prefix) arguments.push_back(prefix);
    ask(interpreter_, {{"do", "new"}, {"as", name}, {"class", class_name}});
    const Json answer = ask(interpreter_, {{"do", "call"}, {"on", name}, {"verb", "GetNewId"}, {"args", arguments}});
    std::string id = answer.at("args").at(0).get<std::string>();
    show(title, id, "GetNewId", answer);
    return id;
  }

  void put(const std::string& name, const Json& values) {
    ask(interpreter_, {{"do", "put"}, {"on", name}, {"values", values}});
  }

  void add(const std::string& name, const char* rows, const Json& row) {
    ask(interpreter_, {{"do", "add"}, {"on", name}, {"rows", rows}, {"row", row}});
  }

  void call(const std::string& name, const char* title, const std::string& id, const std::string& verb,
            const Json& arguments = Json::array()) {
    show(title, id, verb, ask(interpreter_, {{"do", "call"}, {"on", name}, {"verb", verb}, {"args", arguments}}));
  }

  void show(const char* title, const std::string& id, const std::string& verb, const Json& answer) {
    const Long result = answer.at("result").get<Long>();
    out_ << "\n== " << title << ' ' << id << "  " << verb << ": " << result << '\n';
    if (const Json* trace = find(answer, "trace")) {
      for (const Json& statement : *trace) {
        out_ << "   " << statement.at(0).get<std::string>() << ": " << statement.at(1).get<std::string>() << '\n';
      }
    }
    if (result != 0) throw ado::RuntimeError(result, std::string(title) + ' ' + id + ' ' + verb + " failed");
    books_.show_changes();
  }

  Interpreter& interpreter_;
  std::ostream& out_;
  DemoBooks books_;
  std::string time_;
};

std::string fresh_file() {
  std::string folder = (std::filesystem::temp_directory_path() / "brunvik-demo-XXXXXX").string();
  if (!mkdtemp(folder.data())) {
    throw ado::RuntimeError(ado::error::provider_failed, "no folder can be made in the place of '" + folder + "'");
  }
  return folder + "/books.db";
}

// As a shell takes it for one word.
std::string shell_word(const std::string& text) {
  constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-+=:,./@%";
  if (text.find_first_not_of(plain) == std::string::npos) return text;
  std::string quoted = "'";
  for (const char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + '\'';
}

void say_what_is_next(const std::string& path, const std::string& command, std::ostream& out) {
  const std::string file = std::filesystem::absolute(path).string();
  out << "\n数据库文件: " << file
      << "\n下一步: echo '{\"do\":\"sql\",\"text\":\"select GId,CurrentQty from Inventory\"}' | " << shell_word(command)
      << " run --db " << shell_word(address_of_file(file)) << '\n';
}

}  // namespace

void demo(const DemoOptions& options, std::ostream& out) {
  const std::string address = options.address.empty() ? address_of_file(fresh_file()) : options.address;
  Interpreter interpreter(open_fresh_database(address), options.settings);
  Demo demo(interpreter, out);
  demo.enter_master_data();
  const Line printers{"G1", "激光打印机", "办公", "台", 10, 600};
  const Line drums{"G2", "硒鼓", "耗材", "支", 40, 50};
  demo.trade(purchase, "C1", {printers, drums}, 3'000);
  // The same goods at another price: the average moves.
  demo.trade(purchase, "C1", {{"G1", "激光打印机", "办公", "台", 5, 660}}, 0);
  demo.trade(sale, "C2", {{"G1", "激光打印机", "办公", "台", 4, 880}, {"G2", "硒鼓", "耗材", "支", 8, 75}}, 4'120);
  if (const std::string file = file_at(address); !file.empty()) say_what_is_next(file, options.command, out);
}

}  // namespace brunvik::host
