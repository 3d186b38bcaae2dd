// How SQLite finds what is asked for: in an index, and without looking through all that stands in it.
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteIndexes : public SqliteBooks {
 protected:
  // A column of what the engine tells of a statement, a line for each of its steps.
  std::string told(const std::string& statement, std::initializer_list<std::string_view> columns) {
    std::string steps;
    for (ado::Recordset set = run(statement); !set.at_end(); set.MoveNext()) {
      for (const std::string_view column : columns) steps += set.value(column).joined_text() + " ";
      steps += "\n";
    }
    return steps;
  }
  std::string plan_of(const std::string& statement) { return told("explain query plan " + statement, {"detail"}); }
  std::string steps_of(const std::string& statement) { return told("explain " + statement, {"opcode", "p4"}); }
};

TEST_F(SqliteIndexes, The_highest_number_of_a_ledger_is_found_in_an_index_on_the_numbers) {
  run("create index ZHXX_number on ZHXX (CAST(ID AS INTEGER))");
  const std::string sqlserver = "select max(convert(int,ID)) as ls_bm from ZHXX";
  const std::string access = "select max(clng(ID)) as ls_bm from ZHXX";
  EXPECT_TRUE(run(sqlserver).value("ls_bm").is_null());
  for (const char* id : {"9", "10", "2"}) run("insert into ZHXX(ID) values('" + std::string(id) + "')");
  for (const std::string& statement : {sqlserver, access}) {
    EXPECT_EQ(run(statement).value("ls_bm"), ado::Value(Long{10}));
    const std::string plan = plan_of(statement);
    EXPECT_NE(plan.find("USING INDEX ZHXX_number"), std::string::npos) << plan;
    EXPECT_EQ(plan.find("TEMP B-TREE"), std::string::npos) << plan;
  }
}

TEST_F(SqliteIndexes, The_highest_number_of_a_day_is_found_in_a_range_of_the_index) {
  const char* const range = "(Id>? AND Id<?)";
  EXPECT_NE(plan_of("select max(ID)  from StockBill where ID like 'QTR240305%' ").find(range), std::string::npos);
  EXPECT_NE(plan_of("select max(ID)  from StockBill where ID like 'Q[_]R240305%' ").find(range), std::string::npos);
  EXPECT_NE(plan_of("select TOP 1 * from StockBill where id like 'CDD%' order by Id desc").find(range),
            std::string::npos);
  EXPECT_NE(plan_of("select * from StockBill where id='x'").find("(Id=?)"), std::string::npos);
}

TEST_F(SqliteIndexes, Neighbours_are_looked_for_from_the_number_and_not_from_an_end_of_the_series) {
  run("create index StockBill_Type_Id on StockBill(Type,Id)");
  const std::string next_steps =
      steps_of("select min(Id) as Id from StockBill where id > 'XSC0001' and id like 'XSC%'  and type=5");
  const std::size_t later_of_both = next_steps.find("Function max(");
  ASSERT_NE(later_of_both, std::string::npos) << next_steps;
  EXPECT_LT(later_of_both, next_steps.find("SeekGE")) << next_steps;

  const std::string previous_steps =
      steps_of("select max(Id) as Id from StockBill where Id < 'XSC0003' and id like 'XSC%'  and type=5");
  const std::size_t earlier_of_both = previous_steps.find("Function min(");
  ASSERT_NE(earlier_of_both, std::string::npos) << previous_steps;
  EXPECT_LT(earlier_of_both, previous_steps.find("SeekLE")) << previous_steps;
}

}  // namespace
}  // namespace brunvik::sqlite
