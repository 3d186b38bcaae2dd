// The public members of every class, as hosts know them: none may change its place, its type or its arguments, and
// none may go without a test.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "brunvik/ado/names.h"
#include "brunvik/automation/automation.h"
#include "tests/support/error_number.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

// A line names a kind and a type, then the members in their order. Arguments: & by reference, ? optional, = default.
struct Expected {
  const char* class_name;
  std::string members;
};

const std::string walking_verbs = R"(
verb Long: LoadLast() GetLastId(&LastId:String) LoadNext() LoadPreviou()
)";
const std::string near_verb = R"(
verb Long: GetNearId(CurBillID:String,&NearBillID:String,?NextPreviousId:Boolean=False)
)";

std::string purchase_receipt(const std::string& advance, const std::string& advance_amount) {
  return R"(
property Connection: ADOConn
property Boolean: CreateFlag
property String: Nowpaybillid )" +
         advance + R"(
collection Collection: colBillItems
property String: ID Manualid Vendor RkrId Salesman Creator Createtime
read-only Long: Inoutflag
property String: Audittime
property Long: Status
property Money: Paidamount )" +
         advance_amount + R"( Closeamount Amount BillCost
read-only Boolean: Closedtag
property Long: Referflag
property String: Auditor Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() GetNewId(&BID:String)
)" + walking_verbs +
         R"(
verb Long: LoadById(&BID:String,?lRowNum:Long=-1,?bDHBJ:Boolean=False)
)" + near_verb +
         R"(
verb Long: Audit(&?bJKC:Boolean=False) UndoAudit(&?bJKC:Boolean=False)
)";
}

const std::string purchase_return = R"(
property Connection: ADOConn
property Long: Status
property String: Nowpaybillid
collection Collection: colBillItems
property String: ID Manualid Vendor CkrId ThrId Creator Createtime Auditor Audittime
property Money: Paidamount Closeamount Amount BillCost
property Long: Deliverymethod
read-only Boolean: Closedtag
property Long: Referflag
property String: Summary Remarks
verb Long: Save() SaveAsDraft() GetNewId(&BID:String) Delete() LoadLast() GetLastId(&LastId:String)
verb Long: LoadById(&BID:String) LoadNext() LoadPreviou()
)" + near_verb + R"(
verb Long: Audit() UndoAudit()
)";

std::string sales_issue(const std::string& advance, const std::string& advance_amount) {
  return R"(
property Connection: ADOConn
property Boolean: JQBJ FHBJ CreateFlag
property String: Nowpaybillid )" +
         advance + R"(
collection Collection: colBillItems
property String: ID Manualid ClientId CkrId Salesman Creator Createtime Audittime
property Long: Status
property Money: Paidamount )" +
         advance_amount + R"( Closeamount Amount BillCost
read-only Boolean: Closedtag
property String: Invoicename
property Long: Invoicetype
property Single: Taxrate
property Integer: Discounttype
property String: Discountcard
property Single: Discountrate
property Long: Deliverymethod Referflag
property String: Auditor Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() LoadLast(&?sIDQZ:String=) GetLastId(&LastId:String,&?sIDQZ:String=)
verb Long: LoadById(&BID:String) LoadNext(&?sIDQZ:String=) LoadPreviou(&?sIDQZ:String=)
verb Long: GetNewId(&BID:String,&?sIDQZ:String=)
verb Long: GetNearId(CurBillID:String,&NearBillID:String,?NextPreviousId:Boolean=False,&?sIDQZ:String=)
verb Long: Audit(&?bJKC:Boolean=False) UndoAudit(&?bJKC:Boolean=False)
)";
}

std::string sales_return(const std::string& audit) {
  return R"(
property Connection: ADOConn
property String: Nowpaybillid
collection Collection: colBillItems
property String: ID Manualid RkrId ClientId Manager Creator Createtime
property Long: Status
property String: Auditor Audittime
property Money: Paidamount Closeamount Amount BillCost
property String: Invoicename
property Long: Invoicetype
property Single: Taxrate
read-only Boolean: Closedtag
property Long: Referflag
property String: Referbillid Summary Remarks
verb Long: Save() SaveAsDraft() Delete() DeleteSalesInBillAndItems()
)" + walking_verbs +
         R"(
verb Long: GetNewId(&BID:String) LoadById(&BID:String)
)" + near_verb +
         "verb Long: Audit(" + audit + ") UndoAudit(" + audit + ")\n";
}

// The warehouse documents: what a class has beside the rest.
struct Warehouse {
  std::string person;
  std::string side;
  std::string money;
  std::string refer_flag = "Long";
  std::string result = "Long";
  std::string get_bill = "verb Long: GetBill()\n";
  std::string near = near_verb;
  std::string audit = "verb Long: Audit() UndoAudit()\n";
};

std::string warehouse(const Warehouse& own) {
  return R"(
property Connection: ADOConn
collection Collection: colBillItems
property String: ID Manualid )" +
         own.person + R"( Creator Createtime
)" + own.side +
         R"(
property String: Auditor Audittime
property Long: Status
property Money: )" +
         own.money + "\nproperty " + own.refer_flag + R"(: Referflag
property String: Summary Remarks
verb )" + own.result +
         ": Save() SaveAsDraft()\n" + own.get_bill + "verb " + own.result + R"(: Delete()
verb Long: LoadLast() GetLastId(&LastId:String) LoadById(&BID:String) LoadNext() LoadPreviou() GetNewId(&BID:String)
)" + own.near +
         own.audit;
}

const std::string count_audit = "verb Long: UpdateAudited() CancelAudited()\n";

std::string rp_voucher(const std::string& manager) {
  return R"(
property Connection: ADOConn
collection Collection: colRPBItems colRPBRPItems
property String: ID Manualid
property Long: )" +
         manager + R"(
property String: Ccompany
property Money: Paidamount Amount
read-only Money: DiscountAmount
property Boolean: Nowpay
property Long: Status
property String: Creator Createtime Auditor Audittime
property Long: Referflag
property String: Referbillid Summary Remarks
verb Long: GetNewId(&BID:String) LoadById(&BID:String) Delete() LoadLast() LoadNext() LoadPreviou()
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetLastId(&LastId:String)
verb Long: GetNextId(CurBillID:String,&NextId:String) Audite(&?Auditor:String=,&?Audittime:String=) UndoAudite()
verb Long: Save() SaveAsDraft()
)";
}

const std::string advance_bill = R"(
property Connection: ADOConn
collection Collection: colAdvanceItems
property String: ID Manualid
property Long: Payer
property String: Ccompany
property Money: Paidamount Amount
property Boolean: Nowpay
property Long: Status
property String: Creator Createtime Auditor Audittime
property Long: Referflag
property String: Referbillid Summary
read-only Money: DiscountAmount
property String: Remarks
verb Long: Save() SaveAsDraft() LoadById(&BID:String) Delete() LoadLast() LoadNext() LoadPreviou()
verb Long: GetPreviousId(CurBillID:String,&PreviousId:String) GetLastId(&LastId:String)
verb Long: GetNextId(CurBillID:String,&NextId:String) GetNewId(&BID:String)
verb Long: Audite(&?Auditor:String=,&?Audittime:String=) UndoAudite()
)";

const std::vector<Expected>& expected_classes() {
  static const std::vector<Expected> classes{
      {"InitBrunvikVariable", R"(
property String: DATAType OperatorId
property Connection: ADOConn
verb Nothing: InitClase_PublicVariable()
)"},
      {"clsPurchaseInBill", purchase_receipt("NowAdvanceBillID", "AdvanceAmount")},
      {"clsPurchaseOutBill", purchase_return},
      {"clsSalesInBill", sales_return("&?IsBJKC:Boolean=False")},
      {"clsSalesOutBill", sales_issue("NowAdvanceBillID", "AdvanceAmount")},
      {"clsOthersInBill", warehouse({.person = "RManager", .side = "", .money = "Paidamount BillCost"})},
      {"clsOthersOutBill", warehouse({.person = "SManager", .side = "", .money = "BillCost"})},
      {"clsReportOfOverflowBill", warehouse({.person = "Manager",
                                             .side = "",
                                             .money = "Paidamount",
                                             .result = "Variant",
                                             .get_bill = "",
                                             .audit = count_audit})},
      {"clsReportOfLossesBill", warehouse({.person = "Manager",
                                           .side = "read-only Long: Inoutflag",
                                           .money = "",
                                           .refer_flag = "Integer",
                                           .result = "Variant",
                                           .get_bill = "verb Variant: GetBill()\n",
                                           .audit = count_audit})},
      {"clsTZBill", warehouse({.person = "RManager", .side = "", .money = "Paidamount BillCost", .near = ""})},
      {"clsPurchaseInBjkcBill", purchase_receipt("", "")},
      {"clsPurchaseOutBjkcBill", purchase_return},
      {"clsSalesOutBjkcBill", sales_issue("", "")},
      {"clsSalesInBjkcBill", sales_return("")},
      {"clsPayBill", rp_voucher("Payer")},
      {"clsReceiptBill", rp_voucher("Skr")},
      {"clsAdvanceBill", advance_bill},
      {"clsAdvanceYSBill", advance_bill},
  };
  return classes;
}

const std::string stock_row = R"(
property String: BillId
property Integer: Rownum
property String: Gid Gbarcode Gname Class Model1 Model2 Unit
property Single: Qty Actualqty
property Money: price Amount Cost
property String: Receiver Wname Equipcode Remarks Supplier Outfactorydate Buydate Accessory
property Money: ShareCost
property Long: GoodStutas SendStutas
property Money: xfmount
property Long: MeansOfPayment
)";

const std::vector<Expected>& expected_records() {
  static const std::vector<Expected> records{
      {"StockRow", stock_row},
      {"CountRow", stock_row},
      {"PaymentRow", R"(
property String: BID
property Integer: Rownum
property Long: MeansOfPayment
property String: kh
property Money: Amount
property String: Remarks
)"},
      {"SettledRow", R"(
property String: BID
property Integer: Rownum
property String: Rpablebid
property Byte: Rpablebtype
property Money: Amount
property String: Remarks
property Money: BillAmount OpenAmount
)"},
  };
  return records;
}

// One member a line.
std::string spread(const std::string& members) {
  std::string spread;
  std::istringstream lines(members);
  for (std::string line; std::getline(lines, line);) {
    const auto colon = line.find(": ");
    if (colon == std::string::npos) continue;
    std::istringstream names(line.substr(colon + 2));
    for (std::string name; names >> name;) spread += line.substr(0, colon) + " " + name + "\n";
  }
  return spread;
}

std::string signature(const Member& member) {
  std::string text(member.name());
  text += '(';
  for (const Parameter& parameter : member.parameters()) {
    if (text.back() != '(') text += ',';
    if (parameter.by_reference) text += '&';
    if (parameter.optional) text += '?';
    text.append(parameter.name).append(":").append(name_of(parameter.type));
    if (parameter.optional) text += "=" + parameter.default_value.as_text();
  }
  return text + ")";
}

std::string described(const PublicObject& object) {
  std::string text;
  for (const Member& member : object.members()) {
    const bool read_only = member.kind() == MemberKind::read_only_property;
    text.append(read_only ? "read-only" : name_of(member.kind())).append(" ").append(name_of(member.type()));
    text += " " + (member.kind() == MemberKind::verb ? signature(member) : std::string(member.name())) + "\n";
  }
  return text;
}

TEST(PublicMembers, Of_every_class_stand_in_their_order_with_their_types) {
  const auto classes = automation::classes();
  ASSERT_EQ(classes.size(), expected_classes().size());
  for (std::size_t place = 0; place < classes.size(); ++place) {
    const auto& [name, members] = expected_classes()[place];
    EXPECT_EQ(classes[place].name, name);
    EXPECT_EQ(described(*classes[place].create()), spread(members)) << name;
  }
}

TEST(PublicMembers, Of_every_row_record_stand_in_their_order_with_their_types) {
  for (const auto& [name, members] : expected_records()) {
    EXPECT_EQ(described(automation::create_rows(name)->add()), spread(members)) << name;
  }
}

// A value of the type that no property starts with, and the one that every property of the type starts with.
std::pair<Value, Value> values_of(Type type) {
  switch (type) {
    case Type::Text:
      return {" O'Neil 的单 ", ""};
    case Type::Byte:
      return {Byte{200}, Byte{0}};
    case Type::Integer:
      return {Integer{-7}, Integer{0}};
    case Type::Long:
      return {Long{70'000}, Long{0}};
    case Type::Single:
      return {Single{0.5F}, Single{0}};
    case Type::Money:
      return {Money::parse("12.3456"), Money()};
    case Type::Boolean:
      return {true, false};
    default:
      ADD_FAILURE() << "no value for a " << name_of(type);
      return {};
  }
}

void put_and_get_back(PublicObject& object, const Member& member) {
  const auto [value, first_value] = values_of(member.type());
  EXPECT_EQ(member.get(object), first_value);
  member.put(object, value);
  EXPECT_EQ(member.get(object), value);
}

void put_rows_and_get_them_back(PublicObject& object, const Member& member, PublicObject& other) {
  EXPECT_EQ(member.rows(object).Count(), 0U);
  member.rows(object).add();
  member.put(other, member.get(object));
  EXPECT_EQ(member.rows(other).Count(), 1U);
}

void put_a_connection_and_get_it_back(PublicObject& object, const Member& member) {
  EXPECT_EQ(member.get(object), Value(ado::ObjectReference()));
  const Value connection = ado::ObjectReference(std::make_shared<test::ScriptedConnection>());
  member.put(object, connection);
  EXPECT_EQ(member.get(object), connection);
}

TEST(PublicMembers, Every_property_gives_back_what_was_put_and_starts_with_nothing) {
  for (const automation::Class& each : automation::classes()) {
    const auto object = each.create();
    const auto other = each.create();
    for (const Member& member : object->members()) {
      SCOPED_TRACE(std::string(each.name) + "." + std::string(member.name()));
      if (member.kind() == MemberKind::collection) {
        put_rows_and_get_them_back(*object, member, *other);
      } else if (member.type() == Type::Connection) {
        put_a_connection_and_get_it_back(*object, member);
      } else if (member.kind() == MemberKind::property) {
        put_and_get_back(*object, member);
      }
    }
  }
}

TEST(PublicMembers, No_property_shares_its_place_with_another) {
  for (const automation::Class& each : automation::classes()) {
    for (const Member& changed : each.create()->members()) {
      if (changed.kind() != MemberKind::property || changed.type() == Type::Connection) continue;
      const auto object = each.create();
      changed.put(*object, values_of(changed.type()).first);
      for (const Member& other : object->members()) {
        if (other.kind() != MemberKind::property || other.type() == Type::Connection) continue;
        if (other.name() == changed.name()) continue;
        EXPECT_EQ(other.get(*object), values_of(other.type()).second)
            << each.name << ": " << changed.name() << " changed " << other.name();
      }
    }
  }
}

TEST(PublicMembers, Every_field_of_a_row_record_gives_back_what_was_put_and_starts_with_nothing) {
  for (const auto& [name, members] : expected_records()) {
    const auto rows = automation::create_rows(name);
    PublicObject& row = rows->add();
    for (const Member& member : row.members()) {
      SCOPED_TRACE(std::string(name) + "." + std::string(member.name()));
      put_and_get_back(row, member);
    }
  }
}

TEST(PublicMembers, What_is_read_only_and_every_verb_refuse_a_put) {
  for (const automation::Class& each : automation::classes()) {
    const auto object = each.create();
    for (const Member& member : object->members()) {
      if (member.kind() == MemberKind::property || member.kind() == MemberKind::collection) continue;
      EXPECT_EQ(test::error_number([&] { automation::put(*object, member.name(), 1); }), 438)
          << each.name << "." << member.name();
    }
  }
}

TEST(PublicMembers, What_is_read_only_is_worked_out_from_what_was_put) {
  for (const auto& [class_name, side] : std::vector<std::pair<const char*, Long>>{
           {"clsPurchaseInBill", 1}, {"clsPurchaseInBjkcBill", 1}, {"clsReportOfLossesBill", 2}}) {
    EXPECT_EQ(automation::get(*automation::create(class_name), "Inoutflag"), Value(side)) << class_name;
  }
  for (const char* class_name :
       {"clsPurchaseInBill", "clsPurchaseInBjkcBill", "clsPurchaseOutBill", "clsPurchaseOutBjkcBill", "clsSalesInBill",
        "clsSalesInBjkcBill", "clsSalesOutBill", "clsSalesOutBjkcBill"}) {
    const auto bill = automation::create(class_name);
    EXPECT_EQ(automation::get(*bill, "Closedtag"), Value(true)) << class_name;
    automation::put(*bill, "Closeamount", "0.3");
    automation::put(*bill, "Paidamount", "0.2999");
    automation::put(*bill, "Amount", "0.1");
    EXPECT_EQ(automation::get(*bill, "Closedtag"), Value(false)) << class_name;
    automation::put(*bill, "Paidamount", "0.3");
    EXPECT_EQ(automation::get(*bill, "Closedtag"), Value(true)) << class_name;
    automation::put(*bill, "Paidamount", "5");
    EXPECT_EQ(automation::get(*bill, "Closedtag"), Value(true)) << class_name;
  }
  for (const char* class_name : {"clsPayBill", "clsReceiptBill", "clsAdvanceBill", "clsAdvanceYSBill"}) {
    const auto voucher = automation::create(class_name);
    automation::put(*voucher, "Amount", "100");
    automation::put(*voucher, "Paidamount", "99.9");
    EXPECT_EQ(automation::get(*voucher, "DiscountAmount"), Value(Money::parse("0.1"))) << class_name;
    automation::put(*voucher, "Paidamount", "100.5");
    EXPECT_EQ(automation::get(*voucher, "DiscountAmount"), Value(Money::parse("-0.5"))) << class_name;
  }
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), ado::lower);
  return text;
}

// "class.verb" of every call in the cases, in lower case.
std::set<std::string> verbs_called_in_cases() {
  std::set<std::string> called;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(BRUNVIK_CASES)) {
    if (entry.path().extension() != ".case") continue;
    std::ifstream file(entry.path());
    std::map<std::string, std::string> classes;
    for (std::string line; std::getline(file, line);) {
      if (!line.starts_with("> ")) continue;
      const auto said = nlohmann::json::parse(line.substr(2), nullptr, false);
      if (!said.is_object() || !said.contains("do")) continue;
      if (said["do"] == "new") classes[said.value("as", "")] = said.value("class", "");
      if (said["do"] == "session") called.insert("initbrunvikvariable.initclase_publicvariable");
      if (said["do"] == "call") called.insert(lower(classes[said.value("on", "")] + "." + said.value("verb", "")));
    }
  }
  return called;
}

TEST(PublicMembers, Every_verb_of_every_class_is_called_in_a_case) {
  const auto called = verbs_called_in_cases();
  std::string missing;
  for (const automation::Class& each : automation::classes()) {
    for (const Member& member : each.create()->members()) {
      if (member.kind() != MemberKind::verb) continue;
      const std::string name = std::string(each.name) + "." + std::string(member.name());
      if (!called.contains(lower(name))) missing += name + "\n";
    }
  }
  EXPECT_EQ(missing, "");
}

}  // namespace
}  // namespace brunvik
