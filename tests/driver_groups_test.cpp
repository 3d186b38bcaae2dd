// What a SELECT names has to have one value: columns beside aggregates, the order of groups, aliases in conditions.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverGroups : public DriverBooks {};

TEST_P(DriverGroups, A_column_beside_an_aggregate_wants_a_group) {
  const std::string_view reason = "beside an aggregate";
  expect_refused("select ID,max(YE) from ZHXX", reason);
  expect_refused("select max(YE),ZHXX.ID as Number from ZHXX where ID='a'", reason);
  expect_refused("select count(*)+YE from ZHXX", reason);
  expect_refused("select *,count(*) from ZHXX", reason);
  expect_refused("select ZHXX.*,count(*) from ZHXX", reason);
  expect_refused("select * from StockBill where Id in (select BillId||max(RowNum) from StockBillItems)", reason);
  expect_refused("insert into ZHXX(ID,YE) select BillId,sum(Amount) from StockBillItems", reason);
  expect_refused("select max(ID) from ZHXX order by YE", reason);
  expect_taken("select max(ID),7,'x',count(*) as n,sum(YE)/2 total from ZHXX where YE>0");
  expect_taken("select ID,(select max(YE) from ZHXX) as Highest from ZHXX order by YE");
  expect_taken("select max(convert(int,Type)) as ls_bm,clng(max(Status)) from StockBill");
  expect_taken("select max(Id) as Id from StockBill order by Id");
  expect_taken("select case when count(*)>1 then 'many' else null end from ZHXX");
}

TEST_P(DriverGroups, A_column_outside_of_the_group_has_no_value) {
  const std::string_view reason = "outside of the group";
  expect_refused("select BillId,sum(Amount) from StockBillItems group by BillId order by RowNum", reason);
  expect_refused("select BillId from StockBillItems group by BillId order by GId desc", reason);
  expect_refused("select BillId,GId from StockBillItems group by BillId", reason);
  expect_refused("select * from StockBillItems group by BillId", reason);
  expect_refused("select BillId from StockBillItems group by BillId having Price>1", reason);
  expect_taken("select BillId,sum(Amount) as Total from StockBillItems group by BillId order by Total desc");
  expect_taken("select i.BillId b,sum(Amount) from StockBillItems i group by BILLID order by i.BillId,2,sum(Qty)");
  expect_taken("select [BillId],GId from StockBillItems group by StockBillItems.GId,BillId having sum(Amount)>1");
  expect_taken("select BillId||GId from StockBillItems group by BillId||GId order by BillId||GId");
  expect_taken("select BillId from StockBillItems union select ID from ZHXX order by BillId");
}

TEST_P(DriverGroups, An_alias_is_no_column_for_a_condition) {
  const std::string_view reason = "is an alias";
  expect_refused("select YE as Balance from ZHXX where Balance=1", reason);
  expect_refused("select YE+1 Balance from ZHXX where ID='a' and ([balance]>1 or ID='b')", reason);
  expect_refused("select ID from ZHXX where ID in (select Id as Number from StockBill where Number='a')", reason);
  expect_taken("select YE as ID from ZHXX where ID='a'");
  expect_taken("select Type as Balance from StockBill where exists (select 1 from ZHXX where YE=1)");
  expect_taken("select Balance as Balance from (select YE as Balance from ZHXX) as Accounts where Balance=1");
  run("create view Balances as select YE as Balance from ZHXX");
  expect_taken("select Balance+1 as Balance from Balances where Balance=1");
  expect_taken("select ZH as Amount from ZHXX,StockBillItems where Amount=1");
}

INSTANTIATE_TEST_SUITE_P(On, DriverGroups, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
