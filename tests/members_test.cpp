#include "brunvik/foundation/members.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "brunvik/foundation/statement_writer.h"
#include "tests/support/error_number.h"
#include "tests/support/sample.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using test::error_number;
using test::Sample;
using test::SampleRow;

const Member& member(const char* name) { return Sample::table().named(name); }

TEST(Members, Stand_in_their_public_order_without_those_that_are_not_published) {
  std::string names;
  for (const Member& each : Sample::table()) names.append(each.name()) += ' ';
  EXPECT_EQ(names,
            "ADOConn colItems ID Kind Rownum Status Rate Exact Amount Flag Anything Read Closed Save GetNewId Add Echo "
            "Forget Count Name Refuse ");
}

TEST(Members, Are_found_by_name_without_regard_to_case) {
  EXPECT_EQ(member("id").name(), "ID");
  EXPECT_EQ(member("COLITEMS").name(), "colItems");
  EXPECT_EQ(error_number([] { member("Nothing"); }), 438);
  EXPECT_EQ(error_number([] { member("Hidden"); }), 438);
  EXPECT_EQ(error_number([] { member(""); }), 438);
}

TEST(Members, Know_the_property_that_a_column_is_written_from) {
  EXPECT_EQ(Sample::table().written_to("taxrate").name(), "Rate");
  EXPECT_EQ(Sample::table().written_to("ClosedTag").name(), "Closed");
  EXPECT_EQ(error_number([] { Sample::table().written_to("Hidden"); }), 3265);
  EXPECT_EQ(error_number([] { Sample::table().written_to(""); }), 3265);
}

TEST(Members, Have_a_kind_and_a_type) {
  EXPECT_EQ(member("ADOConn").type(), Type::Connection);
  EXPECT_EQ(member("colItems").kind(), MemberKind::collection);
  EXPECT_EQ(member("colItems").type(), Type::Rows);
  EXPECT_EQ(member("ID").type(), Type::Text);
  EXPECT_EQ(member("Kind").type(), Type::Byte);
  EXPECT_EQ(member("Rownum").type(), Type::Integer);
  EXPECT_EQ(member("Status").type(), Type::Long);
  EXPECT_EQ(member("Rate").type(), Type::Single);
  EXPECT_EQ(member("Exact").type(), Type::Double);
  EXPECT_EQ(member("Amount").type(), Type::Money);
  EXPECT_EQ(member("Flag").type(), Type::Boolean);
  EXPECT_EQ(member("Anything").type(), Type::Variant);
  EXPECT_EQ(member("Closed").kind(), MemberKind::read_only_property);
  EXPECT_EQ(member("Save").kind(), MemberKind::verb);
  EXPECT_EQ(member("Save").type(), Type::Long);
  EXPECT_EQ(member("Forget").type(), Type::Nothing);
}

TEST(Members, Their_types_and_kinds_have_names) {
  EXPECT_EQ(name_of(Type::Nothing), "Nothing");
  EXPECT_EQ(name_of(Type::Text), "String");
  EXPECT_EQ(name_of(Type::Byte), "Byte");
  EXPECT_EQ(name_of(Type::Integer), "Integer");
  EXPECT_EQ(name_of(Type::Long), "Long");
  EXPECT_EQ(name_of(Type::Single), "Single");
  EXPECT_EQ(name_of(Type::Double), "Double");
  EXPECT_EQ(name_of(Type::Money), "Money");
  EXPECT_EQ(name_of(Type::Boolean), "Boolean");
  EXPECT_EQ(name_of(Type::Date), "Date");
  EXPECT_EQ(name_of(Type::Variant), "Variant");
  EXPECT_EQ(name_of(Type::Connection), "Connection");
  EXPECT_EQ(name_of(Type::Object), "Object");
  EXPECT_EQ(name_of(Type::Rows), "Collection");
  EXPECT_EQ(name_of(MemberKind::property), "property");
  EXPECT_EQ(name_of(MemberKind::read_only_property), "read-only property");
  EXPECT_EQ(name_of(MemberKind::collection), "collection");
  EXPECT_EQ(name_of(MemberKind::verb), "verb");
}

TEST(Members, A_put_takes_the_value_as_the_type_of_the_property) {
  Sample object;
  member("ID").put(object, 42);
  member("Kind").put(object, "200");
  member("Rownum").put(object, 2.5);
  member("Status").put(object, true);
  member("Rate").put(object, "0.25");
  member("Amount").put(object, 12.5);
  member("Flag").put(object, 7);
  member("Anything").put(object, ado::Null());
  EXPECT_EQ(object.ID, "42");
  EXPECT_EQ(object.Kind, 200);
  EXPECT_EQ(object.Rownum, 2);
  EXPECT_EQ(object.Status, -1);
  EXPECT_EQ(object.Rate, 0.25F);
  EXPECT_EQ(object.Amount.text(), "12.5");
  EXPECT_TRUE(object.Flag);
  EXPECT_TRUE(object.Anything.is_null());
}

TEST(Members, A_put_of_the_wrong_type_is_refused_and_leaves_the_property) {
  Sample object;
  object.Status = 5;
  EXPECT_EQ(error_number([&] { member("Status").put(object, "draft"); }), 13);
  EXPECT_EQ(error_number([&] { member("Status").put(object, ado::Null()); }), 94);
  EXPECT_EQ(error_number([&] { member("Rownum").put(object, 40'000); }), 6);
  EXPECT_EQ(object.Status, 5);
  EXPECT_EQ(object.Rownum, 0);
}

TEST(Members, What_is_read_only_and_a_verb_refuse_a_put) {
  Sample object;
  EXPECT_EQ(error_number([&] { member("Closed").put(object, true); }), 438);
  EXPECT_EQ(error_number([&] { member("Save").put(object, 1); }), 438);
  EXPECT_EQ(error_number([&] { return member("Save").get(object); }), 438);
}

TEST(Members, A_get_gives_the_value_in_the_type_of_the_property) {
  Sample object;
  object.ID = "x";
  object.Amount = Money::parse("0.5");
  EXPECT_EQ(member("ID").get(object), Value("x"));
  EXPECT_EQ(member("Kind").get(object), Value(Byte{0}));
  EXPECT_EQ(member("Rownum").get(object), Value(Integer{0}));
  EXPECT_EQ(member("Amount").get(object), Value(Money::parse("0.5")));
  EXPECT_EQ(member("Closed").get(object), Value(false));
  EXPECT_TRUE(member("Anything").get(object).is_empty());
}

TEST(Members, A_connection_is_put_by_reference_and_unset_by_nothing) {
  Sample object;
  auto connection = std::make_shared<test::ScriptedConnection>();
  member("ADOConn").put(object, ado::ObjectReference(connection));
  EXPECT_EQ(object.ADOConn, connection);
  EXPECT_EQ(*member("ADOConn").get(object).get_if<ado::ObjectReference>(), connection);
  member("ADOConn").put(object, ado::ObjectReference());
  EXPECT_EQ(object.ADOConn, nullptr);
  object.ADOConn = connection;
  member("ADOConn").put(object, ado::Null());
  EXPECT_EQ(object.ADOConn, nullptr);
  EXPECT_EQ(error_number([&] { member("ADOConn").put(object, "sqlite"); }), 13);
  EXPECT_EQ(
      error_number([&] { member("ADOConn").put(object, ado::ObjectReference(std::make_shared<ado::Recordset>())); }),
      13);
}

TEST(Members, A_collection_is_put_as_a_copy_of_rows_of_its_class) {
  Sample object;
  auto rows = std::make_shared<Collection<SampleRow>>();
  rows->add().Gid = "G1";
  member("colItems").put(object, ado::ObjectReference(rows));
  rows->at(1).Gid = "changed";
  ASSERT_EQ(object.colItems.Count(), 1U);
  EXPECT_EQ(object.colItems.at(1).Gid, "G1");

  EXPECT_EQ(error_number([&] { member("colItems").put(object, "rows"); }), 13);
  EXPECT_EQ(error_number(
                [&] { member("colItems").put(object, ado::ObjectReference(std::make_shared<Collection<Sample>>())); }),
            13);
  EXPECT_EQ(object.colItems.Count(), 1U);
}

TEST(Members, A_collection_that_is_got_stays_the_objects_own) {
  Sample object;
  member("colItems").rows(object).add();
  const Value got = member("colItems").get(object);
  auto* rows = dynamic_cast<RowCollection*>(got.get_if<ado::ObjectReference>()->get());
  ASSERT_NE(rows, nullptr);
  rows->add();
  EXPECT_EQ(object.colItems.Count(), 2U);
  EXPECT_EQ(error_number([&] { member("ID").rows(object); }), 438);
}

TEST(Members, A_field_is_read_as_the_type_of_the_property) {
  Sample object;
  member("ID").read(object, 7);
  member("Amount").read(object, 12.5);
  member("Flag").read(object, Long{1});
  EXPECT_EQ(object.ID, "7");
  EXPECT_EQ(object.Amount.text(), "12.5");
  EXPECT_TRUE(object.Flag);
  EXPECT_EQ(error_number([&] { member("Amount").read(object, "many"); }), 13);
}

TEST(Members, A_row_number_of_32_bits_is_read_as_far_as_it_fits) {
  Sample object;
  member("Rownum").read(object, Long{32'767});
  EXPECT_EQ(object.Rownum, 32'767);
  EXPECT_EQ(error_number([&] { member("Rownum").read(object, Long{32'768}); }), 6);
  EXPECT_EQ(object.Rownum, 32'767);
}

TEST(Members, A_null_reads_as_nothing_but_for_a_property_that_must_be_there) {
  Sample object;
  object.ID = "old";
  object.Amount = Money::parse("1");
  object.Flag = true;
  object.Status = 2;
  const Value null{ado::Null()};
  member("ID").read(object, null);
  member("Amount").read(object, null);
  member("Flag").read(object, null);
  EXPECT_EQ(object.ID, "");
  EXPECT_TRUE(object.Amount.is_zero());
  EXPECT_FALSE(object.Flag);
  EXPECT_EQ(error_number([&] { member("Status").read(object, null); }), 94);
  EXPECT_EQ(object.Status, 2);
}

TEST(Members, A_property_may_be_read_from_a_column_that_another_writes) {
  EXPECT_EQ(member("Read").read_column(), "ClosedTag");
  EXPECT_EQ(member("Read").written_column(), "");
  EXPECT_EQ(member("Closed").written_column(), "ClosedTag");
  EXPECT_EQ(member("Closed").read_column(), "");
}

TEST(Members, Write_their_value_into_a_statement) {
  Sample object;
  object.ID = "O'Neil";
  StatementWriter statement;
  member("ID").write_to(statement, object);
  member("Closed").write_to(statement, object);
  member("Anything").write_to(statement, object);
  EXPECT_EQ(statement.text(), "'O''Neil'1null");
}

TEST(RowCollection, Has_positions_from_1_to_its_count) {
  Collection<SampleRow> rows;
  EXPECT_EQ(error_number([&] { rows.at(1); }), 9);
  rows.add().Gid = "a";
  rows.add(SampleRow());
  EXPECT_EQ(rows.at(1).Gid, "a");
  EXPECT_EQ(error_number([&] { rows.at(0); }), 9);
  EXPECT_EQ(error_number([&] { rows.at(3); }), 9);
  rows.clear();
  EXPECT_EQ(rows.Count(), 0U);
}

}  // namespace
}  // namespace brunvik
