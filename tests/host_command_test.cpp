// The built command: its exit status, its streams, the database that it opens.
#include <nlohmann/json.hpp>

#include "drivers/sqlite/connection.h"
#include "host/json.h"
#include "tests/host_process.h"

namespace brunvik::host {
namespace {

const std::string count_of_goods = "{\"do\":\"sql\",\"text\":\"select count(*) as n from goods\"}\n";
const std::string one_goods = "{\"do\":\"sql\",\"text\":\"insert into goods(id) values('G1')\"}\n";

TEST(HostCommand, All_lines_carried_out_is_status_0_whatever_the_verbs_gave) {
  const Ended ended = brunvik({"run"},
                              "{\"do\":\"new\",\"as\":\"b\",\"class\":\"clsPayBill\"}\n"
                              "{\"do\":\"call\",\"on\":\"b\",\"verb\":\"Save\"}\n");
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.out, "{\"line\":1,\"ok\":true}\n{\"line\":2,\"result\":-1,\"args\":[]}\n");
}

TEST(HostCommand, A_refused_line_is_answered_in_its_place_and_is_status_3) {
  const Ended ended = brunvik({"run"}, "{\"do\":\"get\",\"on\":\"x\"}\n" + count_of_goods);
  EXPECT_EQ(ended.status, 3);
  EXPECT_EQ(ended.out,
            "{\"line\":1,\"error\":{\"number\":424,\"description\":\"要求对象: x\"}}\n"
            "{\"line\":2,\"columns\":[\"n\"],\"rows\":[[0]]}\n");
}

TEST(HostCommand, Piped_output_has_no_progress) { EXPECT_EQ(brunvik({"run"}, count_of_goods).error, ""); }

TEST(HostCommand, No_lines_are_carried_out_too) {
  const Ended ended = brunvik({"run"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.out, "");
}

TEST(HostCommand, A_last_line_needs_no_end) {
  EXPECT_EQ(brunvik({"run"}, R"({"do":"proc","name":"EscapeLike","args":["a"]})").out,
            "{\"line\":1,\"result\":\"a\",\"args\":[\"a\"]}\n");
}

TEST(HostCommand, An_unreadable_line_is_status_2_and_the_lines_before_it_stay_done) {
  const Folder folder;
  const std::string books = "sqlite:" + folder.file("books.db");
  const Ended ended = brunvik({"run", "--db", books, "--create"}, one_goods + "nonsense\n" + one_goods);
  EXPECT_EQ(ended.status, 2);
  EXPECT_EQ(ended.out, "{\"line\":1,\"columns\":[],\"rows\":[]}\n");
  EXPECT_TRUE(ended.error.starts_with("brunvik: line 2: it is no JSON: ")) << ended.error;
  EXPECT_EQ(brunvik({"run", "--db", books}, count_of_goods).out, "{\"line\":1,\"columns\":[\"n\"],\"rows\":[[1]]}\n");
}

TEST(HostCommand, Lines_that_end_within_a_transaction_leave_nothing_of_it_and_that_is_said) {
  const Folder folder;
  const std::string books = "sqlite:" + folder.file("books.db");
  const std::string begin = "{\"do\":\"transaction\",\"is\":\"begin\"}\n";
  const std::string said = "brunvik: the lines ended within a transaction, which was rolled back\n";
  const Ended ended = brunvik({"run", "--db", books, "--create"}, begin + one_goods);
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.error, said);
  const Ended cut_off = brunvik({"run", "--db", books}, begin + one_goods + "nonsense\n");
  EXPECT_EQ(cut_off.status, 2);
  EXPECT_TRUE(cut_off.error.starts_with(said + "brunvik: line 3: ")) << cut_off.error;
  EXPECT_EQ(brunvik({"run", "--db", books}, count_of_goods).out, "{\"line\":1,\"columns\":[\"n\"],\"rows\":[[0]]}\n");
}

TEST(HostCommand, A_missing_database_is_status_1_and_is_not_made) {
  const Folder folder;
  const std::string path = folder.file("books.db");
  const Ended ended = brunvik({"run", "--db", "sqlite:" + path}, count_of_goods);
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.out, "");
  EXPECT_EQ(ended.error,
            "brunvik: -2147467259: there is no database '" + path + "' (--create makes one with its tables)\n");
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(HostCommand, A_file_that_is_no_database_is_status_1_and_stays_as_it_is) {
  const Folder folder;
  const std::string path = folder.file("letter.txt");
  const std::string letter(5'000, 'x');
  std::ofstream(path) << letter;
  for (const auto& arguments : {std::vector<std::string>{"run", "--db", "sqlite:" + path},
                                std::vector<std::string>{"run", "--db", "sqlite:" + path, "--create"},
                                std::vector<std::string>{"demo", "--db", "sqlite:" + path}}) {
    const Ended ended = brunvik(arguments, count_of_goods);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.error,
              "brunvik: -2147467259: the database '" + path + "' can't be opened: file is not a database\n");
  }
  EXPECT_EQ(content_of(path), letter);
}

TEST(HostCommand, A_database_in_a_folder_that_is_not_there_is_status_1) {
  const Folder folder;
  const Ended ended = brunvik({"run", "--db", "sqlite:" + folder.file("no/books.db"), "--create"});
  EXPECT_EQ(ended.status, 1);
  EXPECT_NE(ended.error.find("can't be opened"), std::string::npos) << ended.error;
}

TEST(HostCommand, Creating_an_existing_database_leaves_it_alone) {
  const Folder folder;
  const std::string books = "sqlite:" + folder.file("books.db");
  brunvik({"run", "--db", books, "--create"}, one_goods);
  EXPECT_EQ(brunvik({"run", "--db", books, "--create"}, count_of_goods).out,
            "{\"line\":1,\"columns\":[\"n\"],\"rows\":[[1]]}\n");
}

TEST(HostCommand, A_database_of_another_program_is_refused_and_stays_as_it_is) {
  const Folder folder;
  const std::string path = folder.file("other.db");
  const auto expect_refused = [&path](const std::vector<std::string>& arguments) {
    const std::string before = content_of(path);
    const Ended ended = brunvik(arguments, count_of_goods);
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.error, "brunvik: -2147467259: the database '" + path +
                               "' can't be opened: There is none of the books' tables in '" + path +
                               "', which stays as it is.\n");
    EXPECT_EQ(content_of(path), before);
  };
  {
    const auto other = sqlite::open(path, {.create = true});
    other->Execute("create table mine(id text)");
    other->Execute("pragma journal_mode=delete");
  }
  for (const auto& arguments : {std::vector<std::string>{"run", "--db", "sqlite:" + path},
                                std::vector<std::string>{"run", "--db", "sqlite:" + path, "--create"},
                                std::vector<std::string>{"schema", "--db", "sqlite:" + path, "--apply"},
                                std::vector<std::string>{"demo", "--db", "sqlite:" + path}}) {
    expect_refused(arguments);
  }
}

TEST(HostCommand, An_empty_file_gets_the_tables) {
  const Folder folder;
  std::ofstream(folder.file("books.db")).close();
  EXPECT_EQ(brunvik({"run", "--db", "sqlite:" + folder.file("books.db"), "--create"}, count_of_goods).out,
            "{\"line\":1,\"columns\":[\"n\"],\"rows\":[[0]]}\n");
}

TEST(HostCommand, Bad_usage_is_status_2_and_says_why) {
  const std::vector<std::vector<std::string>> usages{{},
                                                     {"fly"},
                                                     {"run", "--fly"},
                                                     {"run", "--dialect", "oracle"},
                                                     {"run", "--db", "books.db"},
                                                     {"run", "--db", "sqlite:"},
                                                     {"run", "--db", "odbc:"},
                                                     {"run", "--now", "soon"},
                                                     {"run", "/no/such/file"},
                                                     {"demo", "--now", "soon"},
                                                     {"demo", "--create"},
                                                     {"demo", "no-story"},
                                                     {"describe", "clsNone"},
                                                     {"describe", "clsPayBill", "--procedures"},
                                                     {"schema", "--engine", "paper"}};
  for (const auto& usage : usages) {
    const Ended ended = brunvik(usage);
    EXPECT_EQ(ended.status, 2) << testing::PrintToString(usage);
    EXPECT_EQ(ended.out, "") << testing::PrintToString(usage);
    EXPECT_NE(ended.error, "") << testing::PrintToString(usage);
  }
}

TEST(HostCommand, Version_and_help_are_status_0) {
  EXPECT_EQ(brunvik({"--version"}).status, 0);
  EXPECT_TRUE(brunvik({"--version"}).out.starts_with("brunvik "));
  EXPECT_EQ(brunvik({"--help"}).status, 0);
  EXPECT_NE(brunvik({"--help"}).out.find("describe"), std::string::npos);
}

TEST(HostCommand, Files_are_read_one_after_the_other_and_their_lines_are_counted_on) {
  const Folder folder;
  std::ofstream(folder.file("a")) << one_goods;
  std::ofstream(folder.file("b")) << count_of_goods;
  EXPECT_EQ(brunvik({"run", folder.file("a"), folder.file("b")}, "nonsense\n").out,
            "{\"line\":1,\"columns\":[],\"rows\":[]}\n{\"line\":2,\"columns\":[\"n\"],\"rows\":[[1]]}\n");
}

TEST(HostCommand, The_options_of_a_run_reach_the_session) {
  const std::string lines =
      "{\"do\":\"proc\",\"name\":\"GetSqlVal\",\"args\":[{\"date\":\"2024-03-05 10:00:00\"}]}\n"
      "{\"do\":\"new\",\"as\":\"b\",\"class\":\"clsOthersInBill\"}\n"
      "{\"do\":\"call\",\"on\":\"b\",\"verb\":\"GetNewId\",\"args\":[\"\"]}\n";
  EXPECT_EQ(brunvik({"run", "--dialect", "access", "--now", "2031-12-09 23:59:59", "--trace"}, lines).out,
            "{\"line\":1,\"result\":\"#2024-03-05 10:00:00#\",\"args\":[{\"date\":\"2024-03-05 10:00:00\"},false,"
            "\"[Drop]\",\"[Drop]\"],\"trace\":[]}\n"
            "{\"line\":2,\"ok\":true}\n"
            "{\"line\":3,\"result\":0,\"args\":[\"QTR31120900001\"],\"trace\":[[\"session\","
            "\"select max(ID)  from StockBill where ID like 'QTR311209%' \"]]}\n");
}

TEST(HostCommand, The_printed_schema_lays_the_tables_that_create_lays) {
  const std::string schema = brunvik({"schema"}).out;
  EXPECT_EQ(schema, brunvik({"schema", "--engine", "sqlite"}).out);
  std::string lines;
  constexpr std::string_view end = ";\n";
  for (std::size_t place = 0, next; (next = schema.find(end, place)) != std::string::npos; place = next + end.size()) {
    lines += Json{{"do", "sql"}, {"text", schema.substr(place, next - place)}}.dump() + '\n';
  }
  const std::string entries = "{\"do\":\"sql\",\"text\":\"select name,sql from sqlite_master order by name\"}\n";
  const Folder folder;
  const std::string printed = "sqlite:" + folder.file("printed.db");
  const std::string created = "sqlite:" + folder.file("created.db");
  std::ofstream(folder.file("printed.db")).close();
  EXPECT_EQ(brunvik({"run", "--db", printed}, lines).out.find("error"), std::string::npos);
  const std::string laid = brunvik({"run", "--db", printed}, entries).out;
  EXPECT_NE(laid.find("StockBillItems"), std::string::npos);
  EXPECT_EQ(laid, brunvik({"run", "--db", created, "--create"}, entries).out);
}

TEST(HostCommand, An_answer_comes_before_the_next_line_is_said) {
  Conversation command;
  EXPECT_EQ(command.answer_to(one_goods), "{\"line\":1,\"columns\":[],\"rows\":[]}\n");
  EXPECT_EQ(command.answer_to(count_of_goods), "{\"line\":2,\"columns\":[\"n\"],\"rows\":[[1]]}\n");
  EXPECT_EQ(command.answer_to("[]\n"), "");
  EXPECT_EQ(command.end(), 2);
}

TEST(HostCommand, The_memory_of_a_large_line_is_given_back) {
  // For the command under the address sanitizer, which keeps what is freed unless it is told otherwise.
  setenv("ASAN_OPTIONS", "quarantine_size_mb=0", 0);
  Conversation command;
  const std::string new_bill = "{\"do\":\"new\",\"as\":\"b\",\"class\":\"clsOthersInBill\"}\n";
  EXPECT_EQ(command.answer_to(new_bill), "{\"line\":1,\"ok\":true}\n");
  const double before = command.resident_megabytes();
  const std::string remarks(5'000'000, 'x');
  for (const char* line : {"2", "3"}) {
    EXPECT_EQ(command.answer_to(R"({"do":"put","on":"b","values":{"Remarks":")" + remarks + "\"}}\n"),
              std::string("{\"line\":") + line + ",\"ok\":true}\n");
  }
  EXPECT_EQ(command.answer_to(new_bill), "{\"line\":4,\"ok\":true}\n");
  EXPECT_LT(command.resident_megabytes(), before + 4);
  EXPECT_EQ(command.end(), 0);
}

TEST(HostCommand, An_answer_that_can_t_be_written_ends_the_run) {
  const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
  ASSERT_GE(full, 0);
  const Folder folder;
  std::ofstream(folder.file("lines")) << one_goods << one_goods;
  const std::string books = "sqlite:" + folder.file("books.db");
  EXPECT_EQ(Process({"run", "--db", books, "--create", folder.file("lines")}, full, full, full).wait(), 1);
  close(full);
  EXPECT_EQ(brunvik({"run", "--db", books}, count_of_goods).out, "{\"line\":1,\"columns\":[\"n\"],\"rows\":[[1]]}\n");
}

TEST(HostCommand, A_terminal_is_shown_the_progress) {
  const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_GE(terminal, 0);
  ASSERT_EQ(grantpt(terminal), 0);
  ASSERT_EQ(unlockpt(terminal), 0);
  const int error = open(ptsname(terminal), O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_GE(error, 0);
  const Folder folder;
  std::ofstream(folder.file("lines")) << one_goods << one_goods;
  const int out = open(folder.file("out").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  EXPECT_EQ(Process({"run", folder.file("lines")}, out, out, error).wait(), 0);
  // With its other side closed, the terminal ends when all is read that was shown.
  close(error);
  std::string shown;
  for (char c = 0; read(terminal, &c, 1) == 1;) shown += c;
  EXPECT_NE(shown.find("2 lines, 0 verbs/s"), std::string::npos) << shown;
  EXPECT_EQ(content_of(folder.file("out")).find("verbs/s"), std::string::npos);
  for (const int descriptor : {terminal, out}) close(descriptor);
}

}  // namespace
}  // namespace brunvik::host
