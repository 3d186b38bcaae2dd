// The session, the connections of both roads, rehearsed failures, the host's own statements.
#include "tests/host_conversation.h"

namespace brunvik::host {
namespace {

using HostSession = TracedHostTest;

constexpr std::string_view date_value = R"({"do":"proc","name":"GetSqlVal","args":[{"date":"2024-03-05 10:00:00"}]})";
constexpr std::string_view new_id = R"({"do":"call","on":"b","verb":"GetNewId","args":[""]})";
constexpr std::string_view save = R"({"do":"call","on":"b","verb":"Save"})";

TEST_F(HostSession, A_session_starts_with_the_dialect_and_the_operator_of_the_settings) {
  EXPECT_EQ(answer(date_value).at("result"), "'2024-03-05 10:00:00'");
}

TEST_F(HostSession, New_values_are_put_over_the_present_ones) {
  EXPECT_EQ(interpreter.answer(R"({"do":"session","values":{"DATAType":"[Microsoft Access]"}})"),
            R"({"line":3,"ok":true})");
  EXPECT_EQ(answer(date_value).at("result"), "#2024-03-05 10:00:00#");
  answer(R"({"do":"session","values":{"OperatorId":"u2"}})");
  EXPECT_EQ(answer(date_value).at("result"), "#2024-03-05 10:00:00#");
  answer(R"({"do":"session","values":{"dataType":"[Microsoft SQL Server]"}})");
  EXPECT_EQ(answer(date_value).at("result"), "'2024-03-05 10:00:00'");
}

TEST_F(HostSession, A_refused_value_leaves_the_session_as_it_is) {
  EXPECT_EQ(answer(R"({"do":"session","values":{"DATAType":"[Microsoft Access]","None":1}})")["error"]["number"], 438);
  EXPECT_EQ(answer(date_value).at("result"), "'2024-03-05 10:00:00'");
}

TEST_F(HostSession, A_session_can_be_started_by_its_own_class) {
  answer(R"({"do":"new","as":"s","class":"InitBrunvikVariable"})");
  answer(R"({"do":"put","on":"s","values":{"DATAType":"[Microsoft Access]"}})");
  EXPECT_EQ(answer(date_value).at("result"), "'2024-03-05 10:00:00'");
  EXPECT_EQ(answer(R"({"do":"call","on":"s","verb":"InitClase_PublicVariable"})").at("result"), nullptr);
  EXPECT_EQ(answer(date_value).at("result"), "#2024-03-05 10:00:00#");
  EXPECT_EQ(answer(new_id).at("trace").at(0).at(0), "session");
  answer(R"({"do":"session","values":{"OperatorId":"u2"}})");
  EXPECT_EQ(answer(date_value).at("result"), "#2024-03-05 10:00:00#");
}

TEST_F(HostSession, A_closed_bill_connection_stops_the_bill_and_not_the_session) {
  EXPECT_EQ(answer(R"({"do":"connection","of":"bill","is":"closed"})").at("ok"), true);
  EXPECT_EQ(answer(save).at("result"), 3704);
  EXPECT_EQ(answer(new_id).at("args").at(0), "QTR24030500001");
  answer(R"({"do":"connection","of":"bill","is":"open"})");
  EXPECT_EQ(answer(save).at("result"), 0);
}

TEST_F(HostSession, A_closed_session_connection_stops_the_session_and_not_the_bill) {
  answer(R"({"do":"connection","of":"session","is":"closed"})");
  EXPECT_EQ(answer(R"({"do":"proc","name":"IsConnected"})").at("result"), false);
  EXPECT_EQ(answer(new_id).at("args").at(0), "QTR24030500000");
  EXPECT_EQ(answer(save).at("result"), 0);
  answer(R"({"do":"connection","of":"session","is":"open"})");
  EXPECT_EQ(answer(R"({"do":"proc","name":"IsConnected"})").at("result"), true);
}

TEST_F(HostSession, A_statement_for_a_closed_connection_is_shown_as_handed_over) {
  answer(R"({"do":"connection","of":"bill","is":"closed"})");
  EXPECT_EQ(answer(save).at("trace").dump(), R"([["bill","select * from StockBill where Id='QTR24030500001'"]])");
}

TEST_F(HostSession, An_unset_bill_connection_is_met_by_present_and_new_objects_until_it_is_open_again) {
  answer(R"({"do":"connection","of":"bill","is":"unset"})");
  EXPECT_EQ(answer(save).at("result"), 91);
  EXPECT_EQ(answer(save).at("trace").dump(), "[]");
  answer(R"({"do":"new","as":"n","class":"clsOthersInBill"})");
  answer(R"({"do":"put","on":"n","values":{"ID":"QTR24030500009"}})");
  EXPECT_EQ(answer(R"({"do":"call","on":"n","verb":"Save"})").at("result"), 91);
  answer(R"({"do":"connection","of":"bill","is":"open"})");
  EXPECT_EQ(answer(save).at("result"), 0);
  EXPECT_EQ(answer(R"({"do":"call","on":"n","verb":"Save"})").at("result"), 0);
}

TEST_F(HostSession, An_unset_session_connection_stays_unset_in_a_new_session) {
  answer(R"({"do":"connection","of":"session","is":"unset"})");
  answer(R"({"do":"session","values":{"OperatorId":"u2"}})");
  const Json answered = answer(new_id);
  EXPECT_EQ(answered.at("args").at(0), "QTR24030500000");
  EXPECT_EQ(answered.at("notices").dump(),
            R"([{"title":"提示信息","text":"Get_BillMaxId():对象变量或 With 块变量未设置"}])");
  answer(R"({"do":"connection","of":"session","is":"open"})");
  EXPECT_EQ(answer(new_id).at("args").at(0), "QTR24030500001");
}

TEST_F(HostSession, A_connection_or_a_state_of_another_name_is_refused) {
  EXPECT_EQ(answer(R"({"do":"connection","of":"both","is":"open"})")["error"]["number"], 13);
  EXPECT_EQ(answer(R"({"do":"connection","of":"bill","is":"shut"})")["error"]["number"], 13);
  EXPECT_EQ(answer(R"({"do":"connection","is":"open"})")["error"]["number"], 450);
}

TEST_F(HostSession, A_rehearsed_failure_is_not_sent_and_stands_in_the_trace_with_its_number) {
  EXPECT_EQ(answer(R"({"do":"fail","at":3,"of":"any","number":-2147217900,"text":"broken"})").at("ok"), true);
  answer(R"({"do":"add","on":"b","rows":"colBillItems","row":{"BillId":"QTR24030500001","Rownum":1}})");
  const Json answered = answer(save);
  EXPECT_EQ(answered.at("result"), -2147217900);
  ASSERT_EQ(answered.at("trace").size(), 3U);
  EXPECT_EQ(answered.at("trace").at(1).size(), 2U);
  EXPECT_EQ(answered.at("trace").at(2).size(), 3U);
  EXPECT_EQ(answered.at("trace").at(2).at(2), -2147217900);
  EXPECT_EQ(answer(R"({"do":"sql","text":"select count(*) as n from StockBillItems"})").at("rows").dump(), "[[0]]");
  EXPECT_EQ(answer(save).at("result"), 0);
}

TEST_F(HostSession, The_text_of_a_rehearsed_failure_is_that_of_the_notice) {
  answer(R"({"do":"fail","at":1,"of":"session","number":-2147467259,"text":"the line is down"})");
  EXPECT_EQ(answer(new_id).at("notices").dump(), R"([{"title":"提示信息","text":"Get_BillMaxId():the line is down"}])");
}

TEST_F(HostSession, A_failure_of_one_road_counts_the_statements_of_that_road_alone) {
  answer(R"({"do":"fail","at":2,"of":"session","number":5})");
  EXPECT_EQ(answer(save).at("result"), 0);
  EXPECT_EQ(answer(new_id).at("args").at(0), "QTR24030500002");
  EXPECT_EQ(answer(new_id).at("args").at(0), "QTR24030500000");
  EXPECT_EQ(answer(new_id).at("args").at(0), "QTR24030500002");
}

TEST_F(HostSession, Several_failures_can_wait_each_with_its_own_count) {
  answer(R"({"do":"fail","at":1,"of":"bill","number":6})");
  answer(R"({"do":"fail","at":2,"of":"any","number":11})");
  EXPECT_EQ(answer(save).at("result"), 6);
  EXPECT_EQ(answer(save).at("result"), 11);
  EXPECT_EQ(answer(save).at("result"), 0);
}

TEST_F(HostSession, The_host_s_own_statements_are_not_counted) {
  answer(R"({"do":"fail","at":1,"of":"any","number":6})");
  EXPECT_TRUE(answer(R"({"do":"sql","text":"select * from goods"})").contains("rows"));
  EXPECT_EQ(answer(save).at("result"), 6);
}

TEST_F(HostSession, A_failure_without_a_sensible_place_is_refused) {
  EXPECT_EQ(answer(R"({"do":"fail","at":0,"number":5})")["error"]["number"], 13);
  EXPECT_EQ(answer(R"({"do":"fail","at":1.5,"number":5})")["error"]["number"], 13);
  EXPECT_EQ(answer(R"({"do":"fail","at":1,"of":"none","number":5})")["error"]["number"], 13);
  EXPECT_EQ(answer(R"({"do":"fail","at":1,"number":4294967296})")["error"]["number"], 13);
  EXPECT_EQ(answer(save).at("result"), 0);
}

constexpr std::string_view stored = R"({"do":"sql","text":"select Id from StockBill"})";
constexpr std::string_view begin = R"({"do":"transaction","is":"begin"})";
constexpr std::string_view commit = R"({"do":"transaction","is":"commit"})";
constexpr std::string_view rollback = R"({"do":"transaction","is":"rollback"})";

TEST_F(HostSession, A_transaction_of_the_host_takes_back_the_verbs_in_it) {
  EXPECT_EQ(interpreter.answer(begin), R"({"line":3,"ok":true})");
  EXPECT_EQ(answer(save).at("result"), 0);
  EXPECT_EQ(answer(stored).at("rows").dump(), R"([["QTR24030500001"]])");
  EXPECT_EQ(answer(rollback).at("ok"), true);
  EXPECT_EQ(answer(stored).at("rows").dump(), "[]");
}

TEST_F(HostSession, A_transaction_of_the_host_that_is_committed_keeps_the_verbs_in_it) {
  answer(begin);
  EXPECT_EQ(answer(save).at("result"), 0);
  EXPECT_EQ(answer(commit).at("ok"), true);
  EXPECT_EQ(answer(rollback).at("error").at("number"), -2147168242);
  EXPECT_EQ(answer(stored).at("rows").dump(), R"([["QTR24030500001"]])");
}

TEST_F(HostSession, A_transaction_that_the_database_refuses_is_an_error_of_the_host) {
  EXPECT_EQ(answer(commit).at("error").dump(), R"({"number":-2147168242,"description":"没有打开的事务。"})");
  answer(begin);
  EXPECT_EQ(answer(begin).at("error").dump(),
            R"({"number":-2147168237,"description":"只能打开一个事务，而已有一个事务打开。"})");
  EXPECT_EQ(answer(R"({"do":"transaction","is":"open"})").at("error").at("number"), 13);
}

TEST_F(HostSession, A_transaction_that_the_engine_gave_up_keeps_every_later_verb_out_of_the_books) {
  answer(begin);
  EXPECT_EQ(answer(save).at("result"), 0);
  const Json pages = answer(R"({"do":"sql","text":"pragma page_count"})").at("rows").at(0).at(0);
  answer(R"({"do":"sql","text":"pragma max_page_count=)" + pages.dump() + R"("})");
  const std::string line = R"line({"do":"sql","text":"insert into Warehouse(id,WName) values('W1','NAME')"})line";
  const Json full = answer(std::string(line).replace(line.find("NAME"), 4, 100'000, 'y'));
  EXPECT_EQ(full.at("error").at("description"), "database or disk is full");
  const Json lost = answer(save);
  EXPECT_EQ(lost.at("result"), -2147467259);
  EXPECT_TRUE(lost.at("failure").at("text").get<std::string>().starts_with("The transaction was lost, ")) << lost;
  EXPECT_EQ(answer(commit).at("error").at("number"), -2147467259);
  EXPECT_EQ(answer(stored).at("rows").dump(), "[]");
  EXPECT_EQ(answer(commit).at("error").at("number"), -2147168242);
}

TEST_F(HostSession, A_transaction_goes_past_roads_that_are_closed) {
  answer(R"({"do":"connection","of":"bill","is":"closed"})");
  EXPECT_EQ(answer(begin).at("ok"), true);
  EXPECT_EQ(answer(rollback).at("ok"), true);
}

TEST_F(HostSession, A_transaction_that_the_lines_leave_open_can_be_taken_back_by_the_host) {
  EXPECT_FALSE(interpreter.roll_back_open_transaction());
  answer(begin);
  EXPECT_EQ(answer(save).at("result"), 0);
  EXPECT_TRUE(interpreter.roll_back_open_transaction());
  EXPECT_EQ(answer(stored).at("rows").dump(), "[]");
  EXPECT_FALSE(interpreter.roll_back_open_transaction());
}

TEST_F(HostSession, A_transaction_is_neither_traced_nor_counted_by_a_rehearsal) {
  answer(R"({"do":"fail","at":1,"of":"any","number":6})");
  EXPECT_EQ(answer(begin).dump(), R"({"line":4,"ok":true})");
  EXPECT_EQ(answer(save).at("result"), 6);
}

TEST_F(HostSession, The_host_s_own_statement_answers_columns_and_rows_also_without_any) {
  EXPECT_EQ(interpreter.answer(R"({"do":"sql","text":"select id,WName from Warehouse"})"),
            R"({"line":3,"columns":["id","WName"],"rows":[]})");
  EXPECT_EQ(interpreter.answer(R"line({"do":"sql","text":"insert into Warehouse(id) values('W1')"})line"),
            R"({"line":4,"columns":[],"rows":[]})");
}

TEST_F(HostSession, The_host_s_own_statement_that_fails_answers_the_engine_s_text) {
  const Json error = answer(R"({"do":"sql","text":"select * from nowhere"})").at("error");
  EXPECT_EQ(error.at("number"), -2147217865);
  EXPECT_EQ(error.at("description"), "no such table: nowhere");
  EXPECT_EQ(answer(R"({"do":"sql"})")["error"]["number"], 450);
}

}  // namespace
}  // namespace brunvik::host
