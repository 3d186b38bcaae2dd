// The configuration and the small lookups in master data.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "brunvik/foundation/Declare_Const.h"
#include "brunvik/foundation/FenwerkOPT_Function.h"
#include "brunvik/foundation/GetValue_Function.h"
#include "brunvik/foundation/SqlOPT_Function.h"
#include "tests/support/apartment.h"
#include "tests/support/goods.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using Texts = std::vector<std::string>;
using test::goods_columns;
using test::table;

class Lookups : public ::testing::Test {
 protected:
  std::shared_ptr<test::ScriptedConnection> connection = std::make_shared<test::ScriptedConnection>();
  test::Session guard{connection};
  test::NoticeRecorder host;
};

class GetKeyValueTest : public Lookups {};
class GoodsUnitConverterTest : public Lookups {
 protected:
  void stored(const Value& factor) {
    connection->answer("GoodsUnit", table({"id", "Unit", "UnitConverter"}, {{"G1", "箱", factor}}));
  }
};
class GetContactsCompanyFieldTest : public Lookups {};
class GetGoodsByIdTest : public Lookups {};

Money money(const char* text) { return Money::parse(text); }

TEST_F(GetKeyValueTest, Reads_the_value_of_a_key_at_each_call) {
  connection->answer("BasicConfig", table({"keyname", "keyvalue"}, {{"启用审核", "1"}}));
  connection->answer("BasicConfig", table({"keyname", "keyvalue"}, {{"启用审核", "1 "}}));
  EXPECT_EQ(GetKeyValue("启用审核"), "1");
  EXPECT_EQ(GetKeyValue("启用审核"), "1 ");
  EXPECT_EQ(connection->statements, Texts(2, "select * from BasicConfig where keyname='启用审核'"));
}

TEST_F(GetKeyValueTest, A_missing_key_and_a_null_are_empty) {
  EXPECT_EQ(GetKeyValue("启用审核"), "");
  connection->answer("BasicConfig", table({"keyname", "keyvalue"}, {{"启用审核", ado::Null()}}));
  EXPECT_EQ(GetKeyValue("启用审核"), "");
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(GetKeyValueTest, The_key_goes_in_as_it_stands) {
  GetKeyValue(" it's ");
  EXPECT_EQ(connection->statements, Texts{"select * from BasicConfig where keyname=' it's '"});
}

TEST_F(GetKeyValueTest, Its_notice_has_a_title_of_its_own) {
  connection->fail("BasicConfig", ado::error::no_such_table, "no such table");
  EXPECT_EQ(GetKeyValue("启用审核"), "");
  EXPECT_EQ(host.notices, Texts{"错误信息|GetKeyValue():no such table"});
}

TEST_F(GoodsUnitConverterTest, Reads_the_factor_of_a_goods_unit) {
  stored(money("12"));
  EXPECT_EQ(GoodsUnitConverter("G1 ", "箱"), money("12"));
  stored(0.5);
  EXPECT_EQ(GoodsUnitConverter("G'1", "箱"), money("0.5"));
  EXPECT_EQ(connection->statements,
            (Texts{"select id,Unit,UnitConverter from GoodsUnit where id='G1' and Unit='箱'",
                   "select id,Unit,UnitConverter from GoodsUnit where id='G''1' and Unit='箱'"}));
}

TEST_F(GoodsUnitConverterTest, An_unknown_unit_a_null_and_a_zero_count_as_1) {
  EXPECT_EQ(GoodsUnitConverter("G1", "箱"), money("1"));
  stored(ado::Null());
  EXPECT_EQ(GoodsUnitConverter("G1", "箱"), money("1"));
  stored(money("0"));
  EXPECT_EQ(GoodsUnitConverter("G1", "箱"), money("1"));
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(GoodsUnitConverterTest, An_error_is_the_one_way_to_a_factor_of_0) {
  connection->fail("GoodsUnit", ado::error::timed_out, "busy");
  EXPECT_EQ(GoodsUnitConverter("G1", "箱"), Money());
  stored("a dozen");
  EXPECT_EQ(GoodsUnitConverter("G1", "箱"), Money());
  EXPECT_EQ(host.notices, (Texts{"提示信息|GoodsUnitConverter():busy", "提示信息|GoodsUnitConverter():类型不匹配"}));
}

TEST_F(GetContactsCompanyFieldTest, Reads_one_column_of_a_company_as_text) {
  connection->answer("ContactsCompany", table({"id", "FullName", "Limit"}, {{"C1", "某公司", money("500")}}));
  connection->answer("ContactsCompany", table({"id", "FullName", "Limit"}, {{"C1", "某公司", money("500")}}));
  EXPECT_EQ(GetContactsCompanyField("C1", "fullname"), "某公司");
  EXPECT_EQ(GetContactsCompanyField("C1", "Limit"), "500");
  EXPECT_EQ(connection->statements, Texts(2, "select * from ContactsCompany where id='C1'"));
}

TEST_F(GetContactsCompanyFieldTest, An_empty_id_runs_nothing) {
  EXPECT_EQ(GetContactsCompanyField("", "FullName"), "");
  EXPECT_EQ(connection->statements, Texts{});
}

TEST_F(GetContactsCompanyFieldTest, An_unknown_company_and_a_null_are_empty) {
  EXPECT_EQ(GetContactsCompanyField("C9", "FullName"), "");
  connection->answer("ContactsCompany", table({"FullName"}, {{ado::Null()}}));
  EXPECT_EQ(GetContactsCompanyField("C1", "FullName"), "");
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(GetContactsCompanyFieldTest, Its_notice_is_in_words) {
  connection->answer("ContactsCompany", table({"id"}, {{"C1"}}));
  EXPECT_EQ(GetContactsCompanyField("C1", "FullName"), "");
  connection->fail("ContactsCompany", ado::error::timed_out, "busy");
  EXPECT_EQ(GetContactsCompanyField("C1", "FullName"), "");
  EXPECT_EQ(host.notices, (Texts{"提示信息|查找用户名称时出错，详细信息：在对应所需名称或序数的集合中，未找到项目。",
                                 "提示信息|查找用户名称时出错，详细信息：busy"}));
}

TEST_F(GetGoodsByIdTest, Fills_every_property_from_its_column) {
  connection->answer(
      "goods", table(goods_columns(), {{"G1",         "螺丝",        "五金",          1,           "raw", "个",
                                        money("1.5"), money("1.25"), money("2"),      10.5,        "LS",  99.5,
                                        365,          "M6",          "镀锌",          money("12"), "粒",  money("3"),
                                        money("4"),   money("5"),    money("6"),      money("7"),  8,     9,
                                        "brand",      "690",         money("1.3333"), "DIN"}}));
  GoodsRecord goods;
  EXPECT_EQ(GetGoodsById("G1", goods), 0);
  std::string filled;
  for (const Member& member : goods.members()) filled += member.get(goods).as_text() + "|";
  EXPECT_EQ(filled,
            "G1|螺丝|五金|True|raw|个|1.5|1.25|2|10.5|LS|99.5|365|M6|镀锌|12|粒|3|4|5|6|7|8|9|brand|690|1.3333|DIN|");
  EXPECT_EQ(connection->statements, Texts{"select * from goods where id='G1'"});
}

TEST_F(GetGoodsByIdTest, The_record_has_its_properties_in_the_order_of_reading) {
  std::vector<std::string> names;
  for (const Member& member : GoodsRecord().members()) names.emplace_back(member.name());
  EXPECT_EQ(names, goods_columns());
}

TEST_F(GetGoodsByIdTest, An_unknown_id_leaves_the_record_as_it_is) {
  GoodsRecord goods;
  goods.Gname = "before";
  goods.Price = money("3");
  EXPECT_EQ(GetGoodsById("G9", goods), 0);
  EXPECT_EQ(goods.Gname, "before");
  EXPECT_EQ(goods.Price, money("3"));
}

TEST_F(GetGoodsByIdTest, A_null_number_is_left_and_a_null_text_is_empty) {
  std::vector<Value> nulls(28, ado::Null());
  connection->answer("goods", table(goods_columns(), {nulls}));
  GoodsRecord goods;
  goods.Gname = "before";
  goods.Price = money("3");
  goods.MinInventory = 2;
  goods.ShelfLife = 30;
  EXPECT_EQ(GetGoodsById("G1", goods), 0);
  EXPECT_EQ(goods.Gname, "");
  EXPECT_EQ(goods.Price, money("3"));
  EXPECT_EQ(goods.MinInventory, 2);
  EXPECT_EQ(goods.ShelfLife, 30);
}

TEST_F(GetGoodsByIdTest, An_error_is_its_number_and_a_notice) {
  connection->fail("goods", ado::error::statement_refused, "refused");
  GoodsRecord goods;
  EXPECT_EQ(GetGoodsById("G1", goods), ado::error::statement_refused);
  connection->answer("goods", table({"id"}, {{"G1"}}));
  EXPECT_EQ(GetGoodsById("G1", goods), 3265);
  EXPECT_EQ(host.notices, (Texts{"提示信息|GetGoodsById():refused",
                                 "提示信息|GetGoodsById():在对应所需名称或序数的集合中，未找到项目。"}));
}

TEST(ConfigurationKeys, Are_the_vocabulary_of_the_table) {
  EXPECT_EQ(Texts(config::all.begin(), config::all.end()), (Texts{"启用坏件审核",
                                                                  "启用帐款审核",
                                                                  "启用进销审核",
                                                                  "启用仓库业务审核",
                                                                  "启用审核",
                                                                  "启用零售",
                                                                  "启用坏件管理",
                                                                  "启用售服业务",
                                                                  "启用装机业务",
                                                                  "允许撤销审核",
                                                                  "启用唯一序列号管理",
                                                                  "允许负库存",
                                                                  "记录出厂/销售日期",
                                                                  "保存单据后默认自动更新",
                                                                  "启用规格1",
                                                                  "启用规格2",
                                                                  "启用会员卡",
                                                                  "启用折扣卡",
                                                                  "空闲后锁定界面",
                                                                  "空闲后锁定界面时间设定",
                                                                  "软件退出后自动备份数据库",
                                                                  "备份数据库的目录",
                                                                  "隐藏初始化向导",
                                                                  "保修备注字段",
                                                                  "规格1字段",
                                                                  "规格2字段",
                                                                  "零售价字段",
                                                                  "一级批发价字段",
                                                                  "二级批发价字段",
                                                                  "三级批发价字段",
                                                                  "四级批发价字段",
                                                                  "五级批发价字段",
                                                                  "商品使用多单位",
                                                                  "启用主营产品价格控制",
                                                                  "保修条款设置",
                                                                  "默认发票类型",
                                                                  "默认价格含税",
                                                                  "默认销售价格",
                                                                  "商品使用条码",
                                                                  "会员卡积分率(元/分)",
                                                                  "启用结账",
                                                                  "启用反结账",
                                                                  "默认现收金额",
                                                                  "标准成本计算方式",
                                                                  "启用采购单抹零",
                                                                  "采购单抹零方式",
                                                                  "采购单抹零位数",
                                                                  "启用采购退货单抹零",
                                                                  "采购退货单抹零方式",
                                                                  "采购退货单抹零位数",
                                                                  "启用销售单抹零",
                                                                  "销售单抹零方式",
                                                                  "销售单抹零位数",
                                                                  "启用销售退货单抹零",
                                                                  "销售退货单抹零方式",
                                                                  "销售退货单抹零位数",
                                                                  "启用装机报价单抹零",
                                                                  "装机报价单抹零方式",
                                                                  "装机报价单抹零位数",
                                                                  "启用零售抹零",
                                                                  "零售抹零方式",
                                                                  "零售抹零位数",
                                                                  "启用现收",
                                                                  "启用用款计划生成其它收/付款单",
                                                                  "用款计划的结款标记",
                                                                  "用款计划的结款开始日期",
                                                                  "用款计划的时间范围",
                                                                  "收款计划超期作废天数",
                                                                  "付款计划超期作废天数"}));
}

}  // namespace
}  // namespace brunvik
