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
#include "brunvik/automation/family.h"
#include "tests/support/error_number.h"
#include "tests/support/public_members/expected.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using test::expected_classes;
using test::expected_records;

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

// Whether a value is what a member starts with unless its table says otherwise: no text, 0, false.
bool is_nothing(const Value& value) {
  if (const auto* text = value.get_if<std::string>()) return text->empty();
  return value.as_text() == "0" || value.as_text() == "False";
}

// A property that starts with something says so: Status=3.
std::string property_text(const PublicObject& object, const Member& member) {
  std::string text(member.name());
  if (member.kind() != MemberKind::property || member.type() == Type::Connection) return text;
  const Value start = member.get(object);
  return is_nothing(start) ? text : text + "=" + start.as_text();
}

std::string described(const PublicObject& object) {
  std::string text;
  for (const Member& member : object.members()) {
    const bool read_only = member.kind() == MemberKind::read_only_property;
    text.append(read_only ? "read-only" : name_of(member.kind())).append(" ").append(name_of(member.type()));
    text += " " + (member.kind() == MemberKind::verb ? signature(member) : property_text(object, member)) + "\n";
  }
  return text;
}

// Each of them has what is written down under its name, and nothing is written down of another. `describe` makes an
// object of one and describes it.
template <class Range, class Describe>
void expect_as_written_down(const Range& all, std::map<std::string, std::string> expected, Describe&& describe) {
  for (const auto& each : all) {
    const std::string name(each.name);
    if (!expected.contains(name)) {
      ADD_FAILURE() << name << " has nothing written down: its members belong into its family's file in "
                    << "tests/support/public_members";
      continue;
    }
    EXPECT_EQ(describe(each), spread(expected[name])) << name;
    expected.erase(name);
  }
  for (const auto& [name, members] : expected) ADD_FAILURE() << name << " has members written down and isn't there";
}

TEST(PublicMembers, Of_every_class_stand_in_their_order_with_their_types) {
  expect_as_written_down(automation::classes(), expected_classes(),
                         [](const automation::Class& each) { return described(*each.create()); });
}

TEST(PublicMembers, Of_every_record_stand_in_their_order_with_their_types) {
  expect_as_written_down(automation::record_classes(), expected_records(), [](const automation::RecordClass& each) {
    const auto rows = automation::create_rows(each.name);
    return described(rows->add());
  });
}

// A value of the type that no property starts with.
Value value_of(Type type) {
  switch (type) {
    case Type::Text:
      return " O'Neil 的单 ";
    case Type::Byte:
      return Byte{200};
    case Type::Integer:
      return Integer{-7};
    case Type::Long:
      return Long{70'000};
    case Type::Single:
      return Single{0.5F};
    case Type::Money:
      return Money::parse("12.3456");
    case Type::Boolean:
      return true;
    default:
      ADD_FAILURE() << "no value for a " << name_of(type);
      return {};
  }
}

void put_and_get_back(PublicObject& object, const Member& member) {
  const Value value = value_of(member.type());
  EXPECT_NE(member.get(object), value);
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

TEST(PublicMembers, Every_property_gives_back_what_was_put) {
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
      const auto untouched = each.create();
      changed.put(*object, value_of(changed.type()));
      for (const Member& other : object->members()) {
        if (other.kind() != MemberKind::property || other.type() == Type::Connection) continue;
        if (other.name() == changed.name()) continue;
        EXPECT_EQ(other.get(*object), other.get(*untouched))
            << each.name << ": " << changed.name() << " changed " << other.name();
      }
    }
  }
}

TEST(PublicMembers, Every_field_of_a_record_gives_back_what_was_put) {
  for (const auto& [name, members] : expected_records()) {
    const auto rows = automation::create_rows(name);
    PublicObject& row = rows->add();
    for (const Member& member : row.members()) {
      SCOPED_TRACE(std::string(name) + "." + std::string(member.name()));
      put_and_get_back(row, member);
    }
  }
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), ado::lower);
  return text;
}

void expect_no_column_twice(std::string_view name, const Members& members) {
  std::set<std::string> columns;
  for (const Member& member : members) {
    if (member.read_column().empty()) continue;
    const bool is_first = columns.insert(lower(std::string(member.read_column()))).second;
    EXPECT_TRUE(is_first) << name << "." << member.name() << " is read from the column of another";
  }
}

// A property takes its text out of the record: for another there would be nothing left.
TEST(PublicMembers, No_two_of_a_class_are_read_from_one_column) {
  for (const automation::Class& each : automation::classes()) {
    const auto object = each.create();
    expect_no_column_twice(each.name, object->members());
    for (const Member& member : object->members()) {
      if (member.kind() != MemberKind::collection) continue;
      expect_no_column_twice(each.name, member.rows(*object).add().members());
    }
  }
  for (const automation::RecordClass& each : automation::record_classes()) {
    expect_no_column_twice(each.name, automation::create_rows(each.name)->add().members());
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
  for (const auto& [class_name, side] : std::vector<std::pair<const char*, Long>>{{"clsPurchaseInBill", 1},
                                                                                  {"clsPurchaseInBjkcBill", 1},
                                                                                  {"clsReportOfLossesBill", 2},
                                                                                  {"clsInitInBill", 1}}) {
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
