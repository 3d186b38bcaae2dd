#include "tests/support/client.h"

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <exception>
#include <fstream>
#include <utility>

#include "brunvik/ado/errors.h"
#include "brunvik/ado/wire.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/sales/sales_issue.h"
#include "brunvik/settlement/pay_bill.h"
#include "brunvik/warehouse/other_stock_document.h"
#include "tests/support/apartment.h"
#include "tests/support/books.h"

namespace brunvik::test {

namespace {

constexpr std::string_view shared_goods = "G";
constexpr std::string_view shared_receipt = "JHR24030100001";

std::string own_goods(int client) { return "G" + std::to_string(client); }
std::string own_warehouse(int client) { return "W" + std::to_string(client); }

// A quantity that no binary fraction names.
constexpr Single shared_quantity = 0.1F;

class Day {
 public:
  Day(int client, ado::ConnectionReference books) : client_(client), books_(std::move(books)) {}

  void post(int document) {
    using Posting = void (Day::*)() const;
    constexpr std::array<Posting, 4> postings{&Day::receive, &Day::buy, &Day::sell, &Day::pay};
    (this->*postings[static_cast<std::size_t>(document) % postings.size()])();
  }

 private:
  void receive() const {
    clsOthersInBill bill;
    bill.ADOConn = books_;
    if (bill.GetNewId(bill.ID) != 0) return;
    add_row(bill, std::string(shared_goods), shared_quantity).Receiver = "W";
    if (bill.Save() == 0) bill.Audit();
  }

  void buy() const {
    clsPurchaseInBill bill;
    bill.ADOConn = books_;
    if (bill.GetNewId(bill.ID) != 0) return;
    bill.Vendor = "K1";
    bill.Amount = bill.Closeamount = Money::parse("45.5");
    add_row(bill, own_goods(client_), 3).Receiver = own_warehouse(client_);
    add_row(bill, own_goods(client_), 7).Receiver = "W";
    if (bill.Save() == 0) bill.Audit(true);
  }

  void sell() const {
    clsSalesOutBill bill;
    bill.ADOConn = books_;
    if (bill.GetNewId(bill.ID, "XSC") != 0) return;
    bill.ClientId = "K2";
    bill.Amount = bill.Closeamount = Money::parse("20");
    add_row(bill, own_goods(client_), 2).Supplier = own_warehouse(client_);
    add_row(bill, std::string(shared_goods), 3 * shared_quantity).Supplier = "W";
    if (bill.Save() == 0) bill.Audit(false);
  }

  void pay() const {
    clsPayBill voucher;
    voucher.ADOConn = books_;
    if (voucher.GetNewId(voucher.ID) != 0) return;
    voucher.Ccompany = "K1";
    voucher.Paidamount = voucher.Amount = Money::parse("0.3");
    PaymentRow& money = voucher.colRPBItems.add();
    money.BID = voucher.ID;
    money.Rownum = 1;
    money.MeansOfPayment = 1;
    money.Amount = voucher.Amount;
    SettledRow& settled = voucher.colRPBRPItems.add();
    settled.BID = voucher.ID;
    settled.Rownum = 1;
    settled.Rpablebid = shared_receipt;
    settled.Rpablebtype = static_cast<Byte>(bill_type::purchase_receipt);
    settled.Amount = voucher.Amount;
    if (voucher.Save() == 0) voucher.Audite("u1", "2024-03-05 17:00:00");
  }

  template <class Bill>
  static StockRow& add_row(Bill& bill, const std::string& goods, Single quantity) {
    StockRow& row = bill.colBillItems.add();
    row.BillId = bill.ID;
    row.Rownum = static_cast<Integer>(bill.colBillItems.Count());
    row.Gid = goods;
    row.Class = "五金";
    row.Unit = "盒";
    row.Qty = row.Actualqty = quantity;
    row.price = Money::parse("4.55");
    row.Amount = Money::parse("10");
    return row;
  }

  int client_;
  ado::ConnectionReference books_;
};

void note(std::ofstream& notes, Long outcome, std::string statement) {
  std::replace(statement.begin(), statement.end(), '\n', ' ');
  notes << milliseconds_of_clients() << '\t' << outcome << '\t' << statement << std::endl;
}

void work_through(int number, const Client::Work& work, const std::filesystem::path& path) {
  std::ofstream notes(path, std::ios::binary);
  ado::set_notice([](const ado::Notice&) {});
  ado::set_statement_hook([&](const ado::SentStatement& sent) { note(notes, sent.outcome, std::string(sent.text)); });
  const FixedClock clock("2024-03-" + std::to_string(10 + number) + " 10:00:00");
  const ado::ConnectionReference books = work.open();
  const Session session(books);
  Day day(number, books);
  for (int done = 0; work.goes_on(done); ++done) day.post(done);
}

}  // namespace

bool Told::is_of_unknown_fate() const { return outcome == ado::error::provider_failed; }

bool Told::changes_the_books() const { return !statement.starts_with("select") && !statement.starts_with("SELECT"); }

void lay_for_clients(ado::Connection& books, int clients) {
  const auto lay_goods = [&](const std::string& goods) {
    run(books, {"insert into goods(id,Gname,Class,Unit,Model1,Model2,AverageCost) values('" + goods +
                "','螺丝','五金','盒','','',4)"});
  };
  const auto lay_stock = [&](const std::string& warehouse, const std::string& goods) {
    run(books,
        {"insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) values('" +
         warehouse + "','" + goods + "','','',0,'五金','盒',1000,0,1000,'')"});
  };
  lay_goods(std::string(shared_goods));
  lay_stock("W", std::string(shared_goods));
  for (int client = 0; client < clients; ++client) {
    lay_goods(own_goods(client));
    lay_stock(own_warehouse(client), own_goods(client));
    lay_stock("W", own_goods(client));
  }
  run(books, {"insert into StockBill(Id,Type,Status,PaidAmount,AdvanceAmount,CloseAmount,Amount,ClosedTag) values('" +
              std::string(shared_receipt) + "',2,3,0,0,10000000,10000000,0)"});
}

Client::Client(int number, const Work& work, std::filesystem::path notes) : notes_(std::move(notes)), process_(fork()) {
  if (process_ != 0) return;
  try {
    work_through(number, work, notes_);
  } catch (const std::exception& failure) {
    std::ofstream(notes_, std::ios::app) << milliseconds_of_clients() << "\t-1\t" << failure.what() << std::endl;
    _exit(1);
  }
  _exit(0);
}

Client::~Client() {
  if (process_ <= 0) return;
  kill(process_, SIGKILL);
  waitpid(process_, nullptr, 0);
}

bool Client::has_ended_well() {
  int status = -1;
  waitpid(std::exchange(process_, 0), &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::vector<Told> Client::told() const {
  std::vector<Told> all;
  std::ifstream notes(notes_, std::ios::binary);
  Told next{};
  while (notes >> next.milliseconds >> next.outcome) {
    notes.get();
    if (!std::getline(notes, next.statement)) break;
    all.push_back(next);
  }
  return all;
}

std::int64_t milliseconds_of_clients() {
  using std::chrono::steady_clock;
  return std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace brunvik::test
