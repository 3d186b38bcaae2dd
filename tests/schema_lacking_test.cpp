// What a database of an older version lacks, and how it gets it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "schema/tables.h"
#include "tests/schema_database.h"

namespace {

using namespace brunvik::schema;

// As a fresh database has them.
std::vector<LaidTable> all_as_described() {
  static const std::vector<LaidTable> all = [] {
    Database database = laid();
    std::vector<LaidTable> list;
    for (const Table& table : tables()) {
      LaidTable& described = list.emplace_back();
      described.name = table.name;
      for (const Column& column : table.columns) described.columns.emplace_back(column.name);
      for (const Row& index : database.run("pragma index_list(" + described.name + ")")) {
        described.indexes.push_back(index[1]);
      }
    }
    return list;
  }();
  return all;
}

std::string upper(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return text;
}

TEST(SchemaLacking, Nothing_is_lacking_where_everything_is_laid_in_whatever_case) {
  std::vector<LaidTable> all = all_as_described();
  EXPECT_EQ(lacking_statements(Engine::sqlite, all), std::vector<std::string>{});
  for (LaidTable& table : all) {
    table.name = upper(table.name);
    for (std::string& name : table.columns) name = upper(name);
    for (std::string& name : table.indexes) name = upper(name);
  }
  EXPECT_EQ(lacking_statements(Engine::sqlite, all), std::vector<std::string>{});
}

TEST(SchemaLacking, What_isn_t_described_is_left_alone) {
  std::vector<LaidTable> all = all_as_described();
  all.push_back({"Mine", {"id"}, {"Mine_id"}});
  all.front().columns.emplace_back("MyColumn");
  all.front().indexes.emplace_back("MyIndex");
  EXPECT_EQ(lacking_statements(Engine::sqlite, all), std::vector<std::string>{});
}

TEST(SchemaLacking, A_lacking_table_comes_with_its_indexes_and_nothing_else) {
  for (const Table& table : tables()) {
    std::vector<LaidTable> all = all_as_described();
    std::erase_if(all, [&](const LaidTable& other) { return other.name == table.name; });
    const std::vector<std::string> lacking = lacking_statements(Engine::sqlite, all);
    // The numbers of a column are in an index, and what is no plain number in another.
    const std::size_t numbers = table.numbered.empty() ? 0 : 2;
    ASSERT_EQ(lacking.size(), 1 + table.indexes.size() + numbers) << table.name;
    EXPECT_TRUE(lacking.front().starts_with("CREATE TABLE " + std::string(table.name) + " (")) << lacking.front();
    for (std::size_t place = 1; place < lacking.size(); ++place) {
      EXPECT_TRUE(lacking[place].starts_with("CREATE INDEX ")) << lacking[place];
    }
  }
}

TEST(SchemaLacking, Every_column_can_be_added_to_a_table_with_rows_which_stay) {
  for (const Table& table : tables()) {
    const std::string name(table.name);
    const std::string first(table.key.empty() ? table.columns.front().name : table.key);
    Database database;
    database.run("create table " + name + "(" + first + " text collate nocase" +
                 (table.key.empty() ? ")" : " not null primary key)"));
    database.run("insert into " + name + " values('1')");
    const std::vector<LaidTable> old{{name, {first}, {}}};
    for (const std::string& statement : lacking_statements(Engine::sqlite, old)) {
      if (statement.starts_with("CREATE TABLE " + name + " ")) FAIL() << statement;
      EXPECT_NO_THROW(database.run(statement)) << statement;
    }
    std::set<std::string> columns;
    for (const Row& column : database.run("pragma table_info(" + name + ")")) columns.insert(column[1]);
    EXPECT_EQ(columns.size(), table.columns.size()) << name;
    for (const Column& column : table.columns) {
      EXPECT_TRUE(columns.contains(std::string(column.name))) << name << "." << column.name;
      if (column.name == first) continue;
      const std::string initial(column.initial.empty() ? "null" : column.initial);
      EXPECT_EQ(database.run("select " + std::string(column.name) + " is " + initial + " from " + name),
                std::vector<Row>{{"1"}})
          << name << "." << column.name;
    }
    EXPECT_EQ(database.run("select " + first + " from " + name), std::vector<Row>{{"1"}});
  }
}

TEST(SchemaLacking, A_table_that_lacks_its_key_is_refused_by_name) {
  const std::vector<LaidTable> strange{{"stockbill", {"Number"}, {}}};
  try {
    lacking_statements(Engine::sqlite, strange);
    FAIL();
  } catch (const std::runtime_error& failure) {
    EXPECT_STREQ(failure.what(), "the table StockBill lacks its key Id, which can't be added to it");
  }
}

}  // namespace
