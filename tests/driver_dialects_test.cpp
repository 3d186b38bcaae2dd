// Both dialects mean on SQLite what they say.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverDialects : public DriverBooks {};

TEST_P(DriverDialects, Top_takes_the_first_rows) {
  for (const char* id : {"CDD1", "CDD3", "CDD2"})
    run("insert into StockBill(Id,Type) values('" + std::string(id) + "',32)");
  EXPECT_EQ(text("select TOP 1 * from StockBill where id like 'CDD%' order by Id desc"), "CDD3");
  EXPECT_EQ(run("select top 2 Id from StockBill").record_count(), 2U);
  EXPECT_EQ(run("select distinct top 1 Type from StockBill").record_count(), 1U);
  EXPECT_EQ(run("SELECT TOP (2) ID FROM STOCKBILL WHERE TYPE=32").record_count(), 2U);
  EXPECT_EQ(run("select TOP 1 * from StockBill where type=33").record_count(), 0U);
}

TEST_P(DriverDialects, A_text_is_read_as_a_whole_number) {
  EXPECT_TRUE(value("select max(convert(int,ID)) as ls_bm from ZHXX").is_null());
  for (const char* id : {"9", "10", "2"}) run("insert into ZHXX(ID) values('" + std::string(id) + "')");
  ado::Recordset set = run("select max(convert(int,ID)) as ls_bm from ZHXX");
  EXPECT_EQ(set.value("ls_bm"), ado::Value(Long{10}));
  EXPECT_EQ(value("select max(clng(ID)) as ls_bm from ZHXX"), ado::Value(Long{10}));
  EXPECT_EQ(value("SELECT MAX(CONVERT(INT,ID)) AS LS_BM FROM ZHXX"), ado::Value(Long{10}));
  EXPECT_EQ(value("select convert(int, 2.9)"), ado::Value(Long{2}));
  EXPECT_EQ(value("select clng(2.6)"), ado::Value(Long{3}));
  EXPECT_EQ(value("select clng('3.5')"), ado::Value(Long{4}));
}

TEST_P(DriverDialects, An_index_on_the_numbers_changes_no_answer) {
  static constexpr schema::Column numbers[] = {{"ID", schema::Type::Key}};
  lay({"Ledger", numbers, "ID", {}, "ID"});
  const std::string sqlserver = "select max(convert(int,id)) as ls_bm from Ledger";
  const std::string access = "select max(clng(id)) as ls_bm from Ledger";
  run("insert into Ledger(ID) values('7')");
  run("insert into Ledger(ID) values(' 12 ')");
  for (const std::string& statement : {sqlserver, access}) EXPECT_EQ(value(statement), ado::Value(Long{12}));
  run("insert into Ledger(ID) values('')");
  EXPECT_EQ(value(sqlserver), ado::Value(Long{12}));
  EXPECT_NE(error_of(*books, access), 0);
  run("update Ledger set ID='3000000000' where ID=''");
  for (const std::string& statement : {sqlserver, access}) {
    EXPECT_EQ(error_of(*books, statement), ado::error::data_overflow);
  }
  run("update Ledger set ID='7 or 8' where ID='3000000000'");
  for (const std::string& statement : {sqlserver, access}) EXPECT_NE(error_of(*books, statement), 0);
  run("delete from Ledger where ID='7 or 8'");
  for (const std::string& statement : {sqlserver, access}) EXPECT_EQ(value(statement), ado::Value(Long{12}));
}

TEST_P(DriverDialects, A_text_that_is_no_number_is_an_error) {
  run("insert into ZHXX(ID) values('abc')");
  EXPECT_NE(error_of(*books, "select max(convert(int,ID)) as ls_bm from ZHXX"), 0);
  EXPECT_NE(error_of(*books, "select max(clng(ID)) as ls_bm from ZHXX"), 0);
}

TEST_P(DriverDialects, A_text_of_blanks_is_zero_in_the_dialect_that_reads_it_so) {
  EXPECT_EQ(value("select convert(int,'')"), ado::Value(Long{0}));
  EXPECT_EQ(value("select convert(int,'  ')"), ado::Value(Long{0}));
  EXPECT_NE(error_of(*books, "select clng('')"), 0);
  EXPECT_NE(error_of(*books, "select clng('  ')"), 0);
  for (const char* id : {"", "7"}) run("insert into ZHXX(ID) values('" + std::string(id) + "')");
  EXPECT_EQ(value("select max(convert(int,ID)) as ls_bm from ZHXX"), ado::Value(Long{7}));
  EXPECT_NE(error_of(*books, "select max(clng(ID)) as ls_bm from ZHXX"), 0);
}

TEST_P(DriverDialects, A_number_beyond_32_bits_is_an_overflow) {
  EXPECT_EQ(error_of(*books, "select convert(int,3000000000)"), ado::error::data_overflow);
  EXPECT_EQ(error_of(*books, "select clng('3000000000')"), ado::error::data_overflow);
}

TEST_P(DriverDialects, A_date_between_number_signs_is_the_text_between_apostrophes) {
  run("insert into StockBill(Id,AuditTime) values('B1',#2024-03-05 10:00:00#)");
  EXPECT_EQ(text("select AuditTime from StockBill"), "2024-03-05 10:00:00");
  EXPECT_EQ(count("select count(*) from StockBill where AuditTime='2024-03-05 10:00:00'"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where AuditTime>#2024-03-04#"), 1);
  EXPECT_EQ(error_of(*books, "select * from StockBill where AuditTime>#yesterday#"), ado::error::statement_refused);
  EXPECT_EQ(error_of(*books, "select * from StockBill where AuditTime>#2024-03-05"), ado::error::statement_refused);
}

TEST_P(DriverDialects, Names_may_stand_in_brackets_and_in_any_case) {
  run("insert into [StockBill]([Id],[Type]) values('B1',5)");
  EXPECT_EQ(count("SELECT [type] FROM [stockbill] WHERE STOCKBILL.ID='B1' AND [StockBill].[Type]=5"), 5);
}

TEST_P(DriverDialects, A_delete_may_name_all_columns) {
  run("insert into StockBill(Id) values('B1')");
  run("delete * from StockBill where Id='B1'");
  EXPECT_EQ(count("select count(*) from StockBill"), 0);
}

TEST_P(DriverDialects, Joins_in_parentheses_keep_names_and_types) {
  run("insert into StockBill(Id,Type,Status) values('B1',5,3)");
  run("insert into StockBillItems(BillId,RowNum,GId,Qty,Price,Amount,Receiver) values('B1',1,'G1',2.5,1.5,3.75,'W1')");
  run("insert into Warehouse(Id,WName) values('W1','主仓')");
  ado::Recordset set =
      run("select StockBillItems.*,Warehouse.WName,StockBill.PaidAmount as XFMount "
          " from (StockBillItems left join Warehouse  on stockbillitems.Receiver = Warehouse.id) "
          "left join StockBill on  (StockBillItems.BillID=StockBill.ID and StockBill.Type=5)"
          "where stockbillitems.BillId='B1' order by stockbillitems.rownum");
  ASSERT_EQ(set.record_count(), 1U);
  EXPECT_EQ(set.names().front(), "BillId");
  EXPECT_EQ(set.value("rownum"), ado::Value(Long{1}));
  EXPECT_EQ(set.value("qty"), ado::Value(Single{2.5F}));
  EXPECT_EQ(set.value("amount"), ado::Value(ado::Money::parse("3.75")));
  EXPECT_EQ(set.value("XFMount"), ado::Value(ado::Money()));
  EXPECT_EQ(set.value("WName").as_text(), "主仓");
}

TEST_P(DriverDialects, A_statement_in_capital_letters_works_as_well) {
  run("insert into ZHXX(ID,YE) values('g1',1)");
  run("UPDATE ZHXX SET YE=10.5 WHERE ZHXX.ID='G1' AND ZHXX.YE=1");
  EXPECT_EQ(text("select YE from ZHXX"), "10.5");
}

TEST_P(DriverDialects, Values_come_back_in_the_types_of_their_columns) {
  run("insert into StockBill(Id,Type,CreateFlag,TaxRate,CloseAmount) values('B1',2,1,0.17,5)");
  ado::Recordset set = run("select * from StockBill");
  EXPECT_EQ(set.value("Id"), ado::Value("B1"));
  EXPECT_EQ(set.value("type"), ado::Value(Long{2}));
  EXPECT_EQ(set.value("CREATEFLAG"), ado::Value(Long{1}));
  EXPECT_EQ(set.value("TaxRate"), ado::Value(Single{0.17F}));
  EXPECT_EQ(set.value("CloseAmount"), ado::Value(ado::Money::from_whole(5)));
  EXPECT_TRUE(set.value("Auditor").is_null());
  EXPECT_EQ(value("select 2147483648 as big"), ado::Value(Double{2147483648.0}));
  EXPECT_EQ(value("select count(ID) as BillCount from StockBill where Id='B1'"), ado::Value(Long{1}));
}

TEST_P(DriverDialects, Columns_have_the_names_of_the_statement) {
  run("insert into StockBill(Id) values('B1')");
  EXPECT_EQ(run("select Max(Id) as Id,max(ID),7 from StockBill").names(),
            (std::vector<std::string>{"Id", "max(ID)", "7"}));
  EXPECT_EQ(
      run("select abs(PaidAmount), CloseAmount - 1,PaidAmount/2 as Half,convert(int,Type) from StockBill").names(),
      (std::vector<std::string>{"abs(PaidAmount)", "CloseAmount - 1", "Half", "convert(int,Type)"}));
  EXPECT_EQ(run("delete from StockBill").State(), 0);
  EXPECT_EQ(run("select * from StockBill").State(), 1);
}

TEST_P(DriverDialects, A_number_in_quotes_becomes_the_number_of_its_column) {
  run("insert into StockBill(Id,Type,CloseAmount) values('B1','2','12.5')");
  EXPECT_EQ(value("select Type from StockBill where Type='2'"), ado::Value(Long{2}));
  EXPECT_EQ(error_of(*books, "update StockBill set ClosedTag='abc'"), ado::error::constraint_violated);
  EXPECT_EQ(error_of(*books, "update StockBill set TaxRate='abc'"), ado::error::constraint_violated);
}

INSTANTIATE_TEST_SUITE_P(On, DriverDialects, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
