// The command's `schema` on a database that an older version laid.
#include <gtest/gtest.h>

#include "drivers/sqlite/connection.h"
#include "schema/ddl.h"
#include "tests/host_process.h"

namespace brunvik::host {
namespace {

// Books of a time when goods had no average cost, and a bill little but its number; with a column of the host's own.
std::string old_books(const Folder& folder) {
  const std::string path = folder.file("books.db");
  const auto books = sqlite::open(path, {.create = true});
  for (const char* statement :
       {"create table GOODS(id text collate nocase, Gname text collate nocase, Class text collate nocase, "
        "Unit text collate nocase, Model1 text collate nocase, Model2 text collate nocase, Shelf text)",
        "create table StockBill(Id text collate nocase not null primary key, Type integer, Remarks text)",
        "insert into GOODS(id,Gname,Class,Unit,Model1,Model2,Shelf) values('G1','螺丝','五金','盒','','','A7')",
        "insert into StockBill(Id,Type,Remarks) values('QTR20010100001',6,'旧单')"}) {
    books->Execute(statement);
  }
  return "sqlite:" + path;
}

std::string selected(const std::string& books, const std::string& statement) {
  const std::string answer = brunvik({"run", "--db", books}, R"({"do":"sql","text":")" + statement + "\"}\n").out;
  const auto rows = answer.find("\"rows\":");
  return rows == std::string::npos ? answer : answer.substr(rows + 7, answer.size() - rows - 9);
}

TEST(HostSchema, What_a_database_lacks_is_printed_and_the_database_stays_as_it_is) {
  const Folder folder;
  const std::string books = old_books(folder);
  const Ended ended = brunvik({"schema", "--db", books});
  EXPECT_EQ(ended.status, 0) << ended.error;
  for (const char* part : {"CREATE TABLE Inventory (\n", "CREATE TABLE StockBillItems (\n",
                           "ALTER TABLE goods ADD COLUMN AverageCost MONEY", "ALTER TABLE StockBill ADD COLUMN Status ",
                           "CREATE INDEX StockBill_Type_Id ON StockBill (Type, Id);\n"}) {
    EXPECT_NE(ended.out.find(part), std::string::npos) << part;
  }
  for (const char* part : {"CREATE TABLE goods ", "CREATE TABLE StockBill ", "ADD COLUMN Gname", "DROP"}) {
    EXPECT_EQ(ended.out.find(part), std::string::npos) << part;
  }
  EXPECT_EQ(brunvik({"schema", "--db", books}).out, ended.out);
}

TEST(HostSchema, Books_of_an_older_version_go_on_once_what_they_lack_is_laid) {
  const Folder folder;
  const std::string books = old_books(folder);
  const std::string lacking = brunvik({"schema", "--db", books}).out;
  const Ended applied = brunvik({"schema", "--db", books, "--apply"});
  EXPECT_EQ(applied.status, 0) << applied.error;
  EXPECT_EQ(applied.out, lacking);

  EXPECT_EQ(selected(books, "select id,Gname,Shelf,AverageCost from goods"), R"([["G1","螺丝","A7","0"]])");
  EXPECT_EQ(selected(books, "select Id,Type,Remarks,Status,Amount from StockBill"),
            R"([["QTR20010100001",6,"旧单",null,"0"]])");

  const std::string answers = brunvik({"run", "--db", books, "--now", "2024-03-05 10:00:00"},
                                      R"({"do":"new","as":"b","class":"clsOthersInBill"}
{"do":"put","on":"b","values":{"ID":"QTR24030500001"}}
{"do":"add","on":"b","rows":"colBillItems","row":{"BillId":"QTR24030500001","Rownum":1,"Gid":"G1","Class":"五金","Unit":"盒","Qty":3,"Actualqty":3,"price":"2","Receiver":"W1"}}
{"do":"call","on":"b","verb":"Save"}
{"do":"call","on":"b","verb":"Audit"}
)")
                                  .out;
  EXPECT_NE(answers.find("{\"line\":4,\"result\":0"), std::string::npos) << answers;
  EXPECT_NE(answers.find("{\"line\":5,\"result\":0"), std::string::npos) << answers;
  EXPECT_EQ(selected(books, "select GId,CurrentQty from Inventory"), R"([["G1",3]])");
}

TEST(HostSchema, Nothing_is_printed_where_nothing_is_lacking) {
  const Folder folder;
  const std::string books = old_books(folder);
  brunvik({"schema", "--db", books, "--apply"});
  for (const auto& usage : {std::vector<std::string>{"schema", "--db", books},
                            std::vector<std::string>{"schema", "--db", books, "--apply"}}) {
    const Ended ended = brunvik(usage);
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.error, "");
  }
}

TEST(HostSchema, A_table_without_its_key_is_no_table_of_the_books) {
  const Folder folder;
  const std::string path = folder.file("books.db");
  sqlite::open(path, {.create = true})->Execute("create table BasicConfig(id text)");
  const Ended ended = brunvik({"schema", "--db", "sqlite:" + path});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.out, "");
  EXPECT_EQ(ended.error, "brunvik: the table BasicConfig lacks its key keyname, which can't be added to it\n");
}

TEST(HostSchema, What_can_t_be_laid_is_told_and_nothing_else_is_laid_either) {
  const Folder folder;
  const std::string path = folder.file("books.db");
  {
    const auto books = sqlite::open(path, {.create = true});
    books->Execute("create table Warehouse(id text collate nocase not null primary key, WName text)");
    books->Execute("create view goods as select 'G1' as id");
  }
  const Ended ended = brunvik({"schema", "--db", "sqlite:" + path, "--apply"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.out, "");
  EXPECT_NE(ended.error, "");
  EXPECT_EQ(selected("sqlite:" + path, "select count(*) as n from sqlite_master where type='table'"), "[[1]]");
}

TEST(HostSchema, The_statements_of_each_engine_are_printed_with_a_semicolon_behind_each) {
  for (const schema::NamedEngine& engine : schema::engines()) {
    const Ended ended = brunvik({"schema", "--engine", std::string(engine.name)});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.error, "");
    std::string expected;
    for (const std::string& statement : schema::statements(engine.engine)) expected += statement + ";\n";
    EXPECT_EQ(ended.out, expected) << engine.name;
  }
}

TEST(HostSchema, A_missing_database_is_not_made) {
  const Folder folder;
  const Ended ended = brunvik({"schema", "--db", "sqlite:" + folder.file("books.db"), "--apply"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_NE(ended.error.find("there is no database"), std::string::npos) << ended.error;
  EXPECT_FALSE(std::filesystem::exists(folder.file("books.db")));
}

TEST(HostSchema, Options_that_don_t_go_together_are_bad_usage) {
  for (const auto& usage : {std::vector<std::string>{"schema", "--apply"},
                            std::vector<std::string>{"schema", "--db", "sqlite:a.db", "--engine", "sqlite"},
                            std::vector<std::string>{"schema", "--db", "books.db"}}) {
    EXPECT_EQ(brunvik(usage).status, 2) << testing::PrintToString(usage);
  }
}

}  // namespace
}  // namespace brunvik::host
