// Calls of verbs and procedures: results, arguments, notices, statements.
#include "tests/host_conversation.h"

namespace brunvik::host {
namespace {

class HostCalls : public HostTest {
 protected:
  HostCalls() { interpreter.answer(R"({"do":"new","as":"b","class":"clsOthersInBill"})"); }
};

TEST_F(HostCalls, By_reference_arguments_come_back_as_the_call_left_them) {
  EXPECT_EQ(said(R"({"do":"call","on":"b","verb":"GetNewId","args":[""]})"),
            R"({"result":0,"args":["QTR24030500001"]})");
}

TEST_F(HostCalls, Arguments_by_value_come_back_as_they_came_and_omitted_ones_with_their_default) {
  EXPECT_EQ(said(R"({"do":"proc","name":"GetSqlVal","args":["O'Neil",false,"[Drop]","[Drop]"]})"),
            R"({"result":"'O''Neil'","args":["O'Neil",false,"[Drop]","[Drop]"]})");
  EXPECT_EQ(said(R"({"do":"proc","name":"getsqlval","args":["O'Neil"]})"),
            R"({"result":"'O''Neil'","args":["O'Neil",false,"[Drop]","[Drop]"]})");
  EXPECT_EQ(said(R"({"do":"call","on":"b","verb":"GetNearId","args":[{"long":7},""]})"),
            R"({"result":0,"args":[{"long":7},"",false]})");
}

TEST_F(HostCalls, A_wrong_count_of_arguments_is_refused) {
  EXPECT_EQ(refused(R"({"do":"call","on":"b","verb":"LoadById"})"), 450);
  EXPECT_EQ(refused(R"({"do":"call","on":"b","verb":"Save","args":[1]})"), 450);
  EXPECT_EQ(refused(R"({"do":"proc","name":"EscapeLike","args":[]})"), 450);
  EXPECT_EQ(refused(R"({"do":"call","on":"b","verb":"Save","args":{}})"), 13);
}

TEST_F(HostCalls, A_verb_or_a_procedure_that_does_not_exist_is_refused) {
  EXPECT_EQ(refused(R"({"do":"call","on":"b","verb":"Sve"})"), 438);
  EXPECT_EQ(refused(R"({"do":"call","on":"b","verb":"ID"})"), 438);
  EXPECT_EQ(refused(R"({"do":"call","on":"c","verb":"Save"})"), 424);
  EXPECT_EQ(refused(R"({"do":"proc","name":"GetSql"})"), 438);
}

TEST_F(HostCalls, An_argument_of_the_wrong_type_is_refused_before_anything_is_sent) {
  EXPECT_EQ(refused(R"({"do":"proc","name":"UpdateBillItemCost","args":["B1","first","1","0"]})"), 13);
}

TEST_F(HostCalls, A_procedure_without_a_result_answers_null) {
  EXPECT_EQ(said(R"({"do":"proc","name":"ExecuteSql","args":["delete from goods where id='x,true'"]})"),
            R"({"result":null,"args":["DELETE FROM GOODS WHERE ID='X,1'"]})");
}

TEST_F(HostCalls, A_money_result_is_a_string) {
  EXPECT_EQ(said(R"({"do":"proc","name":"GoodsUnitConverter","args":["G1","盒"]})"),
            R"({"result":"1","args":["G1","盒"]})");
}

TEST_F(HostCalls, A_row_record_comes_back_with_what_the_call_put_into_it) {
  said(R"line({"do":"sql","text":"insert into goods(id,Gname,Price) values('G1','硒鼓',50)"})line");
  const Json answered = answer(R"({"do":"proc","name":"GetGoodsById","args":["G1",{"row":{"Brand":"甲"}}]})");
  EXPECT_EQ(answered.at("result"), 0);
  const Json& row = answered.at("args").at(1).at("row");
  EXPECT_EQ(row.at("Gname"), "硒鼓");
  EXPECT_EQ(row.at("Price"), "50");
  EXPECT_EQ(row.at("PriceE"), "0");
}

TEST_F(HostCalls, A_collection_is_given_row_by_row) {
  EXPECT_EQ(said(R"({"do":"proc","name":"CalcBillCost","args":[{"rows":[{"Cost":"0.1"},{"Cost":0.2}]},-1]})"),
            R"({"result":"0.3","args":[{"rows":[{"Cost":"0.1"},{"Cost":0.2}]},-1]})");
  EXPECT_EQ(
      answer(R"({"do":"proc","name":"CalcBillCost","args":[{"rows":[{"Cost":"2"}],"class":"CountRow"},8]})")["result"],
      "2");
  EXPECT_EQ(refused(R"({"do":"proc","name":"CalcBillCost","args":[{"rows":[{"Price":"x"}]},-1]})"), 13);
  EXPECT_EQ(refused(R"({"do":"proc","name":"CalcBillCost","args":[{"rows":{}},-1]})"), 13);
}

TEST_F(HostCalls, A_notice_that_was_shown_is_in_the_answer_and_gone_from_the_next) {
  said(R"({"do":"connection","of":"session","is":"closed"})");
  EXPECT_EQ(said(R"({"do":"proc","name":"GetKeyValue","args":["启用帐款审核"]})"),
            R"({"result":"","args":["启用帐款审核"],"notices":[{"title":"错误信息",)"
            R"("text":"GetKeyValue():对象关闭时，不允许操作。"}],"failure":{"number":3704,)"
            R"("text":"对象关闭时，不允许操作。",)"
            R"("statement":"select * from BasicConfig where keyname='启用帐款审核'"}})");
  EXPECT_EQ(said(R"({"do":"proc","name":"EscapeLike","args":["a"]})"), R"({"result":"a","args":["a"]})");
}

TEST_F(HostCalls, The_result_of_a_verb_is_the_number_of_the_error_that_stopped_it) {
  said(R"({"do":"put","on":"b","values":{"ID":"QTR24030500001"}})");
  said(R"({"do":"sql","text":"drop table StockBill"})");
  EXPECT_EQ(answer(R"({"do":"call","on":"b","verb":"Save"})").at("result"), -2147217865);
}

TEST_F(HostCalls, A_failure_is_told_beside_the_result_with_its_statement) {
  said(R"({"do":"put","on":"b","values":{"ID":"Q"}})");
  said(R"({"do":"sql","text":"drop table StockBill"})");
  EXPECT_EQ(said(R"({"do":"call","on":"b","verb":"Save"})"),
            R"({"result":-2147217865,"args":[],"failure":{"number":-2147217865,"text":"no such table: StockBill",)"
            R"("statement":"select * from StockBill where Id='Q'"}})");
  EXPECT_EQ(said(R"({"do":"proc","name":"IsConnected"})"), R"({"result":true,"args":[]})");
}

TEST_F(HostCalls, A_failure_is_told_between_the_notices_and_the_trace_also_where_the_verb_goes_on) {
  said(R"({"do":"sql","text":"drop table StockBill"})");
  const std::string answered = said(R"({"do":"call","on":"b","verb":"GetNewId","args":[""]})");
  EXPECT_EQ(answered, R"({"result":0,"args":["QTR24030500000"],)"
                      R"("notices":[{"title":"提示信息","text":"Get_BillMaxId():no such table: StockBill"}],)"
                      R"("failure":{"number":-2147217865,"text":"no such table: StockBill",)"
                      R"("statement":"select max(ID)  from StockBill where ID like 'QTR240305%' "}})");
}

TEST_F(HostCalls, A_verb_that_ends_with_a_result_of_its_own_has_no_failure) {
  EXPECT_EQ(said(R"({"do":"call","on":"b","verb":"Save"})"), R"({"result":-1,"args":[]})");
}

TEST_F(HostCalls, A_failure_is_not_told_again_by_the_next_call_nor_by_a_start_of_the_session) {
  said(R"({"do":"new","as":"s","class":"InitBrunvikVariable"})");
  said(R"({"do":"connection","of":"bill","is":"closed"})");
  said(R"({"do":"put","on":"b","values":{"ID":"Q"}})");
  EXPECT_TRUE(answer(R"({"do":"call","on":"b","verb":"Save"})").contains("failure"));
  EXPECT_FALSE(answer(R"({"do":"call","on":"s","verb":"InitClase_PublicVariable"})").contains("failure"));
}

TEST_F(HostCalls, Without_tracing_no_statement_is_shown) {
  EXPECT_FALSE(answer(R"({"do":"call","on":"b","verb":"GetNewId","args":[""]})").contains("trace"));
}

using HostTrace = TracedHostTest;

TEST_F(HostTrace, Each_statement_is_shown_as_it_was_handed_over_with_the_road_that_it_took) {
  EXPECT_EQ(answer(R"({"do":"call","on":"b","verb":"GetNewId","args":[""]})").at("trace").dump(),
            R"([["session","select max(ID)  from StockBill where ID like 'QTR240305%' "]])");
  EXPECT_EQ(answer(R"({"do":"call","on":"b","verb":"Delete"})").at("trace").dump(),
            R"([["bill","delete from StockBillItems where BillId='QTR24030500001'"],)"
            R"(["bill","delete from stockbill where Id='QTR24030500001'"]])");
}

TEST_F(HostTrace, A_call_that_sends_nothing_shows_an_empty_trace) {
  EXPECT_EQ(answer(R"({"do":"proc","name":"EscapeLike","args":["a"]})").at("trace").dump(), "[]");
}

TEST_F(HostTrace, A_failed_statement_is_shown_too) {
  answer(R"({"do":"sql","text":"drop table StockBill"})");
  EXPECT_EQ(answer(R"({"do":"call","on":"b","verb":"Save"})").at("trace").dump(),
            R"([["bill","select * from StockBill where Id='QTR24030500001'"]])");
}

TEST_F(HostTrace, The_host_s_own_statements_are_never_shown) {
  const Json answered = answer(R"({"do":"sql","text":"select * from Inventory"})");
  EXPECT_FALSE(answered.contains("trace"));
  EXPECT_EQ(answer(R"({"do":"proc","name":"IsConnected"})").at("trace").dump(), "[]");
}

}  // namespace
}  // namespace brunvik::host
