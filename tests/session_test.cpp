// The start of a session, and statements on its connection.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "brunvik/foundation/Brunvik_Variable.h"
#include "brunvik/foundation/ConnOPT_Function.h"
#include "brunvik/stock/InitBrunvikVariable.h"
#include "brunvik/stock/StockPoster.h"
#include "tests/support/apartment.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using Texts = std::vector<std::string>;
using test::ScriptedConnection;
using test::table;

TEST(InitBrunvikVariableTest, Nothing_happens_at_assignment) {
  test::Session guard;
  InitBrunvikVariable start;
  start.DATAType = access_dialect;
  start.OperatorId = "u7";
  start.ADOConn = std::make_shared<ScriptedConnection>();
  EXPECT_EQ(session().DATAType, "");
  EXPECT_EQ(session().OperatorId, "");
  EXPECT_EQ(session().ADOConn, nullptr);
  EXPECT_EQ(session().StockPoster, nullptr);
}

TEST(InitBrunvikVariableTest, Tells_of_a_dialect_that_is_neither_of_the_two_and_takes_it_all_the_same) {
  test::Session guard;
  test::NoticeRecorder host;
  InitBrunvikVariable start;
  for (const std::string_view known : {sql_server_dialect, access_dialect}) {
    start.DATAType = known;
    start.InitClase_PublicVariable();
    EXPECT_EQ(host.take(), Texts{});
  }
  start.DATAType = "[Microsoft SQLServer]";
  start.InitClase_PublicVariable();
  EXPECT_EQ(host.take(),
            Texts{"提示信息|InitClase_PublicVariable():DATAType 不是可识别的数据库类型：[Microsoft SQLServer]"});
  EXPECT_EQ(session().DATAType, "[Microsoft SQLServer]");
}

TEST(InitBrunvikVariableTest, Fills_the_session_and_gives_it_a_stock_poster) {
  test::Session guard;
  auto connection = std::make_shared<ScriptedConnection>();
  InitBrunvikVariable start;
  start.DATAType = access_dialect;
  start.OperatorId = "u7";
  start.ADOConn = connection;
  start.InitClase_PublicVariable();
  EXPECT_EQ(session().DATAType, "[Microsoft Access]");
  EXPECT_EQ(session().OperatorId, "u7");
  EXPECT_EQ(session().ADOConn, connection);
  ASSERT_NE(session().StockPoster, nullptr);
  EXPECT_EQ(session().StockPoster->ADOConn, connection);
  EXPECT_EQ(session().StockPoster->DATAType, "[Microsoft Access]");
  EXPECT_EQ(connection->statements, Texts{});
}

TEST(InitBrunvikVariableTest, A_second_start_replaces_everything) {
  auto first = std::make_shared<ScriptedConnection>();
  auto second = std::make_shared<ScriptedConnection>();
  test::Session guard(first);
  const auto poster = session().StockPoster;
  InitBrunvikVariable start;
  start.ADOConn = second;
  start.InitClase_PublicVariable();
  EXPECT_EQ(session().ADOConn, second);
  EXPECT_EQ(session().DATAType, "");
  EXPECT_EQ(session().OperatorId, "");
  EXPECT_NE(session().StockPoster, poster);
  EXPECT_EQ(poster->ADOConn, first);
}

TEST(SessionTest, Belongs_to_its_thread) {
  test::Session guard(std::make_shared<ScriptedConnection>());
  std::string elsewhere = "not looked at";
  std::thread([&] { elsewhere = session().DATAType; }).join();
  EXPECT_EQ(elsewhere, "");
  EXPECT_EQ(session().DATAType, "[Microsoft SQL Server]");
}

// Both procedures; they differ in the name that a notice has, and in what they make of a connection that is gone.
struct Road {
  const char* name;
  void (*run)(std::string&);
};

class ExecuteTest : public ::testing::TestWithParam<Road> {
 protected:
  std::string sent(std::string statement) {
    connection->statements.clear();
    GetParam().run(statement);
    argument = statement;
    return connection->statements.empty() ? "nothing" : connection->statements.back();
  }

  std::string notice(const std::string& text) const {
    return "提示信息|" + std::string(GetParam().name) + "():" + text;
  }

  std::shared_ptr<ScriptedConnection> connection = std::make_shared<ScriptedConnection>();
  test::Session guard{connection};
  test::NoticeRecorder host;
  std::string argument;
};

INSTANTIATE_TEST_SUITE_P(Both, ExecuteTest,
                         ::testing::Values(Road{"ExecuteSql", ExecuteSql},
                                           Road{"ExecuteNonQuerySql", ExecuteNonQuerySql}),
                         [](const auto& road) { return std::string(road.param.name); });

TEST_P(ExecuteTest, An_empty_statement_runs_nothing_and_shows_nothing) {
  EXPECT_EQ(sent(""), "nothing");
  EXPECT_EQ(host.notices, Texts{});
}

TEST_P(ExecuteTest, The_whole_statement_goes_out_in_upper_case_its_values_too) {
  EXPECT_EQ(sent("update goods set AverageCost=12.5 where goods.id='g1 é 螺丝'"),
            "UPDATE GOODS SET AVERAGECOST=12.5 WHERE GOODS.ID='G1 É 螺丝'");
}

TEST_P(ExecuteTest, The_argument_is_left_rewritten) {
  sent("update t set flag=true");
  EXPECT_EQ(argument, "UPDATE T SET FLAG=1");
}

TEST_P(ExecuteTest, The_words_true_and_false_beside_a_comma_or_an_equals_sign_become_1_and_0) {
  const std::vector<std::pair<const char*, const char*>> statements{
      {"values(1,True)", "VALUES(1,1)"},
      {"values(True,1)", "VALUES(1,1)"},
      {"set a= True", "SET A= 1"},
      {"set a=true where b", "SET A=1 WHERE B"},
      {"values(1,False)", "VALUES(1,0)"},
      {"values(False,1)", "VALUES(0,1)"},
      {"set a= False", "SET A= 0"},
      {"set a=false", "SET A=0"},
      {"values(true,false,true,false)", "VALUES(1,0,1,0)"},
  };
  for (const auto& [statement, text] : statements) EXPECT_EQ(sent(statement), text) << statement;
}

TEST_P(ExecuteTest, The_words_in_other_places_are_left_alone) {
  for (const char* statement : {"VALUES(TRUE)", "SET A =  TRUE", "WHERE TRUE", "VALUES( TRUE )", "VALUES('TRUE')"}) {
    EXPECT_EQ(sent(statement), statement);
  }
}

TEST_P(ExecuteTest, The_rewriting_is_blind_and_reaches_into_texts_and_names) {
  EXPECT_EQ(sent("set a='X,True'"), "SET A='X,1'");
  EXPECT_EQ(sent("insert into t(isTrue,b)"), "INSERT INTO T(IS1,B)");
  EXPECT_EQ(sent("set a=TrueColour"), "SET A=1COLOUR");
}

TEST_P(ExecuteTest, The_rewriting_is_the_same_in_every_dialect) {
  for (const char* dialect : {"[Microsoft Access]", ""}) {
    session().DATAType = dialect;
    EXPECT_EQ(sent("set a=true"), "SET A=1") << dialect;
  }
}

TEST_P(ExecuteTest, A_statement_that_fails_shows_its_notice_and_returns) {
  connection->fail("DELETE", ado::error::statement_refused, "syntax error");
  sent("delete from");
  EXPECT_EQ(host.notices, Texts{notice("syntax error")});
}

TEST(ExecuteSqlTest, Leaves_in_silence_where_the_connection_is_gone) {
  test::NoticeRecorder host;
  auto connection = std::make_shared<ScriptedConnection>();
  connection->closed = true;
  for (const auto& gone : {ado::ConnectionReference(connection), ado::ConnectionReference()}) {
    test::Session guard(gone);
    std::string statement = "delete from RPBItems";
    ExecuteSql(statement);
  }
  EXPECT_EQ(host.notices, Texts{});
  EXPECT_EQ(connection->statements, Texts{});
}

TEST(ExecuteNonQuerySqlTest, Shows_its_notice_where_the_connection_is_gone) {
  test::NoticeRecorder host;
  auto connection = std::make_shared<ScriptedConnection>();
  connection->closed = true;
  std::string statement = "delete from RPBItems";
  {
    test::Session guard(connection);
    ExecuteNonQuerySql(statement);
  }
  {
    test::Session guard(nullptr);
    ExecuteNonQuerySql(statement);
  }
  EXPECT_EQ(host.notices, (Texts{"提示信息|ExecuteNonQuerySql():对象关闭时，不允许操作。",
                                 "提示信息|ExecuteNonQuerySql():对象变量或 With 块变量未设置"}));
}

TEST(IsConnectedTest, Says_whether_the_session_connection_is_set_and_open) {
  auto connection = std::make_shared<ScriptedConnection>();
  test::Session guard(connection);
  EXPECT_TRUE(IsConnected());
  connection->closed = true;
  EXPECT_FALSE(IsConnected());
  session().ADOConn = nullptr;
  EXPECT_FALSE(IsConnected());
}

TEST(Open_RecordsetTest, Replaces_the_set_by_a_closed_one_on_the_session_connection) {
  test::NoticeRecorder host;
  auto connection = std::make_shared<ScriptedConnection>();
  connection->answer("select 1", table({"One"}, {{1}}));
  test::Session guard(connection);
  ado::Recordset set = table({"Old"}, {{"old"}});
  Open_Recordset(set);
  EXPECT_EQ(set.State(), 0);
  set.Open("select 1");
  EXPECT_EQ(set.value("One"), Value(1));
  EXPECT_EQ(host.notices, Texts{});
}

TEST(Open_RecordsetTest, Without_a_session_connection_it_shows_its_notice) {
  test::NoticeRecorder host;
  ado::Recordset set;
  {
    test::Session guard(nullptr);
    Open_Recordset(set);
  }
  auto connection = std::make_shared<ScriptedConnection>();
  connection->closed = true;
  {
    test::Session guard(connection);
    Open_Recordset(set);
  }
  EXPECT_EQ(host.notices,
            (Texts{"提示信息|Open_Recordset():对象变量或 With 块变量未设置",
                   "提示信息|Open_Recordset():连接无法用于执行此操作。在此上下文中它可能已被关闭或无效。"}));
}

TEST(Close_RecordsetTest, Closes_a_set_whatever_its_state) {
  test::NoticeRecorder host;
  ado::Recordset never_opened;
  ado::Recordset set = table({"Id"}, {{"a"}});
  Close_Recordset(never_opened);
  Close_Recordset(set);
  Close_Recordset(set);
  EXPECT_EQ(set.State(), 0);
  EXPECT_EQ(host.notices, Texts{});
}

}  // namespace
}  // namespace brunvik
