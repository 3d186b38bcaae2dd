// Two users at work on the same books at once: what goes wrong between a read and the write that follows from it, and
// that a transaction of the host's own round both prevents it.
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <functional>
#include <future>

#include "brunvik/ado/wire.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/warehouse/other_stock_document.h"
#include "drivers/sqlite/connection.h"
#include "tests/support/apartment.h"
#include "tests/support/books.h"
#include "tests/support/folder.h"
#include "tests/support/mariadb.h"

namespace brunvik::test {
namespace {

using Texts = std::vector<std::string>;

struct Engine {
  std::string name;
  // A connection for each user to the same books, which are laid and hold nothing. Where they lie goes with the folder.
  std::function<std::array<ado::ConnectionReference, 2>(const Folder& folder)> open;
};

const std::vector<Engine>& engines() {
  static const std::vector<Engine> list = [] {
    using Two = std::array<ado::ConnectionReference, 2>;
    std::vector<Engine> engines{{"sqlite", [](const Folder& folder) -> Two {
                                   return {lay_books(folder.file("books.db")), sqlite::open(folder.file("books.db"))};
                                 }}};
    if (has_mariadb()) {
      engines.push_back({"mariadb", [](const Folder&) -> Two {
                           const auto laid = std::make_shared<MariaDbBooks>();
                           const auto open = [&laid] {
                             auto books = laid->open();
                             return ado::ConnectionReference(books.get(),
                                                             [laid, books](ado::Connection*) { books->Close(); });
                           };
                           return {open(), open()};
                         }});
    }
    return engines;
  }();
  return list;
}

enum class Bracket { none, transaction };

using Middle = std::function<void()>;

// What a user does; in the middle it has read, and not yet written.
using Work = std::function<void(std::size_t user, const ado::ConnectionReference& books, const Middle& middle)>;

class TwoUsers : public ::testing::TestWithParam<Engine> {
 protected:
  // The first user stops in the middle, until the second is done or is known to wait for the first.
  void at_once(Bracket bracket, const Work& work) {
    std::future<void> second;
    const auto start_the_second = [&] {
      second = std::async(std::launch::async, [&] { as_user(1, bracket, work, [] {}); });
      if (bracket == Bracket::none) {
        second.wait();
      } else {
        EXPECT_EQ(second.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
      }
    };
    as_user(0, bracket, work, start_the_second);
    second.get();
  }

  Texts stored(std::string_view select) { return records(*books_[0], select); }

  ado::ConnectionReference books() { return books_[0]; }

 private:
  void as_user(std::size_t user, Bracket bracket, const Work& work, const Middle& middle) {
    const FixedClock clock;
    const Session session(books_[user]);
    if (bracket == Bracket::transaction) books_[user]->BeginTrans();
    work(user, books_[user], middle);
    if (bracket == Bracket::transaction) books_[user]->CommitTrans();
  }

  Folder folder_;
  std::array<ado::ConnectionReference, 2> books_ = GetParam().open(folder_);
};

void receive_for(std::size_t user, const ado::ConnectionReference& books, const Middle& middle) {
  clsOthersInBill bill;
  bill.ADOConn = books;
  EXPECT_EQ(bill.GetNewId(bill.ID), 0);
  middle();
  bill.Remarks = user == 0 ? "first" : "second";
  EXPECT_EQ(bill.Save(), 0);
}

constexpr std::string_view all_bills = "select Id,Remarks from StockBill order by Id";

TEST_P(TwoUsers, Who_are_proposed_the_same_number_write_one_bill_over_the_other) {
  at_once(Bracket::none, receive_for);
  EXPECT_EQ(stored(all_bills), Texts{"QTR24030500001|first"});
}

TEST_P(TwoUsers, Who_have_their_number_proposed_within_their_transactions_get_two) {
  at_once(Bracket::transaction, receive_for);
  EXPECT_EQ(stored(all_bills), (Texts{"QTR24030500001|first", "QTR24030500002|second"}));
}

// Ten pieces at 10 are in stock. The first user has received ten at 20, the second ten at 40, and both audit.
class TwoAudits : public TwoUsers {
 protected:
  TwoAudits() {
    run(*books(), {"insert into goods(id,Gname,Class,Unit,Model1,Model2,AverageCost) "
                   "values('G1','螺丝','五金','个','','',10)",
                   "insert into Inventory(WID,GId,Model1,Model2,Status,Class,Unit,InQty,OutQty,CurrentQty,Remarks) "
                   "values('W1','G1','','',0,'五金','个',10,0,10,'')"});
    const FixedClock clock;
    const Session session(books());
    for (const std::size_t user : {0U, 1U}) {
      clsPurchaseInBill receipt;
      receipt.ADOConn = books();
      receipt.ID = number(user);
      StockRow& row = receipt.colBillItems.add();
      row.BillId = receipt.ID, row.Rownum = 1;
      row.Gid = "G1", row.Class = "五金", row.Unit = "个";
      row.Qty = row.Actualqty = 10;
      row.price = Money::from_whole(user == 0 ? 20 : 40);
      row.Receiver = "W1";
      EXPECT_EQ(receipt.Save(), 0);
    }
  }

  static std::string number(std::size_t user) { return user == 0 ? "PRK24030500001" : "PRK24030500002"; }

  static void audit(std::size_t user, const ado::ConnectionReference& books, const Middle& middle) {
    clsPurchaseInBill receipt;
    receipt.ADOConn = books;
    EXPECT_EQ(receipt.LoadById(number(user)), 0);
    bool met = false;
    ado::set_statement_hook([&](const ado::SentStatement& sent) {
      if (met || !sent.text.starts_with("select goods.AverageCost,sum(")) return;
      met = true;
      middle();
    });
    EXPECT_EQ(receipt.Audit(true), 0);
    ado::set_statement_hook({});
    EXPECT_TRUE(met);
  }

  Texts stock() { return stored("select AverageCost,CurrentQty from goods inner join Inventory on goods.id=GId"); }
};

TEST_P(TwoAudits, Who_read_the_same_average_lose_the_price_of_one_of_them) {
  at_once(Bracket::none, audit);
  EXPECT_EQ(stock(), Texts{"15|30"});
}

TEST_P(TwoAudits, Who_audit_within_their_transactions_keep_both_prices_in_the_average) {
  at_once(Bracket::transaction, audit);
  EXPECT_EQ(stock(), Texts{"23.3333|30"});
}

INSTANTIATE_TEST_SUITE_P(On, TwoUsers, ::testing::ValuesIn(engines()),
                         [](const auto& engine) { return engine.param.name; });
INSTANTIATE_TEST_SUITE_P(On, TwoAudits, ::testing::ValuesIn(engines()),
                         [](const auto& engine) { return engine.param.name; });

}  // namespace
}  // namespace brunvik::test
