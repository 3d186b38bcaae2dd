// What the classes and their members are, as text and as JSON.
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

#include "brunvik/ado/errors.h"
#include "brunvik/automation/automation.h"
#include "host/describe.h"
#include "host/json.h"
#include "host/table.h"

namespace brunvik::host {
namespace {

std::vector<std::string> lines_of(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream rest(text);
  for (std::string line; std::getline(rest, line);) lines.push_back(line);
  return lines;
}

TEST(HostDescribe, Every_public_class_has_a_line_of_its_own) {
  const auto lines = lines_of(describe_classes());
  ASSERT_EQ(lines.size(), automation::classes().size());
  for (std::size_t place = 0; place < lines.size(); ++place) {
    EXPECT_TRUE(lines[place].starts_with(automation::classes()[place].name)) << lines[place];
  }
}

TEST(HostDescribe, A_class_line_tells_document_tables_prefix_and_code) {
  const auto lines = lines_of(describe_classes());
  const auto receipt = std::find_if(lines.begin(), lines.end(),
                                    [](const std::string& line) { return line.starts_with("clsPurchaseInBill "); });
  ASSERT_NE(receipt, lines.end());
  std::istringstream line(*receipt);
  std::vector<std::string> words{std::istream_iterator<std::string>(line), {}};
  EXPECT_EQ(words, (std::vector<std::string>{"clsPurchaseInBill", "purchase", "receipt", "StockBill,", "StockBillItems",
                                             "JHR", "2"}));
}

TEST(HostDescribe, The_members_of_a_class_come_in_their_public_order) {
  const auto object = automation::create("clsSalesOutBill");
  const auto lines = lines_of(describe_class("CLSSALESOUTBILL"));
  std::size_t place = 0;
  for (const Member& member : object->members()) {
    ASSERT_LT(place, lines.size());
    EXPECT_TRUE(lines[place++].starts_with(member.name()));
  }
  EXPECT_EQ(place, lines.size());
}

TEST(HostDescribe, A_member_line_tells_kind_type_and_column_or_the_signature) {
  const std::string text = describe_class("clsPurchaseInBill");
  EXPECT_NE(text.find("\nVendor            property            String   Supplier\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\nClosedtag         read-only property  Boolean  ClosedTag\n"), std::string::npos);
  EXPECT_NE(text.find("\ncolBillItems      collection          Collection\n"), std::string::npos);
  EXPECT_NE(text.find("\nGetNearId         verb                (CurBillID String, byref NearBillID String, "
                      "optional NextPreviousId Boolean = false) Long\n"),
            std::string::npos);
}

TEST(HostDescribe, A_class_is_one_json_value) {
  const Json described = Json::parse(describe_class_json("clspurchaseinbill"));
  EXPECT_EQ(described.at("class"), "clsPurchaseInBill");
  EXPECT_EQ(described.at("document"), "purchase receipt");
  EXPECT_EQ(described.at("table"), "StockBill");
  EXPECT_EQ(described.at("prefix"), "JHR");
  EXPECT_EQ(described.at("code"), 2);
  const Json& members = described.at("members");
  EXPECT_EQ(members.at(1).dump(),
            R"({"name":"CreateFlag","kind":"property","type":"Boolean","args":[],"column":"CreateFlag"})");
  for (const Json& member : members) {
    if (member.at("name") != "LoadById") continue;
    EXPECT_EQ(member.dump(), R"({"name":"LoadById","kind":"verb","type":"Long","args":[)"
                             R"({"name":"BID","type":"String","byref":true,"optional":false},)"
                             R"({"name":"lRowNum","type":"Long","byref":false,"optional":true,"default":-1},)"
                             R"({"name":"bDHBJ","type":"Boolean","byref":false,"optional":true,"default":false}]})");
  }
}

TEST(HostDescribe, The_start_of_a_session_is_no_document) {
  const Json described = Json::parse(describe_class_json("InitBrunvikVariable"));
  EXPECT_EQ(described.at("document"), "");
  EXPECT_EQ(described.at("code"), nullptr);
  EXPECT_EQ(described.at("members").size(), 4U);
}

TEST(HostDescribe, All_classes_are_one_json_value) {
  const Json all = Json::parse(describe_classes_json());
  ASSERT_EQ(all.size(), automation::classes().size());
  const auto receipt =
      std::find_if(all.begin(), all.end(), [](const Json& each) { return each.at("class") == "clsPurchaseInBill"; });
  ASSERT_NE(receipt, all.end());
  EXPECT_EQ(
      receipt->dump(),
      R"({"class":"clsPurchaseInBill","document":"purchase receipt","table":"StockBill","prefix":"JHR","code":2})");
}

TEST(HostDescribe, A_default_is_written_as_in_a_line_of_a_run) {
  const std::string text = describe_class("clsSalesOutBill");
  EXPECT_NE(text.find("(byref BID String, optional byref sIDQZ String = \"\") Long\n"), std::string::npos) << text;
}

TEST(HostDescribe, A_row_record_is_described_as_a_class_is) {
  const std::string text = describe_class("stockrow");
  EXPECT_TRUE(text.starts_with("BillId          property  String   BillId\n")) << text;
  EXPECT_NE(text.find("\nprice           property  Money    price\n"), std::string::npos) << text;
  const Json described = Json::parse(describe_class_json("stockrow"));
  EXPECT_EQ(described.at("class"), "StockRow");
  EXPECT_EQ(described.at("code"), nullptr);
  EXPECT_EQ(described.at("members").at(1).dump(),
            R"({"name":"Rownum","kind":"property","type":"Integer","args":[],"column":"RowNum"})");
  for (const auto& record : automation::record_classes()) {
    EXPECT_FALSE(lines_of(describe_class(record.name)).empty()) << record.name;
  }
}

TEST(HostDescribe, Every_module_procedure_has_a_line_of_its_own) {
  const auto lines = lines_of(describe_procedures());
  ASSERT_EQ(lines.size(), automation::procedures().size());
  EXPECT_EQ(lines.front(),
            "GetSqlVal                   procedure  (byref Value Variant, optional IsLike Boolean = false, "
            "optional WildCard String = \"[Drop]\", optional Position String = \"[Drop]\") String");
  EXPECT_NE(describe_procedures().find("\nIsConnected                 procedure  () Boolean\n"), std::string::npos);
  EXPECT_NE(describe_procedures().find("(optional byref Recordset Object = null)"), std::string::npos);
}

TEST(HostDescribe, All_module_procedures_are_one_json_value) {
  const Json all = Json::parse(describe_procedures_json());
  ASSERT_EQ(all.size(), automation::procedures().size());
  EXPECT_EQ(all.at(1).dump(), R"({"name":"EscapeLike","kind":"procedure","type":"Variant","args":[)"
                              R"({"name":"Text","type":"String","byref":false,"optional":false}]})");
}

TEST(HostDescribe, A_name_of_neither_class_nor_record_is_error_429_with_the_records_that_there_are) {
  try {
    describe_class("clsNone");
    FAIL();
  } catch (const ado::RuntimeError& failure) {
    EXPECT_EQ(failure.number(), 429);
    EXPECT_NE(failure.description().find("clsNone; there is GoodsRecord, "), std::string::npos)
        << failure.description();
  }
}

TEST(HostTable, A_chinese_character_takes_two_places) {
  EXPECT_EQ(display_width("abc"), 3U);
  EXPECT_EQ(display_width("仓库A"), 5U);
  EXPECT_EQ(display_width(""), 0U);
}

TEST(HostTable, Columns_stand_below_their_headings) {
  Table table({"仓库", ">数量"});
  table.add({"主", "12.5"});
  table.add({"main store", "3"});
  EXPECT_EQ(table.text(),
            "仓库        数量\n"
            "----------  ----\n"
            "主          12.5\n"
            "main store     3\n");
}

}  // namespace
}  // namespace brunvik::host
