// Text compares as the books compare it: without regard to ASCII case and to trailing blanks; LIKE and its patterns.
#include <numeric>
#include <set>

#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverKeys : public DriverBooks {};

TEST_P(DriverKeys, Case_and_trailing_blanks_do_not_count) {
  run("insert into StockBill(Id,Type) values('QTR24030500001',6)");
  EXPECT_EQ(count("select count(*) from StockBill where id='qtr24030500001'"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id= 'Qtr24030500001  '"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where ' qtr24030500001'=id"), 0);
  EXPECT_EQ(count("select count(*) from StockBill where id in ('x','qtr24030500001 ')"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id not in ('x','qtr24030500001 ')"), 0);
  EXPECT_EQ(error_of(*books, "insert into StockBill(Id) values('qtr24030500001 ')"), ado::error::constraint_violated);
}

TEST_P(DriverKeys, A_delete_whose_literal_ends_in_a_blank_finds_its_rows) {
  run("insert into StockBillItems(BillId,RowNum) values('SKD24030500001',1)");
  run("delete from StockBillItems where billid= 'SKD24030500001 '");
  EXPECT_EQ(count("select count(*) from StockBillItems"), 0);
}

TEST_P(DriverKeys, Empty_text_equals_blanks) {
  run("insert into StockBill(Id,Auditor) values('B1','')");
  run("insert into StockBill(Id,Auditor) values('B2','   ')");
  EXPECT_EQ(count("select count(*) from StockBill where Auditor=''"), 2);
  EXPECT_EQ(count("select count(*) from StockBill where Auditor='  '"), 2);
}

TEST_P(DriverKeys, Joins_groups_and_the_highest_value_follow_the_same_rule) {
  run("insert into Warehouse(Id,WName) values('W1','主仓')");
  run("insert into StockBillItems(BillId,RowNum,Receiver) values('b1',1,'w1 ')");
  run("insert into StockBillItems(BillId,RowNum,Receiver) values('B1',2,'W1')");
  ado::Recordset set =
      run("select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
          "stockbillitems.Receiver = Warehouse.id where stockbillitems.BillId='B1' "
          "order by stockbillitems.rownum");
  ASSERT_EQ(set.record_count(), 2U);
  EXPECT_EQ(set.value("WName").as_text(), "主仓");
  EXPECT_EQ(count("select count(*) from (select BillId from StockBillItems group by BillId) as Bills"), 1);
  EXPECT_EQ(count("select count(*) from (select distinct Receiver from StockBillItems) as Receivers"), 1);
  run("insert into StockBill(Id) values('qtr24030500002')");
  run("insert into StockBill(Id) values('QTR24030500010')");
  EXPECT_EQ(text("select max(Id) from StockBill"), "QTR24030500010");
}

TEST_P(DriverKeys, Trailing_blanks_of_a_key_are_cut_when_it_is_stored) {
  run("insert into StockBill(Id) values('B1  ')");
  run("insert into StockBillItems(BillId) values('B1 ')");
  run("insert into StockBillItems(BillId) values('B2 ')");
  run("update StockBillItems set BillId='B3  ' where BillId='b1'");
  EXPECT_EQ(count("select count(*) from StockBill where length(Id)=2"), 1);
  EXPECT_EQ(count("select count(*) from StockBillItems where length(BillId)=2"), 2);
}

TEST_P(DriverKeys, Text_that_is_no_key_keeps_its_trailing_blanks_and_compares_without_them) {
  run("insert into StockBill(Id,Remarks) values('B1','two  ')");
  EXPECT_EQ(text("select Remarks from StockBill where Id='B1'"), "two  ");
  EXPECT_EQ(count("select count(*) from StockBill where Remarks='two'"), 1);
}

TEST_P(DriverKeys, Letters_of_every_script_compare_without_their_case) {
  run("insert into StockBill(Id,Auditor) values('ｍ６café','φ')");
  EXPECT_EQ(count("select count(*) from StockBill where id='Ｍ６CAFÉ'"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id='Ｍ６CAFE'"), 0);
  EXPECT_EQ(count("select count(*) from StockBill where Auditor='Φ'"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id like 'Ｍ%é'"), 1);
  EXPECT_EQ(error_of(*books, "insert into StockBill(Id) values('Ｍ６CAFÉ')"), ado::error::constraint_violated);
}

TEST_P(DriverKeys, Keys_of_every_script_stand_in_one_order) {
  const char* const ordered[] = {"a", "B", "É", "é1", "φ", "Я", "主", "仓"};
  for (const char* id : {"主", "é1", "a", "仓", "φ", "B", "Я", "É"}) {
    run(std::string("insert into StockBill(Id) values('") + id + "')");
  }
  auto set = run("select Id from StockBill order by Id");
  for (const char* id : ordered) {
    EXPECT_EQ(set.value("Id").as_text(), id);
    EXPECT_EQ(count(std::string("select count(*) from StockBill where id='") + id + "'"), 1);
    set.MoveNext();
  }
}

TEST_P(DriverKeys, Text_keeps_its_case_its_blanks_and_its_characters) {
  run("insert into Warehouse(Id,WName) values('W1',' 主 仓 Haupt㎡ 𠀀')");
  EXPECT_EQ(text("select WName from Warehouse where WName like '%仓%'"), " 主 仓 Haupt㎡ 𠀀");
  EXPECT_EQ(text("select WName from Warehouse where WName=' 主 仓 hAUPT㎡ 𠀀 '"), " 主 仓 Haupt㎡ 𠀀");
}

class DriverLike : public DriverBooks {
 protected:
  DriverLike() {
    for (const char* name : {"100%", "100x", "a_b", "axb", "[x]", "b7", "B9", "c\\d", "O''N", "主仓", "AB", "AB C"}) {
      run("insert into Warehouse(Id) values('" + std::string(name) + "')");
    }
  }

  // In the order of their bytes: where signs stand among the letters, each engine has its own opinion.
  std::string found(std::string_view condition) {
    std::set<std::string> ids;
    ado::Recordset set = run("select Id from Warehouse where Id " + std::string(condition));
    for (; !set.at_end(); set.MoveNext()) ids.insert(set.value("Id").as_text() + ",");
    return std::accumulate(ids.begin(), ids.end(), std::string());
  }
};

TEST_P(DriverLike, Percent_and_underscore_stand_for_text_and_for_a_character) {
  EXPECT_EQ(found("like '100%'"), "100%,100x,");
  EXPECT_EQ(found("like 'A_B'"), "a_b,axb,");
  EXPECT_EQ(found("like '_仓'"), "主仓,");
  EXPECT_EQ(found("like '%'"), "100%,100x,AB C,AB,B9,O'N,[x],a_b,axb,b7,c\\d,主仓,");
  EXPECT_EQ(found("not like '%_%'"), "");
}

TEST_P(DriverLike, A_bracket_takes_the_meaning_from_a_character) {
  EXPECT_EQ(found("like '100[%]'"), "100%,");
  EXPECT_EQ(found("like 'a[_]b'"), "a_b,");
  EXPECT_EQ(found("like '[[]x]'"), "[x],");
  EXPECT_EQ(found("like '%[[]%'"), "[x],");
  EXPECT_EQ(found("not like '%[a]%' and Id like '1%'"), "100%,100x,");
}

TEST_P(DriverLike, A_bracket_holds_a_list_of_characters) {
  EXPECT_EQ(found("like 'b[0-8]'"), "b7,");
  EXPECT_EQ(found("like 'b[79]'"), "B9,b7,");
  EXPECT_EQ(found("like 'b[^0-8]'"), "B9,");
  EXPECT_EQ(found("like '[A-C][^0-9]%'"), "AB C,AB,a_b,axb,c\\d,");
  EXPECT_EQ(found("not like '[^主]%'"), "主仓,");
}

TEST_P(DriverLike, A_backslash_and_an_apostrophe_are_characters) {
  EXPECT_EQ(found("like 'c\\d'"), "c\\d,");
  EXPECT_EQ(found("like 'c\\[d]'"), "c\\d,");
  EXPECT_EQ(found("like '%''%'"), "O'N,");
  EXPECT_EQ(found("like 'o''[N]'"), "O'N,");
}

TEST_P(DriverLike, A_blank_in_front_of_the_percent_sign_counts) {
  EXPECT_EQ(found("like 'AB %'"), "AB C,");
  EXPECT_EQ(found("like '[A]B %'"), "AB C,");
}

TEST_P(DriverLike, A_bracket_without_an_end_is_refused) {
  EXPECT_EQ(error_of(*books, "select Id from Warehouse where Id like 'a[b'"), ado::error::statement_refused);
}

INSTANTIATE_TEST_SUITE_P(On, DriverKeys, ::testing::ValuesIn(driver_engines()), by_engine);
INSTANTIATE_TEST_SUITE_P(On, DriverLike, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
