// What the classes and their members are, as text and as JSON.
#include <gtest/gtest.h>

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
  std::istringstream line(lines_of(describe_classes()).at(1));
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
                      "optional NextPreviousId Boolean) Long\n"),
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
                             R"({"name":"lRowNum","type":"Long","byref":false,"optional":true},)"
                             R"({"name":"bDHBJ","type":"Boolean","byref":false,"optional":true}]})");
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
  EXPECT_EQ(
      all.at(1).dump(),
      R"({"class":"clsPurchaseInBill","document":"purchase receipt","table":"StockBill","prefix":"JHR","code":2})");
}

TEST(HostDescribe, A_class_that_does_not_exist_is_error_429) {
  try {
    describe_class("clsNone");
    FAIL();
  } catch (const ado::RuntimeError& failure) {
    EXPECT_EQ(failure.number(), 429);
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
