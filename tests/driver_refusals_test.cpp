// What the original databases refuse is refused here, with the number that hosts know.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverRefusals : public DriverBooks {};

TEST_P(DriverRefusals, A_comma_too_many) {
  expect_refused("insert into ZHXX(ZH,KHH,YE,)  values( 'a','b',1,)");
  expect_refused("insert into ZHXX(ZH,KHH,YE)  values( 'a','b',1,)");
  expect_refused("update ZHXX set ZH='a',KHH='b',YE=1, where ZH='a'");
}

TEST_P(DriverRefusals, A_gap_where_a_value_should_be) {
  expect_refused("update StockBill set Status=,Auditor='u1' where id='B1'");
  expect_refused("select * from StockBill where Id=");
  expect_refused("insert into StockBill(Id,Type) values('B1',)");
  expect_refused("select Id from StockBill where Id not in ()");
}

TEST_P(DriverRefusals, A_text_without_its_end) {
  expect_refused("insert into ZHXX(ID,ZH) values( 'a','b)");
  expect_refused("update ZHXX set ZH='O'Neil' where ID='a'");
  expect_refused("select * from ZHXX where ID='");
}

TEST_P(DriverRefusals, Text_in_quotation_marks_is_a_name) {
  expect_refused("select * from ZHXX where ID=\"a\"");
  expect_refused("insert into ZHXX(ID) values(\"a\")");
}

TEST_P(DriverRefusals, An_unknown_name) {
  expect_refused("select Nowhere from ZHXX");
  expect_refused("update ZHXX set ZCZH='a' where ID='b'");
  expect_refused("select nowhere(ID) from ZHXX");
  EXPECT_EQ(error_of(*books, "select * from Nowhere where Id='x'"), ado::error::no_such_table);
  EXPECT_EQ(error_of(*books, "update  set paidAmount= paidAmount +1 where id='x'"), ado::error::statement_refused);
}

TEST_P(DriverRefusals, A_second_statement_in_the_text) {
  run("insert into ZHXX(ID) values('a')");
  expect_refused("select * from ZHXX; delete from ZHXX");
  expect_refused("delete from ZHXX where ID='x';delete from ZHXX");
  expect_refused("drop table Warehouse; delete from ZHXX");
  EXPECT_EQ(count("select count(*) from ZHXX;"), 1);
  EXPECT_EQ(count("select count(*) from Warehouse ; "), 0);
}

TEST_P(DriverRefusals, A_comment_or_a_parameter) {
  expect_refused("select * from ZHXX -- where ID='a'");
  expect_refused("select * from ZHXX /* all */");
  expect_refused("select * from ZHXX where ID=?");
  expect_refused("select * from ZHXX where ID=@id");
  expect_refused("select * from ZHXX where ID=:id");
  expect_refused("select `ID` from ZHXX");
  expect_refused(std::string_view("select * from ZHXX\0 where ID='a'", 33));
}

TEST_P(DriverRefusals, A_number_that_runs_into_a_word) {
  expect_refused("select * from ZHXX where YE=12abc");
  expect_refused("select * from ZHXX where YE=1e");
  expect_refused("select * from ZHXX where YE=0x10");
}

TEST_P(DriverRefusals, Nothing_at_all) {
  expect_refused("");
  expect_refused("  ;");
}

TEST_P(DriverRefusals, Parentheses_without_end_or_without_measure) {
  expect_refused("select (1 from ZHXX");
  expect_refused("select 1) from ZHXX");
  expect_refused("insert into ZHXX(ID values('a'");
  expect_refused("update ZHXX set YE=(1 where ID='a'");
  expect_refused("select " + std::string(100'000, '(') + "1" + std::string(100'000, ')'));
  expect_refused("insert into ZHXX values");
  expect_refused("insert into");
  expect_refused("insert");
  expect_refused("update");
  expect_refused("update ZHXX set");
  expect_refused("update ZHXX set YE");
  expect_refused("update ZHXX set YE=");
  expect_refused("select");
  expect_refused("select top");
  expect_refused("select top 5 percent * from ZHXX");
  expect_refused("select top 1 ID from ZHXX union select ID from ZHXX");
}

TEST_P(DriverRefusals, A_refused_statement_has_changed_nothing) {
  run("insert into Warehouse(Id,WName) values('W1','a')");
  run("insert into Warehouse(Id,WName) values('W2','b')");
  EXPECT_EQ(error_of(*books, "update Warehouse set Id='W3'"), ado::error::constraint_violated);
  EXPECT_EQ(count("select count(*) from Warehouse where Id in ('W1','W2')"), 2);
}

INSTANTIATE_TEST_SUITE_P(On, DriverRefusals, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
