// Files: missing, foreign, locked, full, read-only; and what is left when a process is killed.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <fstream>

#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

namespace error = ado::error;
using std::chrono_literals::operator""ms;

Long error_of_open(const std::string& path, const Options& options = {}) {
  try {
    open(path, options);
    return 0;
  } catch (const ado::RuntimeError& failure) {
    EXPECT_FALSE(failure.description().empty());
    return failure.number();
  }
}

TEST(SqliteFile, A_missing_file_is_an_error_that_names_it) {
  const Folder folder;
  try {
    open(folder.file("none.db"));
    FAIL();
  } catch (const ado::RuntimeError& failure) {
    EXPECT_EQ(failure.number(), error::provider_failed);
    EXPECT_NE(failure.description().find("none.db"), std::string::npos);
  }
  EXPECT_FALSE(std::filesystem::exists(folder.file("none.db")));
  EXPECT_EQ(error_of_open(""), error::provider_failed);
  EXPECT_EQ(error_of_open(folder.file("no/folder.db"), {.create = true}), error::provider_failed);
}

TEST(SqliteFile, A_file_that_is_no_database_is_an_error) {
  const Folder folder;
  std::ofstream(folder.file("letter.txt")) << std::string(4'096, 'x');
  EXPECT_EQ(error_of_open(folder.file("letter.txt")), error::provider_failed);
  EXPECT_EQ(error_of_open(folder.file("letter.txt"), {.create = true}), error::provider_failed);
  EXPECT_EQ(error_of_open("/"), error::provider_failed);
}

TEST(SqliteFile, A_path_is_a_path_even_if_it_looks_like_an_address) {
  const Folder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.file(""));
  { const auto books = open("file:books.db?mode=memory", {.create = true}); }
  EXPECT_TRUE(std::filesystem::exists("file:books.db?mode=memory"));
  std::filesystem::current_path(before);
}

TEST(SqliteFile, The_memory_needs_no_file) {
  const auto books = open(":memory:");
  lay_small_books(*books);
  books->Execute("insert into ZHXX(ID,YE) values('A1',0.3)");
  EXPECT_EQ(books->Execute("select YE from ZHXX").value("YE"), ado::Value(ado::Money::parse("0.3")));
}

TEST(SqliteFile, A_closed_connection_says_so) {
  const auto books = open(":memory:");
  EXPECT_EQ(books->State(), 1);
  books->Close();
  books->Close();
  EXPECT_EQ(books->State(), 0);
  EXPECT_EQ(error_of(*books, "select 1"), error::object_closed);
}

class SqliteFiles : public SqliteBooks {};

TEST_F(SqliteFiles, Every_statement_is_kept_by_itself_and_a_second_connection_sees_it) {
  const auto other = open(path());
  for (int row = 1; row <= 50; ++row) {
    run("insert into Warehouse(Id) values('W" + std::to_string(row) + "')");
    EXPECT_EQ(other->Execute("select count(*) as n from Warehouse").value("n"), ado::Value(Long{row}));
  }
}

TEST_F(SqliteFiles, The_log_is_written_ahead_and_synchronous_as_the_host_says) {
  EXPECT_EQ(text("pragma journal_mode"), "wal");
  EXPECT_EQ(count("pragma synchronous"), 1);
  const auto careful = open(path());
  EXPECT_EQ(careful->Execute("pragma synchronous").value(ado::Column{0}), ado::Value(Long{2}));
}

TEST_F(SqliteFiles, A_locked_database_is_a_time_out_and_works_again_when_it_is_free) {
  const auto impatient = open(path(), {.busy_timeout = 5ms});
  run("begin immediate");
  run("insert into Warehouse(Id) values('W1')");
  EXPECT_EQ(error_of(*impatient, "insert into Warehouse(Id) values('W2')"), error::timed_out);
  EXPECT_EQ(impatient->Execute("select count(*) as n from Warehouse").value("n"), ado::Value(Long{0}));
  run("commit");
  EXPECT_EQ(error_of(*impatient, "insert into Warehouse(Id) values('W2')"), 0);
  EXPECT_EQ(count("select count(*) from Warehouse"), 2);
}

TEST_F(SqliteFiles, A_database_that_another_holds_for_itself_cannot_be_opened) {
  run("pragma locking_mode=exclusive");
  run("insert into Warehouse(Id) values('W1')");
  EXPECT_EQ(error_of_open(path(), {.busy_timeout = 5ms}), error::timed_out);
}

TEST_F(SqliteFiles, A_full_disk_is_an_error_and_changes_nothing) {
  run("insert into Warehouse(Id,WName) values('W1','x')");
  run("pragma max_page_count=" + std::to_string(count("pragma page_count") + 1));
  EXPECT_EQ(error_of(*books, "update Warehouse set WName='" + std::string(100'000, 'y') + "'"), error::provider_failed);
  EXPECT_EQ(text("select WName from Warehouse"), "x");
  run("pragma max_page_count=1000000");
  run("update Warehouse set WName='z'");
  EXPECT_EQ(text("select WName from Warehouse"), "z");
}

TEST_F(SqliteFiles, A_database_that_may_only_be_read_is_an_error_for_a_writer) {
  run("insert into Warehouse(Id) values('W1')");
  run("pragma query_only=1");
  EXPECT_EQ(error_of(*books, "insert into Warehouse(Id) values('W2')"), error::provider_failed);
  EXPECT_EQ(count("select count(*) from Warehouse"), 1);
}

// The superuser may write everything, so for a while the process is nobody.
class OrdinaryUser {
 public:
  OrdinaryUser() { EXPECT_EQ(superuser_ ? seteuid(65'534) : 0, 0); }
  ~OrdinaryUser() { EXPECT_EQ(superuser_ ? seteuid(0) : 0, 0); }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;

 private:
  const bool superuser_ = geteuid() == 0;
};

TEST_F(SqliteFiles, A_file_without_the_right_to_write_can_be_read) {
  run("insert into Warehouse(Id) values('W1')");
  run("pragma journal_mode=delete");
  books->Close();
  namespace fs = std::filesystem;
  fs::permissions(path(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  fs::permissions(fs::path(path()).parent_path(), fs::perms::all);
  const OrdinaryUser user;
  const auto reader = open(path());
  EXPECT_EQ(reader->Execute("select count(*) as n from Warehouse").value("n"), ado::Value(Long{1}));
  EXPECT_EQ(error_of(*reader, "insert into Warehouse(Id) values('W2')"), error::provider_failed);
}

TEST_F(SqliteFiles, A_file_that_is_damaged_under_the_connection_is_an_error) {
  for (int row = 0; row < 2'000; ++row) run("insert into Warehouse(Id) values('W" + std::to_string(row) + "')");
  books->Close();
  std::fstream file(path(), std::ios::in | std::ios::out | std::ios::binary);
  const std::string garbage(4'096, '\x7e');
  for (int page = 1; page < 20; ++page) {
    file.seekp(page * 4'096);
    file << garbage;
  }
  file.close();
  const auto damaged = open(path());
  EXPECT_EQ(error_of(*damaged, "select * from Warehouse"), error::provider_failed);
}

// A writer that tells over a pipe what was acknowledged to it, until it is killed in the middle of its work.
void write_until_killed(const std::string& path, int acknowledged) {
  const auto books = open(path);
  for (int row = 1;; ++row) {
    books->Execute("insert into Warehouse(Id,WName) values('W" + std::to_string(row) + "','" + std::string(500, 'x') +
                   "')");
    if (write(acknowledged, &row, sizeof row) != sizeof row) _exit(1);
  }
}

TEST_F(SqliteFiles, Nothing_that_was_acknowledged_is_lost_when_a_process_is_killed) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  const pid_t writer = fork();
  ASSERT_NE(writer, -1);
  if (writer == 0) {
    write_until_killed(path(), ends[1]);
    _exit(0);
  }
  close(ends[1]);
  int last = 0;
  for (int row = 0; last < 300 && read(ends[0], &row, sizeof row) == sizeof row;) last = row;
  kill(writer, SIGKILL);
  for (int row = 0; read(ends[0], &row, sizeof row) == sizeof row;) last = row;
  close(ends[0]);
  waitpid(writer, nullptr, 0);
  ASSERT_GE(last, 300);
  const auto after = open(path());
  EXPECT_EQ(after->Execute("pragma integrity_check").value(ado::Column{0}), ado::Value("ok"));
  const Long rows = after->Execute("select count(*) as n from Warehouse").value("n").as_long();
  EXPECT_GE(rows, last);
  // The one statement that was at work may have been carried out or not.
  EXPECT_LE(rows, last + 1);
  for (int row = 1; row <= last; ++row) {
    const std::string number = std::to_string(row);
    EXPECT_EQ(after->Execute("select Id from Warehouse where Id='w" + number + "'").record_count(), 1U) << number;
  }
}

TEST_F(SqliteFiles, Writers_of_several_processes_lose_no_payment) {
  run("insert into ZHXX(ID,YE) values('A1',0)");
  constexpr int writers = 4;
  constexpr int payments = 200;
  std::array<pid_t, writers> processes{};
  for (pid_t& process : processes) {
    process = fork();
    ASSERT_NE(process, -1);
    if (process == 0) {
      int failures = 0;
      try {
        const auto own = open(path(), {.synchronous = Synchronous::normal, .busy_timeout = 60'000ms});
        for (int time = 0; time < payments; ++time) own->Execute("update ZHXX set YE=YE + 0.1 where ID='A1'");
      } catch (const std::exception&) {
        failures = 1;
      }
      _exit(failures);
    }
  }
  for (const pid_t process : processes) {
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_EQ(status, 0);
  }
  EXPECT_EQ(text("select YE from ZHXX"), "80");
}

}  // namespace
}  // namespace brunvik::sqlite
