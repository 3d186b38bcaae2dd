// Words that only the engine knows, and columns named twice, are refused as both original databases refuse them.
#include "tests/support/driver_books.h"

namespace brunvik::test {
namespace {

class DriverOwnWords : public DriverBooks {
 protected:
  DriverOwnWords() { run("insert into ZHXX(ID,ZH,YE) values('a','x',1)"); }
};

TEST_P(DriverOwnWords, A_column_named_twice) {
  expect_refused("insert into ZHXX(ID,YE,id) values('b',1,'c')", "'id' is named twice");
  expect_refused("insert into ZHXX([ID],YE,ID) select 'b',1,'c'", "'ID' is named twice");
  expect_refused("update ZHXX set YE=1,ZH='b',YE=2 where ID='a'", "'YE' is named twice");
  expect_refused("update ZHXX set ZHXX.YE=1,ye=(2) where ID='a'", "'ye' is named twice");
  run("update ZHXX set YE=YE+1,ZH=ZH where YE=1 and YE=1");
  run("insert into Warehouse(Id,WName) select ID,ID from ZHXX");
}

TEST_P(DriverOwnWords, Writing_over_what_is_there) {
  expect_refused("replace into ZHXX(ID) values('a')", "'replace'");
  expect_refused("insert or replace into ZHXX(ID) values('a')", "'or'");
  expect_refused("insert or ignore into ZHXX(ID) values('a')", "'or'");
  expect_refused("update or ignore ZHXX set YE=1", "'or'");
  expect_refused("insert into ZHXX(ID) values('a') on conflict do nothing", "'conflict'");
  expect_refused("insert into ZHXX(ID) values('a') on conflict(ID) do update set YE=2", "'conflict'");
  expect_refused("insert into ZHXX(ID) values('b') returning ID", "'returning'");
  expect_refused("delete from ZHXX returning *", "'returning'");
}

TEST_P(DriverOwnWords, Conditions) {
  expect_refused("select * from ZHXX where ID=='a'", "'=='");
  expect_refused("select * from ZHXX where ID glob 'a*'", "'glob'");
  expect_refused("select * from ZHXX where ZH isnull", "'isnull'");
  expect_refused("select * from ZHXX where ZH notnull", "'notnull'");
  expect_refused("select * from ZHXX where ZH not null", "'null'");
  EXPECT_EQ(count("select count(*) from ZHXX where not ZH is null and ZH is not null"), 1);
}

TEST_P(DriverOwnWords, The_number_of_a_row) {
  expect_refused("select rowid from ZHXX", "'rowid'");
  expect_refused("select * from ZHXX where ZHXX.RowId=1", "'RowId'");
  expect_refused("delete from ZHXX where [rowid]=1", "'[rowid]'");
  expect_refused("select * from ZHXX order by _rowid_", "'_rowid_'");
  expect_refused("select oid from ZHXX", "'oid'");
}

TEST_P(DriverOwnWords, The_larger_of_two_values) {
  expect_refused("select max(YE,2) from ZHXX", "max");
  expect_refused("update ZHXX set YE=min(YE,abs(2))", "min");
  EXPECT_EQ(text("select max(ifnull(YE,2)) from ZHXX"), "1");
}

TEST_P(DriverOwnWords, Stay_words_in_literals_and_names_of_columns) {
  run(GetParam().engine == schema::Engine::sqlite
          ? "create table Words (rowid TEXT COLLATE NOCASE, [glob] TEXT COLLATE NOCASE, [returning] INTEGER,"
            " conflict INTEGER, [isnull] INTEGER, oid MONEY)"
          : "create table Words (rowid varchar(190), `glob` varchar(190), `returning` int, conflict int,"
            " `isnull` int, oid decimal(19,4))");
  run("insert into Words(rowid,[glob],[returning],conflict,[isnull],oid) values('glob','==',1,2,3,4)");
  run("update Words set [glob]='replace into x; on conflict',conflict=conflict+1 where rowid='glob'");
  ado::Recordset set = run("select rowid,[glob],Words.conflict,[isnull] as rowid2,oid from Words where [isnull]=3");
  EXPECT_EQ(set.value("rowid").as_text(), "glob");
  EXPECT_EQ(set.value("glob").as_text(), "replace into x; on conflict");
  EXPECT_EQ(set.value("conflict"), ado::Value(Long{3}));
  EXPECT_EQ(text("select replace(rowid,'g','b') from Words where [glob] like '%isnull%' or rowid='GLOB'"), "blob");
}

INSTANTIATE_TEST_SUITE_P(On, DriverOwnWords, ::testing::ValuesIn(driver_engines()), by_engine);

}  // namespace
}  // namespace brunvik::test
