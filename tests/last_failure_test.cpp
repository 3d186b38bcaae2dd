// The last failure: what a verb's number stands for, and how long it is kept.
#include "brunvik/foundation/last_failure.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "brunvik/automation/automation.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/column_statement.h"
#include "brunvik/foundation/error_trap.h"
#include "brunvik/purchasing/purchase_receipt.h"
#include "brunvik/warehouse/stock_adjustment.h"
#include "tests/support/apartment.h"
#include "tests/support/last_failure_listener.h"
#include "tests/support/sample.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using test::ScriptedConnection;
using test::table;

constexpr std::string_view find_adjustment = "select * from StockBill where Id='TZD24030500001'";

class LastFailure : public ::testing::Test {
 protected:
  LastFailure() {
    adjustment.ADOConn = connection;
    adjustment.ID = "TZD24030500001";
  }

  // "number|text|statement"
  static std::string told() {
    const Failure& failure = last_failure();
    return std::to_string(failure.number) + "|" + failure.text + "|" + failure.statement;
  }

  test::NoticeRecorder host;
  test::FixedClock clock;
  std::shared_ptr<ScriptedConnection> connection = std::make_shared<ScriptedConnection>();
  test::Session session{connection};
  clsTZBill adjustment;
};

TEST_F(LastFailure, Of_a_silent_document_is_number_text_and_statement) {
  connection->fail("select * from StockBill ", ado::error::no_such_table, "no such table: StockBill");
  EXPECT_EQ(adjustment.Save(), ado::error::no_such_table);
  EXPECT_EQ(told(), "-2147217865|no such table: StockBill|" + std::string(find_adjustment));
  EXPECT_TRUE(host.notices.empty());
}

TEST_F(LastFailure, Is_forgotten_when_the_next_verb_begins) {
  connection->fail("select * from StockBill ", ado::error::no_such_table, "no such table: StockBill");
  adjustment.Save();
  EXPECT_EQ(adjustment.Save(), 0);
  EXPECT_EQ(told(), "0||");
}

TEST_F(LastFailure, Is_forgotten_when_a_procedure_begins) {
  connection->fail("select * from StockBill ", ado::error::no_such_table, "no such table: StockBill");
  adjustment.Save();
  EXPECT_EQ(GetKeyValue("k"), "");
  EXPECT_EQ(told(), "0||");
}

TEST_F(LastFailure, Is_forgotten_by_a_call_by_name_also_of_a_procedure_that_cannot_fail) {
  std::vector<Value> none;
  connection->fail("select * from StockBill ", ado::error::no_such_table, "no such table: StockBill");
  adjustment.Save();
  automation::call_procedure("IsConnected", none);
  EXPECT_EQ(told(), "0||");
  connection->fail("select * from StockBill ", ado::error::no_such_table, "no such table: StockBill");
  automation::call(adjustment, "Save", none);
  EXPECT_EQ(last_failure().number, ado::error::no_such_table);
  automation::call(*automation::create("InitBrunvikVariable"), "InitClase_PublicVariable", none);
  EXPECT_EQ(told(), "0||");
}

TEST_F(LastFailure, Of_a_verb_that_goes_on_is_told_beside_its_0) {
  connection->fail("select max(ID)", ado::error::timed_out, "database is locked");
  std::string number;
  EXPECT_EQ(adjustment.GetNewId(number), 0);
  EXPECT_EQ(number, "TZD24030500000");
  EXPECT_EQ(told(), "-2147217871|database is locked|select max(ID)  from StockBill where ID like 'TZD240305%' ");
}

TEST_F(LastFailure, Stays_when_more_is_done_without_a_failure_in_the_same_call) {
  clsPurchaseInBill receipt;
  receipt.ADOConn = connection;
  receipt.ID = "JHR24030500001";
  receipt.Nowpaybillid = "F1";
  // The voucher at the receipt's side can't be audited; nobody looks at that, and the receipt is costed behind it.
  connection->fail("Update RPVouchers", ado::error::timed_out, "database is locked");
  EXPECT_EQ(receipt.Audit(true), 0);
  EXPECT_EQ(last_failure().text, "database is locked");
  EXPECT_TRUE(last_failure().statement.starts_with("Update RPVouchers set Auditor=")) << last_failure().statement;
}

TEST_F(LastFailure, Is_the_last_one_where_several_things_fail) {
  EXPECT_EQ(trap([] {
              trap([] { throw ado::RuntimeError(ado::error::timed_out, "first", "select 1"); });
              trap([] { throw ado::RuntimeError(ado::error::no_such_table, "second", "select 2"); });
            }),
            0);
  EXPECT_EQ(told(), "-2147217865|second|select 2");
}

TEST_F(LastFailure, Is_none_where_a_verb_ends_with_a_result_of_its_own) {
  adjustment.ID.clear();
  EXPECT_EQ(adjustment.Save(), -1);
  EXPECT_EQ(told(), "0||");
}

TEST_F(LastFailure, That_a_worker_told_is_kept_behind_the_stop_that_ends_the_verb) {
  trap(" Save(): ", [] { worker(" AddPayBill(): ", [] { ado::raise(ado::error::overflow); }); });
  EXPECT_EQ(told(), "6|溢出|");
  EXPECT_EQ(host.notices, std::vector<std::string>{"提示信息| AddPayBill(): 溢出"});
}

TEST_F(LastFailure, Names_the_statement_also_where_the_connection_does_not) {
  connection->closed = true;
  EXPECT_EQ(adjustment.Save(), ado::error::object_closed);
  EXPECT_EQ(last_failure().statement, find_adjustment);
  adjustment.ADOConn = nullptr;
  EXPECT_EQ(adjustment.Save(), ado::error::object_not_set);
  EXPECT_EQ(last_failure().statement, find_adjustment);
}

TEST_F(LastFailure, On_a_closed_session_is_that_of_the_set_that_could_not_be_opened) {
  connection->closed = true;
  EXPECT_EQ(GetContactsCompanyField("C1", "FullName"), "");
  EXPECT_EQ(last_failure().number, ado::error::connection_closed);
  EXPECT_EQ(last_failure().statement, "select * from ContactsCompany where id='C1'");
}

TEST_F(LastFailure, Says_the_table_and_the_name_that_a_form_has_and_no_member) {
  const Members& members = test::Sample::table();
  trap([&] { Insert(members, {}, "insert into T(Id,Nowhere) values("); });
  EXPECT_EQ(told(), "3265|insert into T: no property is written to column Nowhere|insert into T(Id,Nowhere) values(");
  trap([&] { Update(members, {from("Amount", "Nobody")}, "update T set Amount =  where Id="); });
  EXPECT_EQ(told(), "438|update T: 对象不支持该属性或方法: Nobody|update T set Amount =  where Id=");
}

TEST_F(LastFailure, Is_told_of_whatever_a_host_throws) {
  trap([] { throw std::runtime_error("from a host's connection"); });
  EXPECT_EQ(told(), "51|内部错误|");
  trap([] { throw std::bad_alloc(); });
  EXPECT_EQ(told(), "7|内存溢出|");
}

TEST_F(LastFailure, Can_be_asked_for_where_the_notice_is_shown) {
  std::string seen;
  ado::set_notice([&](const ado::Notice&) { seen = told(); });
  connection->fail("BasicConfig", ado::error::timed_out, "database is locked");
  GetKeyValue("k");
  EXPECT_EQ(seen, "-2147217871|database is locked|select * from BasicConfig where keyname='k'");
}

TEST_F(LastFailure, Belongs_to_its_thread) {
  trap([] { ado::raise(ado::error::overflow); });
  std::string elsewhere;
  std::thread([&] { elsewhere = told(); }).join();
  EXPECT_EQ(elsewhere, "0||");
  EXPECT_EQ(told(), "6|溢出|");
}

TEST_F(LastFailure, Is_said_by_a_failed_expectation_and_by_no_other) {
  const auto said_by = [](testing::TestPartResult::Type type) {
    std::ostringstream out;
    test::LastFailureListener(out).OnTestPartResult({type, "a_test.cpp", 1, "differs"});
    return out.str();
  };
  trap([] { throw ado::RuntimeError(ado::error::no_such_table, "no such table: T", "select * from T"); });
  EXPECT_EQ(said_by(testing::TestPartResult::kNonFatalFailure),
            "  last failure: -2147217865 no such table: T\n  in:           select * from T\n");
  EXPECT_EQ(said_by(testing::TestPartResult::kSuccess), "");
  trap([] { ado::raise(ado::error::overflow); });
  EXPECT_EQ(said_by(testing::TestPartResult::kFatalFailure), "  last failure: 6 溢出\n");
  trap([] {});
  EXPECT_EQ(said_by(testing::TestPartResult::kFatalFailure), "");
}

}  // namespace
}  // namespace brunvik
