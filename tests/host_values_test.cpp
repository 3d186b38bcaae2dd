// The forms of values, in and out.
#include "tests/host_conversation.h"

namespace brunvik::host {
namespace {

class HostValues : public HostTest {
 protected:
  HostValues() {
    interpreter.answer(R"({"do":"new","as":"s","class":"clsSalesOutBill"})");
    interpreter.answer(R"({"do":"new","as":"v","class":"clsPayBill"})");
  }

  // What a property of the sale is after it was put.
  std::string put(const std::string& name, const std::string& json) { return said_of("s", name, json); }

  std::string said_of(const std::string& object, const std::string& name, const std::string& json) {
    const std::string refusal =
        said(R"({"do":"put","on":")" + object + R"(","values":{")" + name + R"(":)" + json + "}}");
    if (refusal != R"({"ok":true})") return std::to_string(Json::parse(refusal)["error"]["number"].get<Long>());
    return answer(R"({"do":"get","on":")" + object + R"(","names":[")" + name + R"("]})")["values"][name].dump();
  }

  std::string sql_value(const std::string& json) {
    return answer(R"({"do":"proc","name":"GetSqlVal","args":[)" + json + "]}").at("result").get<std::string>();
  }
};

TEST_F(HostValues, Money_is_a_string_of_plain_decimal_text) {
  EXPECT_EQ(put("Amount", R"("10.50")"), R"("10.5")");
  EXPECT_EQ(put("Amount", R"("-0.0001")"), R"("-0.0001")");
  EXPECT_EQ(put("Amount", R"("922337203685477.5807")"), R"("922337203685477.5807")");
  EXPECT_EQ(put("Amount", R"({"money":"1.5"})"), R"("1.5")");
}

TEST_F(HostValues, Money_is_read_from_a_number_by_its_decimal_text) {
  EXPECT_EQ(put("Amount", "0.3"), R"("0.3")");
  EXPECT_EQ(put("Amount", "99999999999.9999"), R"("99999999999.9999")");
  EXPECT_EQ(put("Amount", "1.00005"), R"("1")");
  EXPECT_EQ(put("Amount", "1.00015"), R"("1.0002")");
  EXPECT_EQ(put("Amount", "1e3"), R"("1000")");
  EXPECT_EQ(put("Amount", "92233720368547"), R"("92233720368547")");
  EXPECT_EQ(put("Amount", "18446744073709551615"), "6");
  EXPECT_EQ(put("Amount", "1e300"), "6");
}

TEST_F(HostValues, Whole_numbers_round_to_even_and_keep_to_their_range) {
  EXPECT_EQ(put("Status", "2.5"), "2");
  EXPECT_EQ(put("Status", "1.5"), "2");
  EXPECT_EQ(put("Status", R"(" 3 ")"), "3");
  EXPECT_EQ(put("Status", "true"), "-1");
  EXPECT_EQ(put("Status", "2147483647"), "2147483647");
  EXPECT_EQ(put("Status", "2147483648"), "6");
  EXPECT_EQ(put("Discounttype", "32767"), "32767");
  EXPECT_EQ(put("Discounttype", "32768"), "6");
  EXPECT_EQ(put("Status", "null"), "94");
  EXPECT_EQ(put("Status", R"("three")"), "13");
}

TEST_F(HostValues, A_single_is_the_number_of_its_shortest_text) {
  EXPECT_EQ(put("Taxrate", "0.17"), "0.17");
  EXPECT_EQ(put("Taxrate", "2"), "2");
  EXPECT_EQ(put("Taxrate", "-0.5"), "-0.5");
  EXPECT_EQ(put("Taxrate", "16777217"), "16777216");
  EXPECT_EQ(put("Taxrate", "1e39"), "6");
}

TEST_F(HostValues, Text_and_flags_are_themselves) {
  EXPECT_EQ(put("Summary", R"("a\"b\\c中文\n")"), R"("a\"b\\c中文\n")");
  EXPECT_EQ(put("Summary", "12"), R"("12")");
  EXPECT_EQ(put("Summary", "0.5"), R"("0.5")");
  EXPECT_EQ(put("Summary", "null"), "94");
  EXPECT_EQ(put("CreateFlag", "true"), "true");
  EXPECT_EQ(put("CreateFlag", "0"), "false");
  EXPECT_EQ(put("CreateFlag", R"("maybe")"), "13");
}

TEST_F(HostValues, A_value_says_its_type_where_that_matters) {
  EXPECT_EQ(sql_value("null"), "null");
  EXPECT_EQ(sql_value(R"({"empty":true})"), "null");
  EXPECT_EQ(sql_value("3"), "3");
  EXPECT_EQ(sql_value("0.1"), "0.1");
  EXPECT_EQ(sql_value(R"({"single":0.1})"), "0.1");
  EXPECT_EQ(sql_value(R"({"double":0.1})"), "0.1");
  EXPECT_EQ(sql_value(R"({"money":"1.50"})"), "1.5");
  EXPECT_EQ(sql_value(R"({"money":0.1})"), "0.1");
  EXPECT_EQ(sql_value(R"({"long":3})"), "3");
  EXPECT_EQ(sql_value(R"({"integer":3})"), "3");
  EXPECT_EQ(sql_value(R"({"byte":3})"), "3");
  EXPECT_EQ(sql_value("true"), "1");
  EXPECT_EQ(sql_value(R"({"boolean":false})"), "0");
  EXPECT_EQ(sql_value(R"({"date":"2024-03-05 10:00:00"})"), "'2024-03-05 10:00:00'");
  EXPECT_EQ(sql_value(R"({"array":[1,"2",null]})"), "");
  EXPECT_EQ(sql_value(R"({"row":{"Gid":"G1"}})"), "");
}

TEST_F(HostValues, A_value_that_its_type_cannot_hold_is_refused) {
  const auto refused_value = [&](const std::string& json) {
    return refused(R"({"do":"proc","name":"GetSqlVal","args":[)" + json + "]}");
  };
  EXPECT_EQ(refused_value(R"({"byte":256})"), 6);
  EXPECT_EQ(refused_value(R"({"integer":40000})"), 6);
  EXPECT_EQ(refused_value(R"({"long":"many"})"), 13);
  EXPECT_EQ(refused_value(R"({"date":"yesterday"})"), 13);
  EXPECT_EQ(refused_value(R"({"colour":"red"})"), 13);
  EXPECT_EQ(refused_value(R"({"long":1,"byte":1})"), 13);
  EXPECT_EQ(refused_value("{}"), 13);
  EXPECT_EQ(refused_value("[1]"), 13);
  EXPECT_EQ(refused_value(R"({"array":1})"), 13);
  EXPECT_EQ(refused_value(R"({"row":{"None":1}})"), 438);
  EXPECT_EQ(refused_value(R"({"row":{},"class":"NoRow"})"), 429);
}

TEST_F(HostValues, A_date_a_null_and_an_array_come_back_in_their_form) {
  const auto back = [&](const std::string& json) {
    return answer(R"({"do":"proc","name":"GetSqlVal","args":[)" + json + "]}").at("args").at(0).dump();
  };
  EXPECT_EQ(back(R"({"date":"2024-03-05 10:00:00"})"), R"({"date":"2024-03-05 10:00:00"})");
  EXPECT_EQ(back("null"), "null");
  EXPECT_EQ(back(R"({"empty":true})"), R"({"empty":true})");
  EXPECT_EQ(back(R"({"array":[1,{"money":"2"}]})"), R"({"array":[1,"2"]})");
}

TEST_F(HostValues, Database_values_come_as_what_their_columns_hold) {
  said(R"line({"do":"sql","text":"insert into StockBill(Id,Amount,TaxRate,Status) values('甲',0.3,0.17,2)"})line");
  EXPECT_EQ(said(R"({"do":"sql","text":"select Id,Amount,TaxRate,Status,Summary from StockBill"})"),
            R"({"columns":["Id","Amount","TaxRate","Status","Summary"],"rows":[["甲","0.3",0.17,2,null]]})");
}

class BrokenText final : public ado::Connection {
 public:
  ado::Recordset Execute(std::string_view) override {
    return {{"WName"},
            {Value("A\xFF"
                   "B")}};
  }
  void BeginTrans() override {}
  void CommitTrans() override {}
  void RollbackTrans() override {}
  Long State() const noexcept override { return 1; }
};

TEST_F(HostValues, Database_text_that_is_no_text_is_shown_with_the_replacement_character) {
  Interpreter broken(std::make_shared<BrokenText>(), Settings{});
  EXPECT_EQ(broken.answer(R"({"do":"sql","text":"select WName from Warehouse"})"),
            "{\"line\":1,\"columns\":[\"WName\"],\"rows\":[[\"A\xEF\xBF\xBD"
            "B\"]]}");
}

}  // namespace
}  // namespace brunvik::host
