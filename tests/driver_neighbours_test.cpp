// The next and the previous number of a series: the answers of the plain question, found from the number itself.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverNeighbours : public DriverBooks {
 protected:
  DriverNeighbours() {
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
};

TEST_P(DriverNeighbours, They_are_those_of_the_series_and_the_type) {
  EXPECT_EQ(next("XSC0001", "XSC"), "xsc0002");
  EXPECT_EQ(next("xsc0002", "XSC"), "XSC0003");
  EXPECT_EQ(next("XSC0003", "XSC"), "");
  EXPECT_EQ(previous("XSC0003", "XSC"), "xsc0002");
  EXPECT_EQ(previous("XSC0001", "xsc"), "XSC");
  EXPECT_EQ(previous("XSC", "XSC"), "");
  EXPECT_EQ(next("xsd1", "XSD"), "xsd2");
}

TEST_P(DriverNeighbours, A_number_outside_of_the_series_has_its_ends_for_neighbours) {
  EXPECT_EQ(next("", "XSC"), "XSC");
  EXPECT_EQ(next("A", "xsc"), "XSC");
  EXPECT_EQ(next("XSD0", "XSC"), "");
  EXPECT_EQ(previous("Z", "XSC"), "XSC0003");
  EXPECT_EQ(previous("XSD1", "XSC"), "XSC0003");
  EXPECT_EQ(previous("A", "XSC"), "");
}

TEST_P(DriverNeighbours, A_wildcard_in_a_series_or_none_at_all_is_asked_as_it_stands) {
  EXPECT_EQ(next("XSC0001", "X_C"), "xsc0002");
  EXPECT_EQ(next("XSC0003", "XS%"), "XSD1");
  EXPECT_EQ(next("QTR1", ""), "XSB9");
  EXPECT_EQ(previous("XSC0001", "[XQ]"), "XSC");
}

INSTANTIATE_TEST_SUITE_P(On, DriverNeighbours, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
