// Every document's forms without a database: the insert and the update of its header and the insert of each of its
// rows are made, and every column that they name is one of the member table.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "brunvik/ado/names.h"
#include "brunvik/automation/automation.h"
#include "tests/support/apartment.h"
#include "tests/support/scripted_connection.h"

namespace brunvik {
namespace {

using Texts = std::vector<std::string>;

bool publishes(const PublicObject& object, std::string_view name) {
  const Members& members = object.members();
  return std::any_of(members.begin(), members.end(), [&](const Member& member) { return member.name() == name; });
}

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), ado::lower);
  return text;
}

std::ptrdiff_t count_of(const Texts& statements, const std::string& beginning) {
  return std::count_if(statements.begin(), statements.end(),
                       [&](const std::string& statement) { return lower(statement).starts_with(lower(beginning)); });
}

// Saves a document with a row in each of its collections; the statements that were sent.
Texts saved(const automation::Class& saved_class, const char* verb, bool is_stored) {
  const auto connection = std::make_shared<test::ScriptedConnection>();
  const test::Session session(connection);
  test::NoticeRecorder host;
  if (is_stored) {
    connection->answer("from " + std::string(saved_class.kind->header_table()) + " where ",
                       test::table({"Id"}, {{"1"}}));
  }
  const auto object = saved_class.create();
  automation::put(*object, "ADOConn", ado::ObjectReference(connection));
  automation::put(*object, "ID", "1");
  for (const Member& member : object->members()) {
    if (member.kind() == MemberKind::collection) member.rows(*object).add();
  }
  std::vector<Value> arguments;
  EXPECT_EQ(automation::call(*object, verb, arguments), Value(Long{0}));
  EXPECT_EQ(host.take(), Texts{});
  return connection->statements;
}

TEST(Forms, Of_every_class_name_columns_of_its_member_table_alone) {
  for (const automation::Class& each : automation::classes()) {
    for (const char* verb : {"Save", "SaveAsDraft"}) {
      if (!each.kind || !publishes(*each.create(), verb)) continue;
      SCOPED_TRACE(std::string(each.name) + "." + verb);
      const std::string header(each.kind->header_table());
      const Texts first = saved(each, verb, false);
      EXPECT_EQ(count_of(first, "insert into " + header + "("), 1);
      EXPECT_EQ(count_of(first, "update " + header + " set "), 0);
      const Texts again = saved(each, verb, true);
      EXPECT_EQ(count_of(again, "insert into " + header + "("), 0);
      EXPECT_EQ(count_of(again, "update " + header + " set "), 1);
      // Each row of each collection goes into a table of the kind.
      const auto collections =
          std::count_if(each.create()->members().begin(), each.create()->members().end(),
                        [](const Member& member) { return member.kind() == MemberKind::collection; });
      for (const Texts& statements : {first, again}) {
        std::ptrdiff_t rows = 0;
        for (const std::string_view table : each.kind->tables.subspan(1)) {
          rows += count_of(statements, "insert into " + std::string(table) + "(");
        }
        EXPECT_EQ(rows, collections);
      }
    }
  }
}

}  // namespace
}  // namespace brunvik
