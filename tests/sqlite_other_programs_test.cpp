// The file of another program is refused, and stays as it is to the byte.
#include <sqlite3.h>

#include <fstream>
#include <iterator>
#include <map>

#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

const Options as_books{.known_tables = {"StockBill", "goods"}};
const Options made_as_books{.create = true, .known_tables = {"StockBill", "goods"}};

class SqliteOtherPrograms : public ::testing::Test {
 protected:
  // A file that the engine alone has made.
  void make(const std::string& statements, bool keep_the_log = false) {
    sqlite3* database = nullptr;
    ASSERT_EQ(sqlite3_open(path().c_str(), &database), SQLITE_OK);
    if (keep_the_log) sqlite3_db_config(database, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    EXPECT_EQ(sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(database);
  }

  // Each file of the folder with its bytes; the engine's shared memory is no part of the database.
  std::map<std::string, std::string> files() const {
    std::map<std::string, std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder.file(""))) {
      if (entry.path().extension() == ".db-shm") continue;
      std::ifstream file(entry.path(), std::ios::binary);
      contents[entry.path().filename()] = std::string(std::istreambuf_iterator<char>(file), {});
    }
    return contents;
  }

  void expect_refused_and_untouched() {
    const auto before = files();
    for (const Options& options : {as_books, made_as_books}) {
      try {
        open(path(), options);
        ADD_FAILURE() << "it was opened";
      } catch (const ado::RuntimeError& failure) {
        EXPECT_EQ(failure.number(), ado::error::provider_failed);
        EXPECT_NE(failure.description().find("none of the books' tables in '" + path()), std::string::npos);
      }
      EXPECT_EQ(files(), before);
    }
  }

  std::string path() const { return folder.file("other.db"); }

  Folder folder;
};

TEST_F(SqliteOtherPrograms, A_file_without_the_books_tables_stays_as_it_is) {
  make("create table Bookmarks(Id text); insert into Bookmarks values('x')");
  expect_refused_and_untouched();
}

TEST_F(SqliteOtherPrograms, So_does_one_in_write_ahead_mode_with_its_log) {
  make("pragma journal_mode=wal; create table Bookmarks(Id text); insert into Bookmarks values('x')");
  expect_refused_and_untouched();
  make("insert into Bookmarks values('y')", true);
  ASSERT_FALSE(files()["other.db-wal"].empty());
  expect_refused_and_untouched();
}

TEST_F(SqliteOtherPrograms, An_empty_file_is_taken) {
  std::ofstream(path()).close();
  const auto books = open(path(), as_books);
  lay_small_books(*books);
  EXPECT_EQ(books->Execute("pragma journal_mode").value(ado::Column{0}), ado::Value("wal"));
  EXPECT_EQ(open(path(), as_books)->State(), 1);
  EXPECT_EQ(open(":memory:", as_books)->State(), 1);
}

TEST_F(SqliteOtherPrograms, One_table_of_the_books_is_enough) {
  make("create table Bookmarks(Id text); create table GOODS(id text)");
  EXPECT_EQ(open(path(), as_books)->State(), 1);
}

TEST_F(SqliteOtherPrograms, A_host_with_tables_of_its_own_names_none) {
  make("create table Bookmarks(Id text)");
  EXPECT_EQ(open(path())->Execute("pragma journal_mode").value(ado::Column{0}), ado::Value("wal"));
}

}  // namespace
}  // namespace brunvik::sqlite
