// What MariaDB makes of a statement in its own way, and what it refuses: a server of its own works with decimals, keeps
// texts in one encoding, and knows another order of signs than SQLite.
#include "brunvik/ado/money.h"
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

namespace error = ado::error;

class MariaDbOwnMeanings : public DriverBooks {};

// The collation that keeps all characters apart without regard to case knows no difference of width.
TEST_P(MariaDbOwnMeanings, Full_and_half_width_are_one_key) {
  run("insert into StockBill(Id) values('B1')");
  EXPECT_EQ(count("select count(*) from StockBill where Id='Ｂ１'"), 1);
  EXPECT_EQ(error_of(*books, "insert into StockBill(Id) values('Ｂ１')"), error::constraint_violated);
}

TEST_P(MariaDbOwnMeanings, Signs_stand_before_numbers_and_letters) {
  for (const char* id : {"a1", "1a", "[x]", "_a"}) {
    run(std::string("insert into Warehouse(Id) values('") + id + "')");
  }
  auto set = run("select Id from Warehouse order by Id");
  for (const char* id : {"_a", "[x]", "1a", "a1"}) {
    EXPECT_EQ(set.value("Id").as_text(), id);
    set.MoveNext();
  }
}

// A decimal has more digits than a double, so only what is written as an amount has the limit of both engines.
TEST_P(MariaDbOwnMeanings, An_amount_that_is_worked_out_may_be_as_large_as_its_column) {
  run("insert into ZHXX(ID,YE) values('A1',549755813887.9999)");
  EXPECT_EQ(error_of(*books, "update ZHXX set YE=549755813888"), error::data_overflow);
  run("update ZHXX set YE=YE+0.0001");
  EXPECT_EQ(value("select YE from ZHXX"), ado::Value(ado::Money::parse("549755813888")));
  run("update ZHXX set YE=YE*1000");
  EXPECT_EQ(value("select sum(YE) from ZHXX"), ado::Value(ado::Money::parse("549755813888000")));
  EXPECT_EQ(error_of(*books, "update ZHXX set YE=YE*1000"), error::data_overflow);
  EXPECT_EQ(value("select YE from ZHXX"), ado::Value(ado::Money::parse("549755813888000")));
}

// A half that is written is rounded by the driver as everywhere; one that is worked out goes away from zero.
TEST_P(MariaDbOwnMeanings, A_half_that_is_worked_out_is_rounded_up) {
  run("insert into ZHXX(ID,YE) values('A1',1.00005)");
  EXPECT_EQ(text("select YE from ZHXX"), "1");
  run("update ZHXX set YE=YE+0.00005");
  EXPECT_EQ(text("select YE from ZHXX"), "1.0001");
  EXPECT_EQ(value("select clng(2.5)"), ado::Value(Long{3}));
  EXPECT_EQ(value("select clng('3.5')"), ado::Value(Long{4}));
}

TEST_P(MariaDbOwnMeanings, A_number_with_a_point_is_an_amount_and_equals_its_text) {
  EXPECT_EQ(value("select 1.5 as half"), ado::Value(ado::Money::parse("1.5")));
  EXPECT_EQ(count("select count(*) from (select 1) as one where '1'=1"), 1);
}

// SQLite's check refuses a part of a number there.
TEST_P(MariaDbOwnMeanings, A_column_of_whole_numbers_rounds_what_it_is_given) {
  run("insert into StockBill(Id,Type) values('B1',1.5)");
  EXPECT_EQ(count("select Type from StockBill"), 2);
}

// What is written without them loses its trailing blanks in the driver; what the server copies keeps them, and compares
// without them.
TEST_P(MariaDbOwnMeanings, Trailing_blanks_of_a_key_that_is_worked_out_stay) {
  run("insert into StockBill(Id) select 'B2 '");
  EXPECT_EQ(count("select length(Id) from StockBill where Id='b2'"), 3);
}

TEST_P(MariaDbOwnMeanings, A_text_in_another_encoding_is_refused) {
  const auto failure = failure_of([&] { run("insert into Warehouse(Id,WName) values('W1','\xD6\xF7')"); });
  EXPECT_EQ(failure.number(), error::constraint_violated);
  EXPECT_TRUE(holds(failure, "Incorrect string value")) << failure.description();
  EXPECT_EQ(count("select count(*) from Warehouse"), 0);
}

TEST_P(MariaDbOwnMeanings, A_key_longer_than_its_column_is_refused) {
  const auto failure = failure_of([&] { run("insert into Warehouse(Id) values('" + std::string(191, 'x') + "')"); });
  EXPECT_EQ(failure.number(), error::data_overflow);
  EXPECT_TRUE(holds(failure, "Data too long")) << failure.description();
}

TEST_P(MariaDbOwnMeanings, A_statement_that_is_longer_than_the_server_takes_is_refused_and_the_next_goes_on) {
  const auto longest = std::stoul(run("show variables like 'max_allowed_packet'").value("Value").joined_text());
  const auto failure =
      failure_of([&] { run("insert into Warehouse(Id,WName) values('W1','" + std::string(longest, '\\') + "')"); });
  EXPECT_NE(failure.number(), 0);
  EXPECT_TRUE(holds(failure, "max_allowed_packet")) << failure.description();
  EXPECT_EQ(count("select count(*) from Warehouse"), 0);
}

TEST_P(MariaDbOwnMeanings, What_the_engine_cannot_do_is_refused_in_its_words) {
  for (const char* statement : {"select Id from StockBill where Id in (select top 1 Id from StockBill order by Id)",
                                "select CloseAmount - 1,* from StockBill", "select count(*) from (select 1)"}) {
    const auto failure = failure_of([&] { run(statement); });
    EXPECT_NE(failure.number(), 0) << statement;
    EXPECT_TRUE(holds(failure, "MariaDB")) << failure.description();
  }
}

TEST_P(MariaDbOwnMeanings, A_statement_is_prepared_with_its_first_use_and_kept_for_the_next) {
  const auto read = [this] {
    return std::stoi(run("show session status like 'Com_stmt_prepare'").value("Value").joined_text());
  };
  const auto prepared_by = [&](const std::string& statement) {
    const int before = read();
    run(statement);
    constexpr int by_reading = 1;
    return read() - before - by_reading;
  };
  run("delete from Warehouse where Id='W1'");  // the driver knows the table from here
  EXPECT_EQ(prepared_by("insert into Warehouse(Id,WName) values('W1','东仓')"), 1);
  EXPECT_EQ(prepared_by("insert into Warehouse(Id,WName) values('W2','西仓')"), 0);
  EXPECT_EQ(prepared_by("select * from Warehouse where Id='W1'"), 1);
  EXPECT_EQ(prepared_by("select * from Warehouse where Id='W2'"), 0);
}

// It is none that asks for an argument: that would end the process.
TEST_P(MariaDbOwnMeanings, A_percent_sign_in_the_text_of_an_error_is_a_percent_sign) {
  for (const char* statement : {"select [%s%n] from ZHXX where ID='a'", "select [%s%n] from ZHXX where clng('1')=1",
                                "show create table `%s%n`"}) {
    const auto failure = failure_of([&] { run(statement); });
    EXPECT_NE(failure.number(), 0) << statement;
    EXPECT_TRUE(holds(failure, "%s%n")) << failure.description();
  }
}

TEST_P(MariaDbOwnMeanings, A_value_that_is_converted_stands_there_as_often_as_it_must) {
  run("insert into ZHXX(ID) values('A1')");
  EXPECT_EQ(count("select count(*) from ZHXX where convert(int,'12')=12"), 1);
  EXPECT_EQ(count("select count(*) from ZHXX where clng(12)=12 and ID='A1'"), 1);
}

// They would change what the driver has settled with the server behind its back.
TEST_P(MariaDbOwnMeanings, Transactions_and_settings_are_no_texts) {
  for (const char* statement : {"begin", "COMMIT", " rollback", "start transaction", "savepoint x", "set autocommit=0",
                                "use mysql", "lock tables ZHXX write", "xa begin 'x'"}) {
    expect_refused(statement, "is the driver's own");
  }
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(MariaDbOwnMeanings);
INSTANTIATE_TEST_SUITE_P(On, MariaDbOwnMeanings, ::testing::ValuesIn(mariadb_alone()), by_engine);

}  // namespace
}  // namespace brunvik::test
