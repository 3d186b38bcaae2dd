#include "brunvik/ado/recordset.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/error_number.h"
#include "tests/support/scripted_connection.h"

namespace brunvik::ado {
namespace {

using test::error_number;
using test::ScriptedConnection;
using test::table;

TEST(Recordset, Is_walked_from_its_first_record_to_its_end) {
  Recordset set = table({"Id", "Qty"}, {{"a", 1}, {"b", 2}, {"c", 3}});
  EXPECT_EQ(set.State(), 1);
  EXPECT_EQ(set.record_count(), 3U);
  std::string seen;
  for (; !set.at_end(); set.MoveNext()) seen += set.value("Id").as_text() + set.value("Qty").as_text();
  EXPECT_EQ(seen, "a1b2c3");
}

TEST(Recordset, MoveFirst_goes_back_to_the_first_record) {
  Recordset set = table({"Id"}, {{"a"}, {"b"}});
  set.MoveNext();
  set.MoveNext();
  set.MoveFirst();
  EXPECT_EQ(set.value("Id").as_text(), "a");
}

TEST(Recordset, A_column_is_found_without_regard_to_case) {
  Recordset set = table({"Id", "ManualId"}, {{"a", "m"}});
  EXPECT_EQ(set.value("MANUALID").as_text(), "m");
  EXPECT_EQ(set.value("manualid").as_text(), "m");
  EXPECT_EQ(set.column("ManualId"), Column{1});
  EXPECT_TRUE(set.has("id"));
  EXPECT_FALSE(set.has("Manual"));
}

TEST(Recordset, Of_two_columns_of_one_name_the_first_counts) {
  Recordset set = table({"Remarks", "remarks"}, {{"first", "second"}});
  EXPECT_EQ(set.value("remarks").as_text(), "first");
}

TEST(Recordset, An_unknown_column_is_error_3265) {
  Recordset set = table({"Id"}, {{"a"}});
  EXPECT_EQ(error_number([&] { set.value("Nothing"); }), 3265);
  EXPECT_EQ(error_number([&] { set.column(""); }), 3265);
}

TEST(Recordset, Behind_the_last_record_there_is_no_value_and_no_next_one) {
  Recordset set = table({"Id"}, {{"a"}});
  set.MoveNext();
  EXPECT_TRUE(set.at_end());
  EXPECT_EQ(error_number([&] { set.value("Id"); }), 3021);
  EXPECT_EQ(error_number([&] { set.MoveNext(); }), 3021);
}

TEST(Recordset, Without_records_it_is_open_and_at_its_end) {
  Recordset set = table({"Id"});
  EXPECT_EQ(set.State(), 1);
  EXPECT_TRUE(set.at_end());
  EXPECT_EQ(set.record_count(), 0U);
  EXPECT_EQ(set.column("Id"), Column{0});
}

TEST(Recordset, A_closed_set_is_error_3704) {
  Recordset never_opened;
  Recordset set = table({"Id"}, {{"a"}});
  set.Close();
  for (Recordset* closed : {&never_opened, &set}) {
    EXPECT_EQ(closed->State(), 0);
    EXPECT_EQ(error_number([&] { closed->at_end(); }), 3704);
    EXPECT_EQ(error_number([&] { closed->MoveNext(); }), 3704);
    EXPECT_EQ(error_number([&] { closed->MoveFirst(); }), 3704);
    EXPECT_EQ(error_number([&] { closed->value("Id"); }), 3704);
    closed->Close();
    EXPECT_EQ(closed->State(), 0);
  }
}

TEST(Recordset, Opens_on_its_active_connection) {
  auto connection = std::make_shared<ScriptedConnection>();
  connection->answer("select 1", table({"One"}, {{1}}));
  Recordset set;
  set.set_active_connection(connection);
  EXPECT_EQ(set.State(), 0);
  set.Open("select 1");
  EXPECT_EQ(set.value("One").as_long(), 1);
  EXPECT_EQ(connection->statements, std::vector<std::string>{"select 1"});
}

TEST(Recordset, Can_be_opened_again) {
  auto connection = std::make_shared<ScriptedConnection>();
  connection->answer("first", table({"A"}, {{1}}));
  connection->answer("second", table({"B"}, {{2}}));
  Recordset set;
  set.set_active_connection(connection);
  set.Open("select first");
  set.Open("select second");
  EXPECT_EQ(set.value("B").as_long(), 2);
}

TEST(Recordset, Open_without_an_open_connection_is_error_3709) {
  Recordset unset;
  EXPECT_EQ(error_number([&] { unset.Open("select 1"); }), 3709);

  auto connection = std::make_shared<ScriptedConnection>();
  Recordset set;
  set.set_active_connection(connection);
  connection->closed = true;
  EXPECT_EQ(error_number([&] { set.Open("select 1"); }), 3709);
  EXPECT_TRUE(connection->statements.empty());
}

TEST(Connection, That_is_unset_is_error_91) {
  EXPECT_EQ(error_number([] { execute(nullptr, "select 1"); }), 91);
}

TEST(Connection, Gets_the_statement_as_it_is) {
  auto connection = std::make_shared<ScriptedConnection>();
  execute(connection, "delete from T where a='b '");
  EXPECT_EQ(connection->statements, std::vector<std::string>{"delete from T where a='b '"});
}

}  // namespace
}  // namespace brunvik::ado
