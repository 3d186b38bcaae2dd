// Words that only the engine knows, and columns named twice, are refused as both original databases refuse them.
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

class SqliteOwnWords : public SqliteBooks {
 protected:
  SqliteOwnWords() { run("insert into ZHXX(ID,ZH,YE) values('a','x',1)"); }

  void expect_refused(std::string_view statement, std::string_view reason) {
    try {
      run(statement);
      ADD_FAILURE() << statement;
    } catch (const ado::RuntimeError& failure) {
      EXPECT_EQ(failure.number(), ado::error::statement_refused) << statement;
      EXPECT_NE(failure.description().find(reason), std::string::npos) << statement << ": " << failure.description();
      EXPECT_EQ(failure.statement(), statement);
    }
    EXPECT_EQ(count("select count(*) from ZHXX"), 1) << statement;
  }
};

TEST_F(SqliteOwnWords, A_column_named_twice) {
  expect_refused("insert into ZHXX(ID,YE,id) values('b',1,'c')", "'id' is named twice");
  expect_refused("insert into ZHXX([ID],YE,ID) select 'b',1,'c'", "'ID' is named twice");
  expect_refused("update ZHXX set YE=1,ZH='b',YE=2 where ID='a'", "'YE' is named twice");
  expect_refused("update ZHXX set ZHXX.YE=1,ye=(2) where ID='a'", "'ye' is named twice");
  run("update ZHXX set YE=YE+1,ZH=ZH where YE=1 and YE=1");
  run("insert into Warehouse(Id,WName) select ID,ID from ZHXX");
}

TEST_F(SqliteOwnWords, Writing_over_what_is_there) {
  expect_refused("replace into ZHXX(ID) values('a')", "'replace'");
  expect_refused("insert or replace into ZHXX(ID) values('a')", "'or'");
  expect_refused("insert or ignore into ZHXX(ID) values('a')", "'or'");
  expect_refused("update or ignore ZHXX set YE=1", "'or'");
  expect_refused("insert into ZHXX(ID) values('a') on conflict do nothing", "'conflict'");
  expect_refused("insert into ZHXX(ID) values('a') on conflict(ID) do update set YE=2", "'conflict'");
  expect_refused("insert into ZHXX(ID) values('b') returning ID", "'returning'");
  expect_refused("delete from ZHXX returning *", "'returning'");
}

TEST_F(SqliteOwnWords, Conditions) {
  expect_refused("select * from ZHXX where ID=='a'", "'=='");
  expect_refused("select * from ZHXX where ID glob 'a*'", "'glob'");
  expect_refused("select * from ZHXX where ZH isnull", "'isnull'");
  expect_refused("select * from ZHXX where ZH notnull", "'notnull'");
  expect_refused("select * from ZHXX where ZH not null", "'null'");
  EXPECT_EQ(count("select count(*) from ZHXX where not ZH is null and ZH is not null"), 1);
}

TEST_F(SqliteOwnWords, The_number_of_a_row) {
  expect_refused("select rowid from ZHXX", "'rowid'");
  expect_refused("select * from ZHXX where ZHXX.RowId=1", "'RowId'");
  expect_refused("delete from ZHXX where [rowid]=1", "'[rowid]'");
  expect_refused("select * from ZHXX order by _rowid_", "'_rowid_'");
  expect_refused("select oid from ZHXX", "'oid'");
}

TEST_F(SqliteOwnWords, The_larger_of_two_values) {
  expect_refused("select max(YE,2) from ZHXX", "max");
  expect_refused("update ZHXX set YE=min(YE,abs(2))", "min");
  EXPECT_EQ(text("select max(ifnull(YE,2)) from ZHXX"), "1");
}

TEST_F(SqliteOwnWords, Stay_words_in_literals_and_names_of_columns) {
  run("create table Words (rowid TEXT COLLATE NOCASE, [glob] TEXT COLLATE NOCASE, [returning] INTEGER, conflict "
      "INTEGER,"
      " [isnull] INTEGER, oid MONEY)");
  run("insert into Words(rowid,[glob],[returning],conflict,[isnull],oid) values('glob','==',1,2,3,4)");
  run("update Words set [glob]='replace into x; on conflict',conflict=conflict+1 where rowid='glob'");
  ado::Recordset set = run("select rowid,[glob],Words.conflict,[isnull] as rowid2,oid from Words where [isnull]=3");
  EXPECT_EQ(set.value("rowid").as_text(), "glob");
  EXPECT_EQ(set.value("glob").as_text(), "replace into x; on conflict");
  EXPECT_EQ(set.value("conflict"), ado::Value(Long{3}));
  EXPECT_EQ(text("select replace(rowid,'g','b') from Words where [glob] like '%isnull%' or rowid='GLOB'"), "blob");
}

TEST_F(SqliteOwnWords, What_a_connection_needs_for_itself_stays_open) {
  for (const char* statement :
       {"begin", "rollback", "begin immediate", "commit", "pragma page_count", "explain query plan select ID from ZHXX",
        "create table T1 (a TEXT not null)", "create index T1_a on T1 (a)", "drop table T1"}) {
    EXPECT_EQ(error_of(*books, statement), 0) << statement;
  }
}

}  // namespace
}  // namespace brunvik::sqlite
