// Text compares as the books compare it: without regard to ASCII case and to trailing blanks; LIKE and its patterns.
#include "drivers/sqlite/pattern.h"
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteKeys : public SqliteBooks {};

TEST_F(SqliteKeys, Case_and_trailing_blanks_do_not_count) {
  run("insert into StockBill(Id,Type) values('QTR24030500001',6)");
  EXPECT_EQ(count("select count(*) from StockBill where id='qtr24030500001'"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id= 'Qtr24030500001  '"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where ' qtr24030500001'=id"), 0);
  EXPECT_EQ(count("select count(*) from StockBill where id in ('x','qtr24030500001 ')"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id not in ('x','qtr24030500001 ')"), 0);
  EXPECT_EQ(error_of(*books, "insert into StockBill(Id) values('qtr24030500001 ')"), ado::error::constraint_violated);
}

TEST_F(SqliteKeys, A_delete_whose_literal_ends_in_a_blank_finds_its_rows) {
  run("insert into StockBillItems(BillId,RowNum) values('SKD24030500001',1)");
  run("delete from StockBillItems where billid= 'SKD24030500001 '");
  EXPECT_EQ(count("select count(*) from StockBillItems"), 0);
}

TEST_F(SqliteKeys, Empty_text_equals_blanks) {
  run("insert into StockBill(Id,Auditor) values('B1','')");
  run("insert into StockBill(Id,Auditor) values('B2','   ')");
  EXPECT_EQ(count("select count(*) from StockBill where Auditor=''"), 2);
  EXPECT_EQ(count("select count(*) from StockBill where Auditor='  '"), 2);
}

TEST_F(SqliteKeys, Joins_groups_and_the_highest_value_follow_the_same_rule) {
  run("insert into Warehouse(Id,WName) values('W1','主仓')");
  run("insert into StockBillItems(BillId,RowNum,Receiver) values('b1',1,'w1 ')");
  run("insert into StockBillItems(BillId,RowNum,Receiver) values('B1',2,'W1')");
  ado::Recordset set =
      run("select StockBillItems.*,warehouse.WName from StockBillItems left join Warehouse on "
          "stockbillitems.Receiver = Warehouse.id where stockbillitems.BillId='B1' "
          "order by stockbillitems.rownum");
  ASSERT_EQ(set.record_count(), 2U);
  EXPECT_EQ(set.value("WName").as_text(), "主仓");
  EXPECT_EQ(count("select count(*) from (select BillId from StockBillItems group by BillId)"), 1);
  EXPECT_EQ(count("select count(*) from (select distinct Receiver from StockBillItems)"), 1);
  run("insert into StockBill(Id) values('qtr24030500002')");
  run("insert into StockBill(Id) values('QTR24030500010')");
  EXPECT_EQ(text("select max(Id) from StockBill"), "QTR24030500010");
}

TEST_F(SqliteKeys, Trailing_blanks_of_a_key_are_cut_when_it_is_stored) {
  run("insert into StockBill(Id) values('B1  ')");
  run("insert into StockBill(Id) select 'B2 '");
  run("insert into StockBillItems(BillId) values('B1 ')");
  run("update StockBillItems set BillId=BillId||' '");
  EXPECT_EQ(count("select count(*) from StockBill where length(Id)=2"), 2);
  EXPECT_EQ(count("select count(*) from StockBillItems where length(BillId)=2"), 1);
}

TEST_F(SqliteKeys, Text_that_is_no_key_keeps_its_trailing_blanks_and_compares_without_them) {
  run("insert into StockBill(Id,Remarks) values('B1','two  ')");
  EXPECT_EQ(text("select Remarks from StockBill where Id='B1'"), "two  ");
  EXPECT_EQ(count("select count(*) from StockBill where Remarks='two'"), 1);
}

TEST_F(SqliteKeys, Letters_of_every_script_compare_without_their_case) {
  run("insert into StockBill(Id,Auditor) values('ｍ６café','φ')");
  EXPECT_EQ(count("select count(*) from StockBill where id='Ｍ６CAFÉ'"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id='Ｍ６CAFE'"), 0);
  EXPECT_EQ(count("select count(*) from StockBill where Auditor='Φ'"), 1);
  EXPECT_EQ(count("select count(*) from StockBill where id like 'Ｍ%é'"), 1);
  EXPECT_EQ(error_of(*books, "insert into StockBill(Id) values('Ｍ６CAFÉ')"), ado::error::constraint_violated);
}

TEST_F(SqliteKeys, Keys_of_every_script_stand_in_one_order) {
  const char* const ordered[] = {"a", "B", "É", "é1", "φ", "Я", "主", "仓", "ａ", "Ｂ"};
  for (const char* id : {"Ｂ", "主", "é1", "a", "仓", "φ", "B", "ａ", "Я", "É"}) {
    run(std::string("insert into StockBill(Id) values('") + id + "')");
  }
  auto set = run("select Id from StockBill order by Id");
  for (const char* id : ordered) {
    EXPECT_EQ(set.value("Id").as_text(), id);
    EXPECT_EQ(count(std::string("select count(*) from StockBill where id='") + id + "'"), 1);
    set.MoveNext();
  }
}

TEST_F(SqliteKeys, Text_keeps_its_case_its_blanks_and_its_characters) {
  run("insert into Warehouse(Id,WName) values('W1',' 主 仓 Haupt㎡ 𠀀')");
  EXPECT_EQ(text("select WName from Warehouse where WName like '%仓%'"), " 主 仓 Haupt㎡ 𠀀");
  EXPECT_EQ(text("select WName from Warehouse where WName=' 主 仓 hAUPT㎡ 𠀀 '"), " 主 仓 Haupt㎡ 𠀀");
}

class SqliteLike : public SqliteBooks {
 protected:
  SqliteLike() {
    for (const char* name : {"100%", "100x", "a_b", "axb", "[x]", "b7", "B9", "c\\d", "O''N", "主仓", "AB", "AB C"}) {
      run("insert into Warehouse(Id) values('" + std::string(name) + "')");
    }
  }

  std::string found(std::string_view condition) {
    std::string names;
    ado::Recordset set = run("select Id from Warehouse where Id " + std::string(condition) + " order by Id");
    for (; !set.at_end(); set.MoveNext()) names += set.value("Id").as_text() + ",";
    return names;
  }
};

TEST_F(SqliteLike, Percent_and_underscore_stand_for_text_and_for_a_character) {
  EXPECT_EQ(found("like '100%'"), "100%,100x,");
  EXPECT_EQ(found("like 'A_B'"), "a_b,axb,");
  EXPECT_EQ(found("like '_仓'"), "主仓,");
  EXPECT_EQ(found("like '%'"), "100%,100x,[x],a_b,AB,AB C,axb,b7,B9,c\\d,O'N,主仓,");
  EXPECT_EQ(found("not like '%_%'"), "");
}

TEST_F(SqliteLike, A_bracket_takes_the_meaning_from_a_character) {
  EXPECT_EQ(found("like '100[%]'"), "100%,");
  EXPECT_EQ(found("like 'a[_]b'"), "a_b,");
  EXPECT_EQ(found("like '[[]x]'"), "[x],");
  EXPECT_EQ(found("like '%[[]%'"), "[x],");
  EXPECT_EQ(found("not like '%[a]%' and Id like '1%'"), "100%,100x,");
}

TEST_F(SqliteLike, A_bracket_holds_a_list_of_characters) {
  EXPECT_EQ(found("like 'b[0-8]'"), "b7,");
  EXPECT_EQ(found("like 'b[79]'"), "b7,B9,");
  EXPECT_EQ(found("like 'b[^0-8]'"), "B9,");
  EXPECT_EQ(found("like '[A-C][^0-9]%'"), "a_b,AB,AB C,axb,c\\d,");
  EXPECT_EQ(found("not like '[^主]%'"), "主仓,");
}

TEST_F(SqliteLike, A_backslash_and_an_apostrophe_are_characters) {
  EXPECT_EQ(found("like 'c\\d'"), "c\\d,");
  EXPECT_EQ(found("like 'c\\[d]'"), "c\\d,");
  EXPECT_EQ(found("like '%''%'"), "O'N,");
  EXPECT_EQ(found("like 'o''[N]'"), "O'N,");
}

TEST_F(SqliteLike, A_blank_in_front_of_the_percent_sign_counts) {
  EXPECT_EQ(found("like 'AB %'"), "AB C,");
  EXPECT_EQ(found("like '[A]B %'"), "AB C,");
}

TEST_F(SqliteLike, A_bracket_without_an_end_is_refused) {
  EXPECT_EQ(error_of(*books, "select Id from Warehouse where Id like 'a[b'"), ado::error::statement_refused);
}

TEST_F(SqliteLike, The_highest_number_of_a_day_is_found_in_a_range_of_the_index) {
  const auto plan = [this](const std::string& statement) {
    std::string steps;
    ado::Recordset set = run("explain query plan " + statement);
    for (; !set.at_end(); set.MoveNext()) steps += set.value("detail").as_text() + "\n";
    return steps;
  };
  const char* const range = "(Id>? AND Id<?)";
  EXPECT_NE(plan("select max(ID)  from StockBill where ID like 'QTR240305%' ").find(range), std::string::npos);
  EXPECT_NE(plan("select max(ID)  from StockBill where ID like 'Q[_]R240305%' ").find(range), std::string::npos);
  EXPECT_NE(plan("select TOP 1 * from StockBill where id like 'CDD%' order by Id desc").find(range), std::string::npos);
  EXPECT_NE(plan("select * from StockBill where id='x'").find("(Id=?)"), std::string::npos);
}

TEST(SqlitePattern, A_pattern_matches_as_it_is_written) {
  EXPECT_TRUE(matches("", ""));
  EXPECT_TRUE(matches("%", ""));
  EXPECT_FALSE(matches("_", ""));
  EXPECT_TRUE(matches("%a%b", "xaxbab"));
  EXPECT_FALSE(matches("%a%b", "xaxbabc"));
  EXPECT_TRUE(matches("_仓", "主仓"));
  EXPECT_TRUE(matches("[]]", "]"));
  EXPECT_TRUE(matches("[a-]", "-"));
  EXPECT_TRUE(matches("[^a]", "b"));
  EXPECT_FALSE(matches("[^a]", "A"));
  EXPECT_TRUE(matches("[一-龥]", "主"));
  EXPECT_TRUE(matches("%[%]", "5%"));
}

}  // namespace
}  // namespace brunvik::sqlite
