// What the host refuses, and the words in which it does: what is missing by its name, and what there is instead.
#include "host/refusals.h"
#include "tests/host_conversation.h"

namespace brunvik::host {
namespace {

class HostRefusals : public HostTest {
 protected:
  HostRefusals() { interpreter.answer(R"({"do":"new","as":"b","class":"clsOthersInBill"})"); }

  // The number and the description of the error that a line is refused with.
  std::string error(std::string_view line) {
    const Json refusal = answer(line).at("error");
    return std::to_string(refusal.at("number").get<Long>()) + " " + refusal.at("description").get<std::string>();
  }
};

TEST_F(HostRefusals, A_word_that_names_nothing_to_do_is_answered_with_the_words_that_there_are) {
  const std::string told = error(R"({"do":"fly","to":"the moon"})");
  EXPECT_TRUE(told.starts_with("438 对象不支持该属性或方法: fly; there is new, put, get, add, edit, ")) << told;
  EXPECT_EQ(error(R"({"do":"New","as":"x","class":"clsPayBill"})").substr(0, 3), "438");
  EXPECT_EQ(error("{}"), "450 错误的参数号或无效的属性赋值: do is missing");
  EXPECT_EQ(error(R"({"do":1})"), "13 类型不匹配: do");
  EXPECT_EQ(said(R"({"do":"get","on":"b","names":["Status"]})"), R"({"values":{"Status":0}})");
}

TEST_F(HostRefusals, A_missing_key_says_that_it_is_missing) {
  const std::vector<std::pair<const char*, const char*>> lines{
      {R"({"do":"new","class":"clsPayBill"})", "as"},
      {R"({"do":"new","as":"x"})", "class"},
      {R"({"do":"put","values":{}})", "on"},
      {R"({"do":"put","on":"b"})", "values"},
      {R"({"do":"get"})", "on"},
      {R"({"do":"add","on":"b"})", "rows"},
      {R"({"do":"edit","on":"b","rows":"colBillItems","row":{}})", "at"},
      {R"({"do":"clear","on":"b"})", "rows"},
      {R"({"do":"rows","on":"b"})", "rows"},
      {R"({"do":"call","on":"b"})", "verb"},
      {R"({"do":"proc"})", "name"},
      {R"({"do":"sql"})", "text"},
      {R"({"do":"connection","is":"closed"})", "of"},
      {R"({"do":"connection","of":"bill"})", "is"},
      {R"({"do":"fail"})", "number"},
  };
  for (const auto& [line, key] : lines) {
    EXPECT_EQ(error(line), std::string("450 错误的参数号或无效的属性赋值: ") + key + " is missing") << line;
  }
}

TEST_F(HostRefusals, An_edit_without_a_row_is_refused_since_it_would_change_nothing) {
  said(R"({"do":"add","on":"b","rows":"colBillItems","row":{"Gid":"G1"}})");
  EXPECT_EQ(error(R"({"do":"edit","on":"b","rows":"colBillItems","at":1,"values":{"Gid":"G2"}})"),
            "450 错误的参数号或无效的属性赋值: row is missing");
}

TEST_F(HostRefusals, A_value_of_the_wrong_type_is_told_by_its_key) {
  EXPECT_EQ(error(R"({"do":"new","as":1,"class":"clsPayBill"})"), "13 类型不匹配: as");
  EXPECT_EQ(error(R"({"do":"call","on":"b","verb":"Save","args":{}})"), "13 类型不匹配: args");
  EXPECT_EQ(error(R"({"do":"edit","on":"b","rows":"colBillItems","at":"1","row":{}})"), "13 类型不匹配: at");
}

TEST_F(HostRefusals, A_missing_argument_is_told_by_verb_and_argument) {
  EXPECT_EQ(error(R"({"do":"call","on":"b","verb":"loadbyid"})"),
            "450 错误的参数号或无效的属性赋值: LoadById: BID is missing");
  EXPECT_EQ(error(R"({"do":"proc","name":"Get_UniqV","args":["goods"]})"),
            "450 错误的参数号或无效的属性赋值: Get_UniqV: Field is missing");
}

TEST_F(HostRefusals, An_argument_too_many_is_told_by_the_verb_and_the_arguments_that_it_takes) {
  EXPECT_EQ(error(R"({"do":"call","on":"b","verb":"Save","args":[1]})"),
            "450 错误的参数号或无效的属性赋值: Save takes (), 1 given");
  EXPECT_EQ(error(R"({"do":"call","on":"b","verb":"GetNearId","args":["","",true,4]})"),
            "450 错误的参数号或无效的属性赋值: GetNearId takes (CurBillID, NearBillID, NextPreviousId), 4 given");
}

TEST_F(HostRefusals, An_argument_that_stands_for_no_value_is_told_by_verb_and_argument) {
  EXPECT_EQ(error(R"({"do":"call","on":"b","verb":"LoadById","args":[{"number":1}]})"), "13 类型不匹配: LoadById: BID");
}

TEST_F(HostRefusals, An_argument_that_only_brings_something_back_may_be_left_out_at_the_end) {
  EXPECT_EQ(said(R"({"do":"call","on":"b","verb":"GetNewId"})"), R"({"result":0,"args":["QTR24030500001"]})");
  EXPECT_EQ(said(R"({"do":"call","on":"b","verb":"GetNearId","args":[""]})"), R"({"result":0,"args":["","",false]})");
}

TEST_F(HostRefusals, A_member_that_does_not_exist_is_answered_with_those_that_can_be_used_so) {
  EXPECT_EQ(error(R"({"do":"rows","on":"b","rows":"ID"})"), "438 对象不支持该属性或方法: ID; there is colBillItems");
  const std::string verbs = error(R"({"do":"call","on":"b","verb":"Sve"})");
  EXPECT_TRUE(verbs.starts_with("438 对象不支持该属性或方法: Sve; there is ")) << verbs;
  EXPECT_NE(verbs.find(", GetNewId,"), std::string::npos) << verbs;
  EXPECT_EQ(verbs.find("Remarks"), std::string::npos) << verbs;
  const std::string properties = error(R"({"do":"put","on":"b","values":{"Save":1}})");
  EXPECT_TRUE(properties.starts_with("438 对象不支持该属性或方法: Save; there is ")) << properties;
  EXPECT_NE(properties.find(", Remarks"), std::string::npos) << properties;
  EXPECT_EQ(properties.find("GetNewId"), std::string::npos) << properties;
  EXPECT_NE(error(R"({"do":"get","on":"b","names":["Nothing"]})").find(", Remarks"), std::string::npos);
  EXPECT_NE(error(R"({"do":"add","on":"b","rows":"colBillItems","row":{"qtty":1}})").find("qtty; there is BillId, "),
            std::string::npos);
}

TEST_F(HostRefusals, A_read_only_property_is_among_those_to_get_and_not_among_those_to_put) {
  said(R"({"do":"new","as":"p","class":"clsPurchaseInBill"})");
  EXPECT_NE(error(R"({"do":"get","on":"p","names":["x"]})").find("Closedtag"), std::string::npos);
  const std::string put = error(R"({"do":"put","on":"p","values":{"Closedtag":true}})");
  EXPECT_EQ(put.find("Closedtag", put.find("there is")), std::string::npos) << put;
}

TEST_F(HostRefusals, A_procedure_that_does_not_exist_is_answered_with_those_that_there_are) {
  EXPECT_TRUE(error(R"({"do":"proc","name":"GetSql"})")
                  .starts_with("438 对象不支持该属性或方法: GetSql; there is GetSqlVal, EscapeLike, "));
}

TEST_F(HostRefusals, A_record_class_that_does_not_exist_is_told) {
  EXPECT_EQ(error(R"({"do":"proc","name":"CalcBillCost","args":[{"rows":[],"class":"NoRow"},1]})"),
            "429 部件不能创建对象: NoRow: CalcBillCost: Rows");
}

TEST_F(HostRefusals, A_name_of_any_length_is_told_by_its_beginning) {
  const std::string name(1'000'000, 'x');
  EXPECT_LT(error(R"({"do":")" + name + "\"}").size(), 600U);
  EXPECT_LT(error(R"({"do":"new","as":"y","class":")" + name + "\"}").size(), 600U);
  EXPECT_LT(error(R"({"do":"put","on":"b","values":{")" + name + "\":1}}").size(), 1'000U);
}

TEST_F(HostRefusals, Refused_lines_are_counted) {
  EXPECT_EQ(interpreter.refused(), 0U);
  said("{}");
  said(R"({"do":"sql","text":"select * from nowhere"})");
  said(R"({"do":"call","on":"b","verb":"LoadById","args":["none"]})");
  EXPECT_EQ(interpreter.refused(), 2U);
}

TEST(HostShortened, A_text_is_cut_between_two_characters) {
  EXPECT_EQ(shortened("short"), "short");
  EXPECT_EQ(shortened(std::string(200, 'x')), std::string(200, 'x'));
  EXPECT_EQ(shortened(std::string(201, 'x')), std::string(200, 'x') + "...");
  std::string text;
  for (int count = 0; count < 100; ++count) text += "仓";
  EXPECT_EQ(shortened(text), text.substr(0, 198) + "...");
  EXPECT_EQ(shortened("a" + text), "a" + text.substr(0, 198) + "...");
}

}  // namespace
}  // namespace brunvik::host
