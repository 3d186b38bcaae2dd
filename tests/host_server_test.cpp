// The built command on a MariaDB server: the tables, who comes in, what is shown of a password, the demo.
#include "tests/host_server.h"

#include <chrono>
#include <memory>
#include <thread>

#include "brunvik/ado/errors.h"
#include "tests/support/closed_port.h"

namespace brunvik::host {
namespace {

using test::MariaDbDatabase;

const std::string count_of_goods = sql("select count(*) as n from goods");
const std::string one_goods = sql("insert into goods(id,Gname) values('G1','螺丝 𠮷')");

std::string counted(int goods) {
  return "{\"line\":1,\"columns\":[\"n\"],\"rows\":[[" + std::to_string(goods) + "]]}\n";
}

// An empty database of the user books.
class BooksOfAUser {
 public:
  BooksOfAUser() { server_.open()->Execute("create database " + name_); }
  ~BooksOfAUser() { server_.open()->Execute("drop database " + name_); }
  BooksOfAUser(const BooksOfAUser&) = delete;
  BooksOfAUser& operator=(const BooksOfAUser&) = delete;

  std::string address() const { return by_tcp() + ";DATABASE=" + name_; }

 private:
  MariaDbDatabase server_;
  std::string name_ = "books_" + std::to_string(getpid());
};

class HostServer : public testing::Test {
 protected:
  // Of the database, by the host's own statement in a run of its own.
  std::string told(const std::string& statement) const {
    const Ended ended = brunvik({"run", "--db", address}, sql(statement));
    return ended.status == 0 ? Json::parse(ended.out).at("rows").dump() : ended.out + ended.error;
  }

  Ended create(const std::string& lines = {}) const { return brunvik({"run", "--create", "--db", address}, lines); }

  // Nothing is answered, nothing hangs, and standard error has this.
  static void expect_no_database(const std::vector<std::string>& arguments, const std::string& reason) {
    const auto begin = std::chrono::steady_clock::now();
    const Ended ended = brunvik(arguments, count_of_goods);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.out, "");
    EXPECT_TRUE(ended.error.starts_with("brunvik: -2147")) << ended.error;
    EXPECT_NE(ended.error.find(reason), std::string::npos) << ended.error;
    EXPECT_EQ(ended.error.find("password-of"), std::string::npos) << ended.error;
    EXPECT_EQ(ended.error.find("books-password"), std::string::npos) << ended.error;
  }

  // The attribute of the connection string in the place of its present value.
  static std::string with(std::string connection_string, const std::string& keyword, const std::string& value) {
    const auto place = connection_string.find(keyword + "=");
    const auto end = connection_string.find(';', place);
    return "odbc:" + connection_string.replace(place, end - place, keyword + "=" + value);
  }

  MariaDbDatabase database;
  std::string address = "odbc:" + database.address();
};

TEST_F(HostServer, An_empty_database_gets_the_tables_by_create_alone) {
  const Ended ended = brunvik({"run", "--db", address}, count_of_goods);
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.error, "brunvik: -2147467259: there are no tables in the database '" + database.address() +
                             "' (--create lays them)\n");
  EXPECT_EQ(brunvik({"schema", "--db", address, "--apply"}).status, 1);
  EXPECT_EQ(create(count_of_goods).out, counted(0));
  EXPECT_EQ(brunvik({"run", "--db", address}, one_goods + count_of_goods).status, 0);
  EXPECT_EQ(create(count_of_goods).out, counted(1));
  EXPECT_EQ(told("select Gname from goods"), R"([["螺丝 𠮷"]])");
}

TEST_F(HostServer, Of_two_that_lay_the_tables_at_once_neither_takes_those_of_the_other) {
  Ended first{};
  std::thread other([&] { first = create(one_goods); });
  const Ended second = create(sql("insert into goods(id) values('G2')"));
  other.join();
  const int done = (first.status == 0 ? 1 : 0) + (second.status == 0 ? 1 : 0);
  EXPECT_GE(done, 1) << first.error << second.error;
  EXPECT_EQ(told("select count(*) as n from goods"), "[[" + std::to_string(done) + "]]");
  EXPECT_EQ(brunvik({"schema", "--db", address}).out, "");
}

TEST_F(HostServer, Tables_that_can_t_all_be_laid_leave_an_empty_database) {
  const std::string user = "layer" + std::to_string(getpid());
  const auto books = database.open();
  books->Execute("create user " + user + "@'%' identified by 'password-of-layer'");
  books->Execute("grant select,insert,update,delete,create,drop on *.* to " + user + "@'%'");
  const std::string place = with(by_tcp(), "UID", user).substr(5);
  const std::string layer =
      with(place, "PWD", "password-of-layer") + database.address().substr(database.address().rfind(';'));
  expect_no_database({"run", "--create", "--db", layer}, "INDEX command denied");
  EXPECT_FALSE(books->has_tables());
  books->Execute("drop user " + user + "@'%'");
}

TEST_F(HostServer, A_database_of_another_program_is_refused_and_stays_as_it_is) {
  database.open()->Execute("create table mine(id int primary key)");
  for (const auto& arguments :
       {std::vector<std::string>{"run", "--db", address}, std::vector<std::string>{"run", "--db", address, "--create"},
        std::vector<std::string>{"schema", "--db", address, "--apply"},
        std::vector<std::string>{"demo", "--db", address}}) {
    expect_no_database(arguments, "There is none of the books' tables in the database, which stays as it is.");
  }
  EXPECT_EQ(database.open()
                ->Execute("select count(*) as n from information_schema.tables where table_schema=database()")
                .value("n")
                .as_long(),
            1);
}

TEST_F(HostServer, What_the_tables_lack_is_laid_and_nothing_is_taken_away) {
  create(one_goods);
  {
    const auto books = database.open();
    books->Execute("alter table goods drop column AverageCost");
    books->Execute("alter table goods add Shelf varchar(20) default 'A7'");
    books->Execute("drop table Inventory");
    books->Execute("drop index StockBill_Type_Id on StockBill");
    books->Execute("create table Notes(id int primary key)");
  }
  const std::string lacking = brunvik({"schema", "--db", address}).out;
  for (const char* part : {"ALTER TABLE `goods` ADD COLUMN `AverageCost` DECIMAL(19,4)", "CREATE TABLE `Inventory` (\n",
                           "CREATE INDEX `StockBill_Type_Id` ON `StockBill` (`Type`, `Id`);\n"}) {
    EXPECT_NE(lacking.find(part), std::string::npos) << part;
  }
  EXPECT_EQ(lacking.find("DROP"), std::string::npos);
  const Ended applied = brunvik({"schema", "--db", address, "--apply"});
  EXPECT_EQ(applied.status, 0) << applied.error;
  EXPECT_EQ(applied.out, lacking);
  EXPECT_EQ(brunvik({"schema", "--db", address}).out, "");
  EXPECT_EQ(told("select id,Gname,Shelf,AverageCost from goods"), R"([["G1","螺丝 𠮷","A7","0"]])");
  EXPECT_EQ(told("select count(*) as n from Notes"), "[[0]]");
}

TEST_F(HostServer, The_rows_of_a_voucher_lie_in_their_order_and_are_found_by_it) {
  create();
  {
    const auto books = database.open();
    books->Execute("insert into RPBRPItems(BID,RowNum,RPableBID) values('FKD24030500002',1,'JHR2')");
    for (const char* row : {"2,'JHR3'", "1,'JHR1'", "2,'JHR2'"}) {
      books->Execute("insert into RPBRPItems(BID,RowNum,RPableBID) values('FKD24030500001'," + std::string(row) + ")");
    }
  }
  EXPECT_EQ(told("select * from RPBRPItems where bid='fkd24030500001'"),
            R"([["FKD24030500001",1,"JHR1",null,"0",null],)"
            R"(["FKD24030500001",2,"JHR3",null,"0",null],["FKD24030500001",2,"JHR2",null,"0",null]])");
  for (const char* table : {"RPBItems", "RPBRPItems", "AdvanceItems"}) {
    const Json plan = Json::parse(told("explain select * from " + std::string(table) + " where BID='FKD24030500001'"));
    EXPECT_NE(plan.dump().find("\"PRIMARY\",\"762\",\"const\""), std::string::npos) << plan;
  }
}

TEST_F(HostServer, A_row_of_a_voucher_without_its_number_has_none_and_a_null_is_refused) {
  create();
  const auto books = database.open();
  books->Execute("insert into RPBItems(Amount) values(1.5)");
  books->Execute("insert into RPBItems(Amount) values(1.5)");
  EXPECT_EQ(told("select BID,RowNum,Amount from RPBItems"), R"([["",0,"1.5"],["",0,"1.5"]])");
  for (const char* row : {"null,1", "'FKD24030500001',null"}) {
    try {
      books->Execute("insert into RPBItems(BID,RowNum) values(" + std::string(row) + ")");
      ADD_FAILURE() << row;
    } catch (const ado::RuntimeError& error) {
      EXPECT_EQ(error.number(), ado::error::constraint_violated);
      EXPECT_NE(error.description().find("cannot be null"), std::string::npos) << error.description();
    }
  }
  EXPECT_EQ(told("select count(*) as n from RPBItems"), "[[2]]");
}

TEST_F(HostServer, Vouchers_whose_rows_were_laid_in_another_order_go_on_as_they_are) {
  create();
  const auto books = database.open();
  books->Execute(
      "alter table RPBRPItems modify BID varchar(190), modify RowNum smallint, drop primary key, modify RowKey bigint "
      "unsigned not null auto_increment invisible primary key");
  books->Execute("insert into RPBRPItems(BID,RowNum) values(null,null)");
  const std::string index = "CREATE INDEX `RPBRPItems_BID_RowNum` ON `RPBRPItems` (`BID`, `RowNum`);\n";
  EXPECT_EQ(brunvik({"schema", "--db", address}).out, index);
  EXPECT_EQ(brunvik({"schema", "--db", address, "--apply"}).out, index);
  EXPECT_EQ(brunvik({"schema", "--db", address, "--apply"}).out, "");
  EXPECT_EQ(told("select BID,RowNum from RPBRPItems"), "[[null,null]]");
}

TEST_F(HostServer, A_server_that_can_t_be_reached_is_status_1_with_the_reason) {
  const std::string books = by_tcp() + ";DATABASE=books";
  const auto refused = [](const std::string& db, const std::string& reason) {
    expect_no_database({"run", "--create", "--db", db}, reason);
  };
  refused(with(books, "PWD", "password-of-nobody"), "Access denied for user 'books'");
  refused(with(books, "UID", "nobody"), "Access denied for user 'nobody'");
  refused(with(books, "DATABASE", "mysql"), "Access denied for user 'books'");
  refused(with(books, "DATABASE", "books_of_nobody"), "Unknown database 'books_of_nobody'");
  refused(with(books, "SERVER", "host.invalid"), "Unknown server host 'host.invalid'");
  const test::ClosedPort closed;
  refused(with(books, "PORT", closed.number()), "Can't connect to server on '127.0.0.1'");
  refused(with(books, "DRIVER", "{No Driver}"), "Can't open lib 'No Driver'");
  refused("odbc:DSN=nowhere;PWD={password-of;nowhere}", "Data source name not found");
  refused("odbc:" + by_tcp(), "The connection string names no DATABASE.");
}

TEST_F(HostServer, A_user_without_rights_is_told_so) {
  std::string stranger = by_tcp();
  for (std::size_t place = 0; (place = stranger.find("books", place)) != std::string::npos;) {
    stranger.replace(place, std::string_view("books").size(), "stranger");
  }
  expect_no_database({"run", "--db", "odbc:" + stranger + ";DATABASE=books"}, "Access denied for user 'stranger'");
}

TEST_F(HostServer, A_database_that_compares_keys_otherwise_is_refused_with_what_to_change) {
  const std::string name = database.address().substr(database.address().rfind('=') + 1);
  database.open()->Execute("alter database " + name + " character set utf8mb4 collate utf8mb4_general_ci");
  expect_no_database({"run", "--create", "--db", address},
                     "alter database " + name + " character set utf8mb4 collate utf8mb4_uca1400_as_ci");
}

TEST_F(HostServer, A_password_that_the_string_lacks_is_taken_from_the_environment_and_never_shown) {
  const BooksOfAUser books;
  const std::string address = "odbc:" + books.address();
  const std::string password = ";PWD=books-password";
  std::string bare = address;
  bare.erase(bare.find(password), password.size());
  expect_no_database({"run", "--db", bare}, "Access denied");
  setenv("BRUNVIK_PASSWORD", "password-of-nobody", 1);
  expect_no_database({"run", "--db", bare}, "Access denied");
  EXPECT_EQ(brunvik({"--help"}).out.find("password-of"), std::string::npos);
  setenv("BRUNVIK_PASSWORD", "books-password", 1);
  const Ended ended =
      brunvik({"run", "--create", "--trace", "--db", bare}, R"({"do":"proc","name":"GetSqlVal","args":["a"]})");
  unsetenv("BRUNVIK_PASSWORD");
  EXPECT_EQ(ended.status, 0) << ended.error;
  EXPECT_EQ((ended.out + ended.error).find("books-password"), std::string::npos);
}

TEST_F(HostServer, Verbs_and_a_transaction_round_them_are_as_on_a_file) {
  const std::string lines = R"({"do":"new","as":"b","class":"clsOthersInBill"}
{"do":"put","on":"b","values":{"ID":"QTR24030500001","Remarks":"盘盈 𠮷 \\ O'Neil"}}
{"do":"transaction","is":"begin"}
{"do":"transaction","is":"begin"}
{"do":"call","on":"b","verb":"Save"}
{"do":"transaction","is":"rollback"}
{"do":"sql","text":"select Id from StockBill"}
{"do":"transaction","is":"commit"}
{"do":"transaction","is":"begin"}
{"do":"call","on":"b","verb":"Save"}
{"do":"transaction","is":"commit"}
{"do":"sql","text":"select Id,Remarks from StockBill"}
{"do":"transaction","is":"begin"}
{"do":"sql","text":"delete from StockBill"}
)";
  const Folder folder;
  const Ended ended = brunvik({"run", "--create", "--trace", "--db", address}, lines);
  EXPECT_EQ(ended.status, 3);
  EXPECT_EQ(ended.error, "brunvik: the lines ended within a transaction, which was rolled back\n");
  const Ended on_a_file = brunvik({"run", "--create", "--trace", "--db", "sqlite:" + folder.file("books.db")}, lines);
  EXPECT_EQ(ended.out, on_a_file.out);
  EXPECT_NE(ended.out.find(R"("rows":[["QTR24030500001","盘盈 𠮷 \\ O'Neil"]])"), std::string::npos) << ended.out;
  EXPECT_EQ(told("select Id from StockBill"), R"([["QTR24030500001"]])");
}

TEST_F(HostServer, A_connection_that_is_killed_in_a_transaction_takes_it_back_and_the_run_goes_on) {
  create();
  Conversation command({"run", "--db", address});
  const auto said = [&](const std::string& line) { return command.answer_to(line); };
  const Json id = Json::parse(said(sql("select connection_id() as id")));
  EXPECT_NE(said("{\"do\":\"transaction\",\"is\":\"begin\"}\n").find("\"ok\""), std::string::npos);
  said(one_goods);
  database.open()->Execute("kill " + id.at("rows").at(0).at(0).dump());
  EXPECT_NE(said(one_goods).find("-2147467259"), std::string::npos);
  EXPECT_NE(said(one_goods).find("-2147467259"), std::string::npos);
  EXPECT_NE(said("{\"do\":\"transaction\",\"is\":\"commit\"}\n").find("-2147467259"), std::string::npos);
  EXPECT_NE(said(count_of_goods).find("[[0]]"), std::string::npos);
  EXPECT_EQ(command.end(), 3);
}

TEST_F(HostServer, The_demo_plays_on_a_server_and_ends_with_a_line_to_try_next_that_works) {
  const Folder folder;
  const Ended ended = brunvik({"demo", "--db", address, "--now", "2024-03-05 10:00:00"});
  EXPECT_EQ(ended.status, 0) << ended.error;
  const std::string memory = brunvik({"demo", "--db", "sqlite::memory:", "--now", "2024-03-05 10:00:00"}).out;
  ASSERT_EQ(ended.out.substr(0, memory.size()), memory);
  const std::string end = ended.out.substr(memory.size());
  EXPECT_TRUE(end.starts_with("\n数据库: " + address + "\n下一步: ")) << end;
  const std::string next = end.substr(end.find("下一步: ") + std::string("下一步: ").size());
  EXPECT_EQ(written_by(next.substr(0, next.find('\n'))),
            "{\"line\":1,\"columns\":[\"GId\",\"CurrentQty\"],\"rows\":[[\"G1\",11],[\"G2\",32]]}\n");
  expect_no_database({"demo", "--db", address}, "is in use already, and stays as it is");
}

TEST_F(HostServer, The_line_to_try_next_leaves_a_password_to_the_environment) {
  const BooksOfAUser books;
  const Ended ended = brunvik({"demo", "--db", "odbc:" + books.address()});
  EXPECT_EQ(ended.status, 0) << ended.error;
  EXPECT_EQ(ended.out.find("books-password"), std::string::npos);
  EXPECT_NE(ended.out.find("（密码取自环境变量 BRUNVIK_PASSWORD）\n下一步: "), std::string::npos);
  const std::string next = ended.out.substr(ended.out.find("下一步: ") + std::string("下一步: ").size());
  EXPECT_NE(written_by("export BRUNVIK_PASSWORD=books-password; " + next).find("[\"G1\",11]"), std::string::npos)
      << next;
}

TEST(HostOwnServer, A_server_without_a_connection_to_spare_says_so) {
  const OwnServer server("max_connections=10");
  // One more than the rest gets in, since the user has all rights.
  std::vector<std::shared_ptr<odbc::Connection>> guests;
  while (guests.size() < 11) guests.push_back(server.open_when_there_is_room());
  const Ended ended = brunvik({"run", "--db", server.address()}, count_of_goods);
  EXPECT_EQ(ended.status, 1);
  EXPECT_NE(ended.error.find("Too many connections"), std::string::npos) << ended.error;
}

TEST(HostOwnServer, A_server_that_ends_in_the_middle_of_a_run_is_an_error_of_its_line_and_the_next_finds_it_again) {
  // What it has acknowledged is in the log, on the disk.
  OwnServer server("innodb_flush_log_at_trx_commit=1");
  Conversation command({"run", "--create", "--db", server.address()});
  EXPECT_EQ(command.answer_to(count_of_goods), counted(0));
  EXPECT_NE(command.answer_to(one_goods).find("\"rows\":[]"), std::string::npos);
  server.end_at_once();
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_NE(command.answer_to(count_of_goods).find("-2147467259"), std::string::npos);
  EXPECT_NE(command.answer_to(count_of_goods).find("-2147467259"), std::string::npos);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
  const std::string ended = brunvik({"run", "--db", server.address()}, count_of_goods).error;
  EXPECT_NE(ended.find("can't be opened"), std::string::npos) << ended;
  server.start();
  EXPECT_NE(command.answer_to(count_of_goods).find("[[1]]"), std::string::npos);
  EXPECT_EQ(command.end(), 3);
}

TEST(HostOwnServer, A_server_that_falls_silent_is_waited_for_no_longer_than_half_a_minute) {
  const OwnServer server;
  Conversation command({"run", "--create", "--db", server.address()});
  EXPECT_EQ(command.answer_to(count_of_goods), counted(0));
  server.fall_silent();
  const auto begin = std::chrono::steady_clock::now();
  Ended opened{};
  std::thread other([&] {
    opened = brunvik({"run", "--db", server.address() + "||" + server.address().substr(5)}, count_of_goods);
  });
  EXPECT_NE(command.answer_to(count_of_goods).find("-2147467259"), std::string::npos);
  other.join();
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
  EXPECT_EQ(opened.status, 1);
  server.go_on();
  EXPECT_NE(command.answer_to(count_of_goods).find("[[0]]"), std::string::npos);
  EXPECT_EQ(command.end(), 3);
}

}  // namespace
}  // namespace brunvik::host
