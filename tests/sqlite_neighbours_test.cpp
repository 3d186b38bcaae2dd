// The next and the previous number of a series: the answers of the plain question, found from the number itself.
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteNeighbours : public SqliteBooks {
 protected:
  SqliteNeighbours() {
    run("create index StockBill_Type_Id on StockBill(Type,Id)");
    for (const char* id : {"QTR1", "XSB9", "XSC", "XSC0001", "xsc0002", "XSC0003", "XSD1", "xsd2"}) {
      run("insert into StockBill(Id,Type) values('" + std::string(id) + "',5)");
    }
    run("insert into StockBill(Id,Type) values('XSC00025',4)");
  }

  std::string next(const std::string& current, const std::string& series) {
    return text("select min(Id) as Id from StockBill where id > '" + current + "' and id like '" + series +
                "%'  and type=5");
  }
  std::string previous(const std::string& current, const std::string& series) {
    return text("select max(Id) as Id from StockBill where Id < '" + current + "' and id like '" + series +
                "%'  and type=5");
  }

  // The engine's steps, an operation and what it works with a line.
  std::string steps_of(const std::string& statement) {
    std::string steps;
    for (ado::Recordset set = run("explain " + statement); !set.at_end(); set.MoveNext()) {
      steps += set.value("opcode").as_text() + " " + set.value("p4").joined_text() + "\n";
    }
    return steps;
  }
};

TEST_F(SqliteNeighbours, They_are_those_of_the_series_and_the_type) {
  EXPECT_EQ(next("XSC0001", "XSC"), "xsc0002");
  EXPECT_EQ(next("xsc0002", "XSC"), "XSC0003");
  EXPECT_EQ(next("XSC0003", "XSC"), "");
  EXPECT_EQ(previous("XSC0003", "XSC"), "xsc0002");
  EXPECT_EQ(previous("XSC0001", "xsc"), "XSC");
  EXPECT_EQ(previous("XSC", "XSC"), "");
  EXPECT_EQ(next("xsd1", "XSD"), "xsd2");
}

TEST_F(SqliteNeighbours, A_number_outside_of_the_series_has_its_ends_for_neighbours) {
  EXPECT_EQ(next("", "XSC"), "XSC");
  EXPECT_EQ(next("A", "xsc"), "XSC");
  EXPECT_EQ(next("XSD0", "XSC"), "");
  EXPECT_EQ(previous("Z", "XSC"), "XSC0003");
  EXPECT_EQ(previous("XSD1", "XSC"), "XSC0003");
  EXPECT_EQ(previous("A", "XSC"), "");
}

TEST_F(SqliteNeighbours, A_wildcard_in_a_series_or_none_at_all_is_asked_as_it_stands) {
  EXPECT_EQ(next("XSC0001", "X_C"), "xsc0002");
  EXPECT_EQ(next("XSC0003", "XS%"), "XSD1");
  EXPECT_EQ(next("QTR1", ""), "XSB9");
  EXPECT_EQ(previous("XSC0001", "[XQ]"), "XSC");
}

TEST_F(SqliteNeighbours, They_are_looked_for_from_the_number_and_not_from_an_end_of_the_series) {
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
