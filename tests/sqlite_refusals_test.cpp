// What the original databases refuse is refused here, with the number that hosts know.
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteRefusals : public SqliteBooks {
 protected:
  void expect_refused(std::string_view statement) {
    EXPECT_EQ(error_of(*books, statement), ado::error::statement_refused) << statement;
  }
};

TEST_F(SqliteRefusals, A_comma_too_many) {
  expect_refused("insert into ZHXX(ZH,KHH,YE,)  values( 'a','b',1,)");
  expect_refused("insert into ZHXX(ZH,KHH,YE)  values( 'a','b',1,)");
  expect_refused("update ZHXX set ZH='a',KHH='b',YE=1, where ZH='a'");
}

TEST_F(SqliteRefusals, A_gap_where_a_value_should_be) {
  expect_refused("update StockBill set Status=,Auditor='u1' where id='B1'");
  expect_refused("select * from StockBill where Id=");
  expect_refused("insert into StockBill(Id,Type) values('B1',)");
  expect_refused("select Id from StockBill where Id not in ()");
}

TEST_F(SqliteRefusals, A_text_without_its_end) {
  expect_refused("insert into ZHXX(ID,ZH) values( 'a','b)");
  expect_refused("update ZHXX set ZH='O'Neil' where ID='a'");
  expect_refused("select * from ZHXX where ID='");
}

TEST_F(SqliteRefusals, Text_in_quotation_marks_is_a_name) {
  expect_refused("select * from ZHXX where ID=\"a\"");
  expect_refused("insert into ZHXX(ID) values(\"a\")");
}

TEST_F(SqliteRefusals, An_unknown_name) {
  expect_refused("select Nowhere from ZHXX");
  expect_refused("update ZHXX set ZCZH='a' where ID='b'");
  expect_refused("select nowhere(ID) from ZHXX");
  EXPECT_EQ(error_of(*books, "select * from Nowhere where Id='x'"), ado::error::no_such_table);
  EXPECT_EQ(error_of(*books, "update  set paidAmount= paidAmount +1 where id='x'"), ado::error::statement_refused);
}

TEST_F(SqliteRefusals, A_second_statement_in_the_text) {
  run("insert into ZHXX(ID) values('a')");
  expect_refused("select * from ZHXX; delete from ZHXX");
  expect_refused("delete from ZHXX where ID='x';delete from ZHXX");
  expect_refused("drop table Warehouse; delete from ZHXX");
  EXPECT_EQ(count("select count(*) from ZHXX;"), 1);
  EXPECT_EQ(count("select count(*) from Warehouse ; "), 0);
}

TEST_F(SqliteRefusals, A_comment_or_a_parameter) {
  expect_refused("select * from ZHXX -- where ID='a'");
  expect_refused("select * from ZHXX /* all */");
  expect_refused("select * from ZHXX where ID=?");
  expect_refused("select * from ZHXX where ID=@id");
  expect_refused("select * from ZHXX where ID=:id");
  expect_refused("select `ID` from ZHXX");
  expect_refused(std::string_view("select * from ZHXX\0 where ID='a'", 33));
}

TEST_F(SqliteRefusals, A_number_that_runs_into_a_word) {
  expect_refused("select * from ZHXX where YE=12abc");
  expect_refused("select * from ZHXX where YE=1e");
  expect_refused("select * from ZHXX where YE=0x10");
}

TEST_F(SqliteRefusals, Nothing_at_all) {
  expect_refused("");
  expect_refused("  ;");
}

TEST_F(SqliteRefusals, Parentheses_without_end_or_without_measure) {
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

TEST_F(SqliteRefusals, A_refused_statement_has_changed_nothing) {
  run("insert into ZHXX(ID,YE) values('a',1)");
  run("insert into ZHXX(ID,YE) values('b',500000000000)");
  EXPECT_EQ(error_of(*books, "update ZHXX set YE=YE+50000000000"), ado::error::data_overflow);
  EXPECT_EQ(text("select YE from ZHXX where ID='a'"), "1");
}

}  // namespace
}  // namespace brunvik::sqlite
