// Money is exact, singles are singles.
#include <cmath>
#include <random>

#include "brunvik/ado/numbers.h"
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverMoney : public DriverBooks {};

TEST_P(DriverMoney, A_bill_of_03_paid_by_01_and_02_is_settled) {
  run("insert into StockBill(Id,Type,PaidAmount,CloseAmount) values('B1',2,0,0.3)");
  run("update stockbill set paidAmount= paidAmount +0.1 where id='B1' and type= 2");
  run("update stockbill set ClosedTag= 1 where id='B1' and type= 2 and CloseAmount=PaidAmount");
  EXPECT_EQ(count("select ClosedTag from StockBill"), 0);
  run("update stockbill set paidAmount= paidAmount +0.2 where id='B1' and type= 2");
  run("update stockbill set ClosedTag= 1 where id='B1' and type= 2 and CloseAmount=PaidAmount");
  EXPECT_EQ(count("select ClosedTag from StockBill"), 1);
  EXPECT_EQ(value("select PaidAmount from StockBill"), ado::Value(ado::Money::parse("0.3")));
}

TEST_P(DriverMoney, Ten_thousand_random_payments_add_up_to_the_ten_thousandth) {
  run("insert into StockBill(Id,PaidAmount) values('B1',0)");
  books->BeginTrans();
  std::mt19937 random(1);
  std::uniform_int_distribution<std::int64_t> payment(-99'999'999, 99'999'999);
  ado::Money sum;
  for (int time = 0; time < 10'000; ++time) {
    const auto amount = ado::Money::from_ten_thousandths(payment(random));
    sum += amount;
    run("update StockBill set PaidAmount=PaidAmount +" + amount.text() + " where Id='B1'");
    run("insert into StockBillItems(BillId,Amount) values('B1'," + amount.text() + ")");
  }
  books->CommitTrans();
  EXPECT_EQ(value("select PaidAmount from StockBill"), ado::Value(sum));
  EXPECT_EQ(value("select sum(Amount) as Total from StockBillItems"), ado::Value(sum));
  EXPECT_EQ(count("select count(*) from StockBill where PaidAmount=(select sum(Amount) from StockBillItems)"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where PaidAmount=" + sum.text()), 1);
}

TEST_P(DriverMoney, The_largest_amounts_are_exact_either_way) {
  for (const char* amount : {"99999999999.9999", "-99999999999.9999", "99999999999.9998", "0.0001", "-0.0001"}) {
    run("delete from StockBill");
    run(std::string("insert into StockBill(Id,PaidAmount,CloseAmount) values('B1',") + amount + ",0)");
    EXPECT_EQ(value("select PaidAmount from StockBill"), ado::Value(ado::Money::parse(amount)));
    run(std::string("update StockBill set CloseAmount=CloseAmount+") + amount);
    EXPECT_EQ(count("select count(*) from StockBill where CloseAmount=PaidAmount"), 1) << amount;
    run("update StockBill set CloseAmount=CloseAmount-0.0001");
    run("update StockBill set CloseAmount=CloseAmount+0.0001");
    EXPECT_EQ(count("select count(*) from StockBill where CloseAmount-PaidAmount=0"), 1) << amount;
  }
}

TEST_P(DriverMoney, Every_amount_below_the_limit_comes_back_as_it_went_in) {
  run("insert into ZHXX(ID,YE) values('A1',346588483985.3027)");
  EXPECT_EQ(text("select YE from ZHXX"), "346588483985.3027");
  std::mt19937_64 random(9);
  std::uniform_int_distribution<std::int64_t> large((std::int64_t{1} << 38) * 10'000,
                                                    (std::int64_t{1} << 39) * 10'000 - 1);
  for (int time = 0; time < 1'000; ++time) {
    const auto amount = ado::Money::from_ten_thousandths(time % 2 == 0 ? large(random) : -large(random));
    run("update ZHXX set YE=" + amount.text());
    ASSERT_EQ(value("select YE from ZHXX"), ado::Value(amount));
    ASSERT_EQ(count("select count(*) from ZHXX where YE=" + amount.text()), 1);
    run("update ZHXX set YE=YE*1");
    ASSERT_EQ(value("select sum(YE) as Total from ZHXX"), ado::Value(amount));
  }
}

TEST_P(DriverMoney, A_negative_value_behind_a_minus_is_added) {
  run("insert into ZHXX(ID,YE) values('A1',100)");
  run("update ZHXX set YE=YE - -30 where ID='A1'");
  run("update ZHXX set YE=YE + -10.5 where ID='A1'");
  EXPECT_EQ(text("select YE from ZHXX"), "119.5");
  run("update ZHXX set YE=YE -"
      "-0.5 where ID='A1'");
  EXPECT_EQ(text("select YE from ZHXX"), "120");
  run("update ZHXX set YE=YE +-5 where ID='A1'");
  run("update ZHXX set YE=-YE where ID='A1'");
  EXPECT_EQ(text("select YE from ZHXX"), "-115");
}

TEST_P(DriverMoney, A_minus_in_a_value_never_hides_the_rest_of_the_statement) {
  run("insert into ZHXX(ID,YE) values('A1',1)");
  run("insert into ZHXX(ID,YE) values('A2',1)");
  run("update ZHXX set YE=YE--2 where ID='A1'");
  EXPECT_EQ(text("select YE from ZHXX where ID='A1'"), "3");
  EXPECT_EQ(text("select YE from ZHXX where ID='A2'"), "1");
}

TEST_P(DriverMoney, What_is_assigned_is_rounded_to_four_places_ties_to_the_even_digit) {
  const auto kept = [this](const std::string& amount) {
    run("delete from ZHXX");
    run("insert into ZHXX(ID,YE) values('A1'," + amount + ")");
    return text("select YE from ZHXX");
  };
  EXPECT_EQ(kept("1.00005"), "1");
  EXPECT_EQ(kept("1.00015"), "1.0002");
  EXPECT_EQ(kept("-1.00025"), "-1.0002");
  EXPECT_EQ(kept("1.000250000001"), "1.0003");
  EXPECT_EQ(kept("'2.00005'"), "2");
  EXPECT_EQ(kept("'-12.5'"), "-12.5");
  EXPECT_EQ(kept("1.0/3"), "0.3333");
  EXPECT_EQ(kept("12e-1"), "1.2");
  EXPECT_EQ(kept("null"), "");
}

TEST_P(DriverMoney, Arithmetic_on_money_is_exact_wherever_it_stands) {
  run("insert into StockBill(Id,PaidAmount,CloseAmount,AdvanceAmount) values('B1',0.1,0.3,0.2)");
  const std::string from = " from StockBill where ";
  EXPECT_EQ(count("select count(*)" + from + "CloseAmount-PaidAmount-AdvanceAmount=0"), 1);
  EXPECT_EQ(count("select count(*)" + from + "StockBill.CloseAmount-StockBill.PaidAmount=0.2"), 1);
  EXPECT_EQ(count("select count(*)" + from + "(CloseAmount-PaidAmount)-AdvanceAmount=0"), 1);
  EXPECT_EQ(count("select count(*)" + from + "PaidAmount+AdvanceAmount in (0.3,5)"), 1);
  EXPECT_EQ(count("select count(*)" + from + "CloseAmount-(select sum(PaidAmount) from StockBill)-0.2=0"), 1);
  EXPECT_EQ(count("select count(*)" + from + "PaidAmount*3=CloseAmount"), 1);
  EXPECT_EQ(value("select CloseAmount-PaidAmount as Open from StockBill"), ado::Value(ado::Money::parse("0.2")));
  EXPECT_EQ(value("select a.CloseAmount - a.PaidAmount from StockBill a"), ado::Value(ado::Money::parse("0.2")));
}

TEST_P(DriverMoney, A_whole_amount_is_divided_as_money) {
  run("insert into ZHXX(ID,YE) values('A1',5)");
  EXPECT_EQ(value("select YE/2 as Half from ZHXX"), ado::Value(ado::Money::parse("2.5")));
}

TEST_P(DriverMoney, A_sum_is_money_and_null_over_nothing) {
  EXPECT_TRUE(value("select sum(Amount) from StockBillItems").is_null());
  run("insert into StockBillItems(BillId,Amount) values('B1',0.1)");
  run("insert into StockBillItems(BillId,Amount) values('B1',0.2)");
  run("insert into StockBillItems(BillId,Amount) values('B1',null)");
  ado::Recordset set =
      run("select StockBillItems.BillId,sum(StockBillItems.Amount) as Total,sum(Amount+0.1) "
          "from StockBillItems group by BillId having sum(Amount)=0.3");
  ASSERT_FALSE(set.at_end());
  EXPECT_EQ(set.value("total"), ado::Value(ado::Money::parse("0.3")));
  EXPECT_EQ(set.value(ado::Column{2}), ado::Value(ado::Money::parse("0.5")));
}

TEST_P(DriverMoney, What_is_open_of_a_bill_comes_back_as_money) {
  run("insert into StockBill(Id,CloseAmount) values('B1',100)");
  run("insert into StockBillItems(BillId,Amount) values('B1',0.1)");
  run("insert into StockBillItems(BillId,Amount) values('B1',0.2)");
  ado::Recordset set =
      run("Select stockbill.CloseAmount as billamount,(select sum(StockBillItems.Amount) from "
          "StockBill left join StockBillItems on StockBill.id=StockBillItems.BillId "
          "where (StockBill.status<>1 or StockBill.status is null) and StockBillItems.BillId='b1') "
          "as PaidAmount from stockbill where id = 'B1' group by stockbill.CloseAmount");
  EXPECT_EQ(set.value("BillAmount"), ado::Value(ado::Money::from_whole(100)));
  EXPECT_EQ(set.value("paidamount"), ado::Value(ado::Money::parse("0.3")));
}

TEST_P(DriverMoney, An_amount_that_cannot_be_kept_exactly_is_refused) {
  run("insert into ZHXX(ID,YE) values('A1',549755813887.9999)");
  const auto refused = ado::error::data_overflow;
  EXPECT_EQ(error_of(*books, "insert into ZHXX(ID,YE) values('A2',900719925474.0991)"), refused);
  for (const char* amount : {"549755813888", "-549755813888", "'549755813888'", "549755813887.99995"}) {
    EXPECT_EQ(error_of(*books, std::string("insert into ZHXX(ID,YE) values('A2',") + amount + ")"), refused) << amount;
  }
  EXPECT_EQ(error_of(*books, "insert into ZHXX(ID,YE) values('A2',922337203685477.5807)"), refused);
  EXPECT_EQ(error_of(*books, "insert into ZHXX(ID,YE) values('A2',1e300)"), refused);
  EXPECT_EQ(error_of(*books, "update ZHXX set YE=YE+1+2-3"), 0);
  EXPECT_EQ(text("select YE from ZHXX"), "549755813887.9999");
}

TEST_P(DriverMoney, Sums_and_differences_are_exact_up_to_the_limit) {
  constexpr std::int64_t limit = (std::int64_t{1} << 39) * 10'000;
  std::mt19937_64 random(8);
  std::uniform_int_distribution<std::int64_t> any(-limit / 3 + 1, limit / 3 - 1);
  run("insert into StockBill(Id) values('B1')");
  for (int time = 0; time < 600; ++time) {
    std::int64_t paid = any(random);
    std::int64_t close = any(random);
    std::int64_t advance = any(random);
    const auto written = [](std::int64_t count) { return ado::Money::from_ten_thousandths(count).text(); };
    run("update StockBill set PaidAmount=" + written(paid) + ",CloseAmount='" + written(close) +
        "',AdvanceAmount=" + written(advance));
    for (const auto& [expression, sum] :
         {std::pair{"PaidAmount", paid}, std::pair{"CloseAmount", close},
          std::pair{"PaidAmount+CloseAmount", paid + close}, std::pair{"PaidAmount-CloseAmount", paid - close},
          std::pair{"PaidAmount-CloseAmount-AdvanceAmount", paid - close - advance},
          std::pair{"-PaidAmount+CloseAmount+ -AdvanceAmount", -paid + close - advance}}) {
      const std::string select = std::string("select ") + expression + " from StockBill";
      ASSERT_EQ(value(select), ado::Value(ado::Money::from_ten_thousandths(sum))) << expression;
    }
  }
}

TEST_P(DriverMoney, A_total_of_many_operands_is_rounded_once) {
  run("insert into ZHXX(ID,YE) values('A1',1)");
  run("update ZHXX set YE=YE+0.00003+0.00003+2*0.00003-1");
  EXPECT_EQ(text("select YE from ZHXX"), "0.0001");
  run("update ZHXX set YE=1+2*3-YE/2");
  EXPECT_EQ(text("select YE from ZHXX"), "7");
  EXPECT_TRUE(value("select YE-null+1 from ZHXX").is_null());
}

TEST_P(DriverMoney, Text_that_is_no_amount_is_refused) {
  EXPECT_EQ(error_of(*books, "insert into ZHXX(ID,YE) values('A1','abc')"), ado::error::constraint_violated);
  EXPECT_EQ(error_of(*books, "insert into ZHXX(ID,YE) values('A1','')"), ado::error::constraint_violated);
}

TEST_P(DriverMoney, Amounts_that_are_selected_into_a_table_are_rounded) {
  run("insert into ZHXX(ID,YE) select 'A1 ',1.00006");
  EXPECT_EQ(text("select YE from ZHXX where ID='A1'"), "1.0001");
}

class DriverSingles : public DriverBooks {};

TEST_P(DriverSingles, A_column_of_singles_shows_plain_figures) {
  run("insert into StockBillItems(BillId,Qty) values('B1',0.1)");
  run("update StockBillItems set Qty=Qty+0.2 where BillId='B1'");
  EXPECT_EQ(value("select Qty from StockBillItems"), ado::Value(Single{0.3F}));
  EXPECT_EQ(count("select count(*) from StockBillItems where Qty=0.3"), 1);
  EXPECT_EQ(text("select Qty||'' from StockBillItems"), "0.3");
}

TEST_P(DriverSingles, Every_single_comes_back_as_it_went_in) {
  std::mt19937 random(2);
  std::uniform_real_distribution<float> exponent(-30, 30);
  std::uniform_real_distribution<float> mantissa(-1, 1);
  books->BeginTrans();
  for (int time = 0; time < 2'000; ++time) {
    const Single single = mantissa(random) * std::pow(10.0F, exponent(random));
    std::string number;
    ado::append_number(number, single);
    run("delete from StockBillItems");
    run("insert into StockBillItems(BillId,Qty) values('B1'," + number + ")");
    EXPECT_EQ(value("select Qty from StockBillItems"), ado::Value(single)) << number;
    EXPECT_EQ(count("select count(*) from StockBillItems where Qty=" + number), 1) << number;
    run("update StockBillItems set Qty=Qty+0");
    EXPECT_EQ(value("select Qty from StockBillItems"), ado::Value(single)) << number;
  }
  books->CommitTrans();
}

// Each sum is rounded to the decimal in which its single is written, so no tenth goes astray.
TEST_P(DriverSingles, Ten_thousand_tenths_add_up_to_the_same_on_each_engine) {
  run("insert into StockBillItems(BillId,Qty) values('B1',0)");
  books->BeginTrans();
  for (int time = 0; time < 10'000; ++time) run("update StockBillItems set Qty=Qty+0.1 where BillId='B1'");
  books->CommitTrans();
  EXPECT_EQ(text("select Qty from StockBillItems"), "1000");
  EXPECT_EQ(count("select count(*) from StockBillItems where Qty=1000"), 1);
}

TEST_P(DriverSingles, A_number_too_large_for_a_single_is_refused) {
  EXPECT_EQ(error_of(*books, "insert into StockBillItems(BillId,Qty) values('B1',1e39)"), ado::error::data_overflow);
  run("insert into StockBillItems(BillId,Qty) values('B1',1e38)");
  EXPECT_EQ(error_of(*books, "update StockBillItems set Qty=Qty*10"), ado::error::data_overflow);
}

INSTANTIATE_TEST_SUITE_P(On, DriverMoney, ::testing::ValuesIn(driver_engines()), by_engine);
INSTANTIATE_TEST_SUITE_P(On, DriverSingles, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
