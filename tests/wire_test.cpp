// The wire: what a host's hook sees of each statement.
#include "brunvik/ado/wire.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/warehouse/stock_adjustment.h"
#include "tests/support/apartment.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using Texts = std::vector<std::string>;
using test::ScriptedConnection;

class Wire : public ::testing::Test {
 protected:
  Wire() {
    adjustment.ADOConn = connection;
    adjustment.ID = "TZD24030500001";
    ado::set_statement_hook([this](const ado::SentStatement& sent) {
      seen.push_back(std::string(name_of(sent.road)) + "|" + std::string(sent.text) + "|" +
                     std::to_string(sent.outcome));
      microseconds = sent.microseconds;
    });
  }
  ~Wire() override { ado::set_statement_hook({}); }

  Texts take() { return std::exchange(seen, {}); }

  test::NoticeRecorder host;
  test::FixedClock clock;
  std::shared_ptr<ScriptedConnection> connection = std::make_shared<ScriptedConnection>();
  test::Session session{connection};
  clsTZBill adjustment;
  Texts seen;
  std::int64_t microseconds = -1;
};

TEST_F(Wire, Shows_a_bill_s_own_statements_on_the_road_of_the_bill) {
  EXPECT_EQ(adjustment.Delete(), 0);
  EXPECT_EQ(take(), (Texts{"bill|delete from StockBillItems where BillId='TZD24030500001'|0",
                           "bill|delete from stockbill where Id='TZD24030500001'|0"}));
}

TEST_F(Wire, Shows_the_statements_of_procedures_on_the_road_of_the_session) {
  std::string number;
  adjustment.GetNewId(number);
  std::string statement = "delete from goods";
  ExecuteNonQuerySql(statement);
  GetContactsCompanyField("C1", "FullName");
  EXPECT_EQ(take(), (Texts{"session|select max(ID)  from StockBill where ID like 'TZD240305%' |0",
                           "session|DELETE FROM GOODS|0", "session|select * from ContactsCompany where id='C1'|0"}));
}

TEST_F(Wire, Shows_a_refused_statement_with_its_number) {
  connection->fail("select * from StockBill ", ado::error::no_such_table, "no such table: StockBill");
  EXPECT_EQ(adjustment.Save(), ado::error::no_such_table);
  connection->closed = true;
  EXPECT_EQ(adjustment.Save(), ado::error::object_closed);
  EXPECT_EQ(take(), (Texts{"bill|select * from StockBill where Id='TZD24030500001'|-2147217865",
                           "bill|select * from StockBill where Id='TZD24030500001'|3704"}));
}

TEST_F(Wire, Shows_no_statement_that_finds_no_connection) {
  adjustment.ADOConn = nullptr;
  EXPECT_EQ(adjustment.Save(), ado::error::object_not_set);
  EXPECT_EQ(take(), Texts{});
}

TEST_F(Wire, Does_not_show_what_the_host_sends_itself) {
  connection->Execute("select 1");
  EXPECT_EQ(take(), Texts{});
}

TEST_F(Wire, Has_the_time_that_the_connection_took) {
  class Slow final : public ado::Connection {
   public:
    ado::Recordset Execute(std::string_view) override {
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
      throw std::runtime_error("a host's own");
    }
    void BeginTrans() override {}
    void CommitTrans() override {}
    void RollbackTrans() override {}
    ado::Long State() const noexcept override { return 1; }
  };
  adjustment.ADOConn = std::make_shared<Slow>();
  EXPECT_EQ(adjustment.Save(), ado::error::internal);
  EXPECT_EQ(take(), Texts{"bill|select * from StockBill where Id='TZD24030500001'|51"});
  EXPECT_GE(microseconds, 2'000);
  EXPECT_LT(microseconds, 60'000'000);
}

TEST_F(Wire, Whose_hook_fails_does_not_stop_the_work_that_it_watches) {
  ado::set_statement_hook([](const ado::SentStatement&) { throw std::runtime_error("no room for the log"); });
  EXPECT_EQ(adjustment.Save(), 0);
  EXPECT_EQ(connection->statements.size(), 2U);
  connection->fail("select * from StockBill ", ado::error::no_such_table, "no such table: StockBill");
  EXPECT_EQ(adjustment.Save(), ado::error::no_such_table);
}

TEST_F(Wire, Shows_nothing_any_more_behind_an_empty_hook) {
  ado::set_statement_hook({});
  EXPECT_EQ(adjustment.Save(), 0);
  EXPECT_EQ(take(), Texts{});
}

TEST_F(Wire, Belongs_to_the_thread_that_set_its_hook) {
  std::thread([&] { adjustment.Save(); }).join();
  EXPECT_EQ(take(), Texts{});
  EXPECT_EQ(connection->statements.size(), 2U);
}

}  // namespace
}  // namespace brunvik
