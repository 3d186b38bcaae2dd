// SQL Server gets the text as it stands but for two minus signs, which would open a comment. A driver that writes down
// what it is given stands for it, and for engines that are refused.
#include <gtest/gtest.h>

#include <fstream>

#include "brunvik/ado/errors.h"
#include "drivers/odbc/connection.h"
#include "drivers/odbc/sql_server.h"
#include "tests/support/driver_books.h"
#include "tests/support/folder.h"

namespace brunvik::test {
namespace {

namespace error = ado::error;
using Texts = std::vector<std::string>;

class OdbcSqlServer : public ::testing::Test {
 protected:
  std::shared_ptr<odbc::Connection> open(const std::string& attributes = {}) const {
    return odbc::open("DRIVER=" BRUNVIK_RECORDING_DRIVER ";RECORD=" + record() + attributes);
  }

  std::string record() const { return folder_.file("texts"); }

  // What was sent, a text a line, but for the first, with which the driver makes its settings.
  Texts sent() const {
    Texts texts;
    std::ifstream file(record());
    for (std::string text; std::getline(file, text);) texts.push_back(text);
    if (!texts.empty()) texts.erase(texts.begin());
    return texts;
  }

 private:
  Folder folder_;
};

TEST_F(OdbcSqlServer, A_text_goes_as_it_stands) {
  const Texts texts{"select TOP 1 * from StockBill where id like 'CDD[0-9]%' order by Id desc",
                    "select max(convert(int,ID)) as ls_bm from ZHXX",
                    "insert into ZHXX(ZH,KHH,YE,)  values( 'a','O''Neil \\',1,)",
                    "update stockbill set paidAmount= paidAmount +0.1 where id='B1' and type= 2",
                    "select * from t where a='主仓' and d=#2024-03-05#"};
  const auto books = open();
  EXPECT_EQ(books->engine_name(), "Microsoft SQL Server");
  for (const std::string& text : texts) EXPECT_EQ(books->Execute(text).State(), 0);
  EXPECT_EQ(sent(), texts);
}

TEST_F(OdbcSqlServer, Two_minus_signs_are_set_apart_and_those_in_a_literal_or_a_name_are_not) {
  const auto books = open();
  books->Execute("update stockbill set paidAmount= paidAmount --5 where id='B--1' and [a--b]=1");
  EXPECT_EQ(sent(), Texts{"update stockbill set paidAmount= paidAmount - -5 where id='B--1' and [a--b]=1"});
}

TEST_F(OdbcSqlServer, The_lock_of_another_is_waited_for_as_long_as_on_every_engine) {
  open();
  std::ifstream file(record());
  std::string text;
  std::getline(file, text);
  EXPECT_EQ(text, "set lock_timeout 5000");
}

TEST_F(OdbcSqlServer, A_transaction_is_the_engine_s_own) {
  const auto books = open();
  books->BeginTrans();
  books->Execute("delete from ZHXX");
  books->CommitTrans();
  books->BeginTrans();
  books->RollbackTrans();
  EXPECT_EQ(sent(), (Texts{"set transaction isolation level serializable", "begin transaction", "delete from ZHXX",
                           "commit transaction", "set transaction isolation level read committed",
                           "set transaction isolation level serializable", "begin transaction", "rollback transaction",
                           "set transaction isolation level read committed"}));
}

TEST_F(OdbcSqlServer, A_refusal_has_its_number_the_engine_s_text_and_the_statement) {
  const auto books = open(";REFUSE=insert");
  const auto failure = failure_of([&] { books->Execute("insert into ZHXX(ID) values('a',)"); });
  EXPECT_EQ(failure.number(), error::statement_refused);
  EXPECT_TRUE(holds(failure, "Incorrect syntax near what was refused.")) << failure.description();
  EXPECT_EQ(failure.statement(), "insert into ZHXX(ID) values('a',)");
  EXPECT_EQ(error_of(*books, "select * from ZHXX"), 0);
}

// Its driver gives no value in front of one that is bound, and none a second time.
TEST_F(OdbcSqlServer, A_text_without_a_bound_is_read_with_the_columns_behind_it) {
  auto rows = open(";ANSWER=select")->Execute("select Id,Remarks,Number,WName from StockBill");
  ASSERT_EQ(rows.record_count(), 3U);
  for (const char* number : {"1", "2", "3"}) {
    const std::string end(3'000 * static_cast<std::size_t>(*number - '1'), 'x');
    EXPECT_EQ(rows.value("Id").as_text(), std::string("B") + number);
    EXPECT_TRUE(rows.value("Remarks").as_text() == number + end);
    EXPECT_EQ(rows.value("Number"), ado::Value(Long{*number - '0'}));
    EXPECT_EQ(rows.value("WName").as_text(), std::string("东仓") + number);
    rows.MoveNext();
  }
}

TEST_F(OdbcSqlServer, Any_other_engine_is_refused_with_the_names_of_those_that_work) {
  const auto failure = failure_of([&] { open(";ENGINE=Sheets"); });
  EXPECT_EQ(failure.number(), error::provider_failed);
  EXPECT_EQ(failure.description(),
            "The engine 'Sheets' is none that the driver knows: MariaDB and Microsoft SQL Server are.");
  EXPECT_FALSE(std::ifstream(record()).is_open());
}

TEST(OdbcMinusSigns, Are_set_apart_outside_of_literals_and_names) {
  const auto apart = odbc::with_minus_signs_apart;
  EXPECT_EQ(apart("a--5"), "a- -5");
  EXPECT_EQ(apart("a---5"), "a- - -5");
  EXPECT_EQ(apart("a - -5"), "a - -5");
  EXPECT_EQ(apart("a-'--'--5"), "a-'--'- -5");
  EXPECT_EQ(apart("'it''s --'--1"), "'it''s --'- -1");
  EXPECT_EQ(apart("[a]]--b]--1"), "[a]]--b]- -1");
  EXPECT_EQ(apart("\"a--b\"--1"), "\"a--b\"- -1");
  EXPECT_EQ(apart("'--"), "'--");
  EXPECT_EQ(apart(""), "");
}

}  // namespace
}  // namespace brunvik::test
