#include "brunvik/automation/automation.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "brunvik/billframe/stock_row.h"
#include "brunvik/foundation/goods_record.h"
#include "brunvik/settlement/settlement_row.h"
#include "brunvik/warehouse/other_stock_document.h"
#include "tests/support/apartment.h"
#include "tests/support/error_number.h"
#include "tests/support/goods.h"
#include "tests/support/scripted_connection.h"

namespace brunvik::automation {
namespace {

using test::error_number;
using Texts = std::vector<std::string>;

class AutomationTest : public ::testing::Test {
 protected:
  Value call(const char* procedure, std::vector<Value> given = {}) {
    arguments = std::move(given);
    return call_procedure(procedure, arguments);
  }

  std::shared_ptr<test::ScriptedConnection> connection = std::make_shared<test::ScriptedConnection>();
  test::Session guard{connection};
  test::FixedClock clock{"2024-03-05 10:00:00"};
  test::NoticeRecorder host;
  std::vector<Value> arguments;
};

TEST_F(AutomationTest, Every_class_is_made_by_its_name_and_knows_its_kind) {
  for (const Class& each : classes()) {
    const auto object = create(each.name);
    ASSERT_NE(object, nullptr) << each.name;
    EXPECT_NE(object->members().begin(), object->members().end()) << each.name;
    EXPECT_EQ(each.kind ? each.kind->class_name : "InitBrunvikVariable", each.name);
  }
  EXPECT_EQ(classes().front().name, "InitBrunvikVariable");
  EXPECT_EQ(classes().front().kind, nullptr);
}

TEST_F(AutomationTest, Every_kind_has_its_class_in_the_order_of_the_catalogue) {
  Texts in_catalogue{"InitBrunvikVariable"}, listed;
  for (const Class& each : classes()) listed.emplace_back(each.name);
  for (const Kind* kind : kind::all()) in_catalogue.emplace_back(kind->class_name);
  ASSERT_EQ(listed, in_catalogue);
  for (const Kind* kind : kind::all()) EXPECT_EQ(class_named(kind->class_name).kind, kind) << kind->class_name;
}

TEST_F(AutomationTest, A_class_is_found_without_regard_to_case) {
  EXPECT_EQ(class_named("CLSOTHERSINBILL").name, "clsOthersInBill");
  EXPECT_EQ(error_number([] { create("clsNothing"); }), 429);
  EXPECT_EQ(error_number([] { create(""); }), 429);
  EXPECT_EQ(error_number([] { class_named("clsOthersIn"); }), 429);
}

TEST_F(AutomationTest, Every_object_is_a_new_one) { EXPECT_NE(create("clsPayBill"), create("clsPayBill")); }

TEST_F(AutomationTest, Properties_rows_and_verbs_are_reached_by_name) {
  const auto bill = create("clsOthersInBill");
  put(*bill, "adoconn", ado::ObjectReference(connection));
  put(*bill, "ID", "QTR1");
  EXPECT_EQ(get(*bill, "id"), Value("QTR1"));
  PublicObject& row = rows(*bill, "colbillitems").add();
  put(row, "Gid", "G1");
  EXPECT_EQ(dynamic_cast<clsOthersInBill&>(*bill).colBillItems.at(1).Gid, "G1");
  EXPECT_EQ(automation::call(*bill, "Delete", arguments), Value(Long{0}));
  EXPECT_EQ(connection->statements,
            (Texts{"delete from StockBillItems where BillId='QTR1'", "delete from stockbill where Id='QTR1'"}));
}

TEST_F(AutomationTest, What_is_no_member_is_error_438) {
  const auto bill = create("clsOthersInBill");
  EXPECT_EQ(error_number([&] { get(*bill, "SManager"); }), 438);
  EXPECT_EQ(error_number([&] { put(*bill, "Nothing", 1); }), 438);
  EXPECT_EQ(error_number([&] { rows(*bill, "colRPBItems"); }), 438);
  EXPECT_EQ(error_number([&] { automation::call(*bill, "UpdateAudited", arguments); }), 438);
}

TEST_F(AutomationTest, What_a_verb_meets_is_its_result_and_no_exception) {
  const auto bill = create("clsOthersInBill");
  put(*bill, "ID", "QTR1");
  EXPECT_EQ(automation::call(*bill, "Delete", arguments), Value(Long{91}));
  put(*bill, "ID", "");
  EXPECT_EQ(automation::call(*bill, "Save", arguments), Value(Long{-1}));
}

TEST_F(AutomationTest, Every_module_procedure_has_its_name_its_result_and_its_arguments) {
  std::string described;
  for (const Procedure& procedure : procedures()) {
    described.append(name_of(procedure.result)).append(" ").append(procedure.name).append("(");
    for (const Parameter& parameter : procedure.parameters) {
      if (parameter.optional) described += '?';
      if (parameter.by_reference) described += '&';
      described.append(parameter.name).append(":").append(name_of(parameter.type)).append(" ");
    }
    described += ")\n";
  }
  EXPECT_EQ(described,
            "String GetSqlVal(&Value:Variant ?IsLike:Boolean ?WildCard:String ?Position:String )\n"
            "Variant EscapeLike(Text:String )\n"
            "String Get_DateStr(Value:Date &DateFormat:Integer )\n"
            "Nothing ExecuteSql(&Sql:String )\n"
            "Nothing ExecuteNonQuerySql(&Sql:String )\n"
            "Boolean IsConnected()\n"
            "Nothing Open_Recordset(?&Recordset:Object )\n"
            "Nothing Close_Recordset(?&Recordset:Object )\n"
            "Long Get_BillMaxId(Table:String Field:String Where:String DateText:String )\n"
            "Long Get_UniqV(Table:String Field:String )\n"
            "String GetKeyValue(Key:String )\n"
            "String GetContactsCompanyField(Id:String Column:String )\n"
            "Long GetGoodsById(Id:String &Goods:Object )\n"
            "Money GoodsUnitConverter(Id:String Unit:String )\n"
            "Money AuditUpdateAverageCost(&GoodsId:String &Unit:String &Class:String &Model1:String &Model2:String "
            "&Qty:Single &Price:Money &CostDelta:Money )\n"
            "Money UndoAuditUpdateAverageCost(&GoodsId:String &Unit:String &Class:String &Model1:String "
            "&Model2:String &Qty:Single &Price:Money &CostDelta:Money )\n"
            "Money GetAverageCost(GoodsId:String Class:String Model1:String Model2:String )\n"
            "Nothing UpdateBillItemCost(BillId:String RowNum:Integer Cost:Money ShareCost:Money )\n"
            "Money CalcBillCost(Rows:Collection &Type:Integer )\n"
            "Nothing UpdateBillCost(BillId:String Type:Long BillCost:Money )\n"
            "Long CreateZHJYXX_LX(BillId:String Amount:Money AccountId:String Responsible:String Direction:Integer "
            "TypeCode:Long Item:String &Voucher:Boolean &DateText:String &Payer:String )\n"
            "Long DeleteZHJYXX(&BillId:String )\n");
}

TEST_F(AutomationTest, Every_module_procedure_can_be_called_by_name) {
  EXPECT_EQ(call("GetSqlVal", {"O'Neil"}), Value("'O''Neil'"));
  EXPECT_EQ(arguments, (std::vector<Value>{"O'Neil", false, "[Drop]", "[Drop]"}));
  EXPECT_EQ(call("getsqlval", {"a_", true, "%", "End"}), Value(" like 'a[_]%'"));
  EXPECT_EQ(call("EscapeLike", {"a%"}), Value("a[%]"));
  EXPECT_EQ(call("Get_DateStr", {"2024-03-05 10:00:00", 2}), Value("'2024-03-05'"));
  EXPECT_EQ(call("IsConnected"), Value(true));
  call("ExecuteSql", {"set a=true"});
  EXPECT_EQ(arguments, std::vector<Value>{"SET A=1"});
  call("ExecuteNonQuerySql", {"set a=false"});
  EXPECT_EQ(arguments, std::vector<Value>{"SET A=0"});
  connection->answer("max(", test::table({"m"}, {{"QTR24030500001"}}));
  EXPECT_EQ(call("Get_BillMaxId", {"StockBill", "ID", "", ""}), Value(Long{2}));
  connection->answer("max(", test::table({"ls_bm"}, {{4}}));
  EXPECT_EQ(call("Get_UniqV", {"ZHJYXX", "ID"}), Value(Long{5}));
  EXPECT_EQ(call("GetKeyValue", {"启用审核"}), Value(""));
  EXPECT_EQ(call("GetContactsCompanyField", {"C1", "FullName"}), Value(""));
  EXPECT_EQ(call("GetGoodsById", {"G1", ado::Null()}), Value(Long{0}));
  EXPECT_EQ(call("GoodsUnitConverter", {"G1", "箱"}), Value(Money::from_whole(1)));
  EXPECT_EQ(call("AuditUpdateAverageCost", {"G1", "", "", "", "", 1, 2, -1}), Value(Money()));
  EXPECT_EQ(call("UndoAuditUpdateAverageCost", {"G1", "", "", "", "", 1, 2, -1}), Value(Money()));
  EXPECT_EQ(call("GetAverageCost", {"G1", "", "", ""}), Value(Money()));
  connection->statements.clear();
  call("UpdateBillItemCost", {"B1", "2", "1.5", 0});
  call("UpdateBillCost", {"B1", 5, "1.5"});
  EXPECT_EQ(connection->statements,
            (Texts{"Update StockBillItems set cost=1.5,ShareCost=0 where BillId='B1' and RowNum=2",
                   "Update StockBill set BillCost=1.5 where Id='B1' and Type=5"}));
  auto rows = create_rows("StockRow");
  put(rows->add(), "Cost", "2.5");
  EXPECT_EQ(call("CalcBillCost", {ado::ObjectReference(rows), -1}), Value(Money::parse("2.5")));
  auto set = std::make_shared<ado::Recordset>(test::table({"a"}));
  call("Close_Recordset", {ado::ObjectReference(set)});
  EXPECT_EQ(set->State(), 0);
  call("Open_Recordset", {ado::ObjectReference(set)});
  set->Open("select 1");
  EXPECT_EQ(set->State(), 1);
  EXPECT_EQ(host.notices, Texts{});
}

TEST_F(AutomationTest, A_goods_record_is_filled_where_it_stands) {
  connection->answer("from goods", test::goods("G1", "个"));
  auto goods = std::make_shared<GoodsRecord>();
  EXPECT_EQ(call("GetGoodsById", {"G1", ado::ObjectReference(goods)}), Value(Long{0}));
  EXPECT_EQ(goods->Unit, "个");
  EXPECT_EQ(error_number([&] { call("GetGoodsById", {"G1", ado::ObjectReference(create_rows("StockRow"))}); }), 13);
}

TEST_F(AutomationTest, An_unknown_procedure_and_a_wrong_count_of_arguments_are_refused) {
  EXPECT_EQ(error_number([&] { call("Nothing"); }), 438);
  EXPECT_EQ(error_number([&] { call("GetKeyValue"); }), 450);
  EXPECT_EQ(error_number([&] { call("IsConnected", {1}); }), 450);
  EXPECT_EQ(error_number([&] { call("Get_DateStr", {"no date", 0}); }), 13);
}

TEST_F(AutomationTest, Rows_of_every_record_class_are_made_by_name) {
  EXPECT_NE(dynamic_cast<StockRow*>(&create_rows("StockRow")->add()), nullptr);
  EXPECT_NE(dynamic_cast<CountRow*>(&create_rows("countrow")->add()), nullptr);
  EXPECT_NE(dynamic_cast<PaymentRow*>(&create_rows("PaymentRow")->add()), nullptr);
  EXPECT_NE(dynamic_cast<SettledRow*>(&create_rows("SettledRow")->add()), nullptr);
  EXPECT_EQ(error_number([] { create_rows("Row"); }), 429);
}

TEST_F(AutomationTest, A_new_row_holds_nothing_of_the_row_that_lay_there_before) {
  for (const automation::RecordClass& each : automation::record_classes()) {
    const auto rows = create_rows(each.name);
    PublicObject& row = rows->add();
    std::vector<std::pair<std::string, Value>> nothing;
    for (const Member& member : row.members()) {
      if (member.place().is_nowhere()) continue;
      nothing.emplace_back(member.name(), member.get(row));
      member.put(row, "1");
      EXPECT_NE(member.get(row), nothing.back().second) << each.name << " " << member.name();
    }
    rows->clear();
    const PublicObject& again = rows->add();
    ASSERT_EQ(&again, &row);
    for (const auto& [name, value] : nothing) {
      EXPECT_EQ(again.members().named(name).get(again), value) << each.name << " " << name;
      EXPECT_TRUE(value.as_text().empty() || value.as_double() == 0) << each.name << " " << name;
    }
  }
}

}  // namespace
}  // namespace brunvik::automation
