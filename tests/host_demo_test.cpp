// The demo: a company's first day.
#include <gtest/gtest.h>

#include <cstdlib>

#include "brunvik/ado/clock.h"
#include "tests/host_process.h"

namespace brunvik::host {
namespace {

std::string last_line(const std::string& text) {
  const auto end = text.find_last_not_of('\n');
  const auto start = text.rfind('\n', end);
  return text.substr(start + 1, end - start);
}

Ended demo(const std::string& database) { return brunvik({"demo", "--db", database, "--now", "2024-03-05 10:00:00"}); }

TEST(HostDemo, It_shows_stock_cost_and_what_is_settled_below_chinese_headings) {
  const Ended ended = demo("sqlite::memory:");
  EXPECT_EQ(ended.status, 0) << ended.error;
  EXPECT_EQ(ended.error, "");
  for (const char* part :
       {"仓库    商品        单位  入库  出库  现存\n", "主仓库  激光打印机  台      15     4    11\n",
        "主仓库  硒鼓        支      40     8    32\n", "激光打印机  台         620\n",
        "== 进货入库 JHR24030500001  Audit: 0\n", "== 销售出库 XSC24030500001  Audit: 0\n",
        "JHR24030500001  进货入库  东方办公设备厂  已审核  8000  3000  否    8000\n",
        "XSC24030500001  销售出库  红星小学        已审核  4120  4120  是    2880\n",
        "FKD24030500001  付款单  东方办公设备厂  已审核  3000  JHR24030500001\n"}) {
    EXPECT_NE(ended.out.find(part), std::string::npos) << part;
  }
}

TEST(HostDemo, It_ends_by_naming_the_file_and_a_line_to_try_next_which_works) {
  const Folder folder;
  setenv("TMPDIR", folder.path().c_str(), 1);
  const Ended ended = brunvik({"demo"});
  unsetenv("TMPDIR");
  EXPECT_EQ(ended.status, 0) << ended.error;
  const std::string next = last_line(ended.out);
  EXPECT_NE(next.find("brunvik run --db sqlite:" + folder.path().string()), std::string::npos) << next;
  const std::string line = next.substr(next.find(": ") + 2) + " > " + folder.file("answer");
  EXPECT_EQ(std::system(line.c_str()), 0);
  EXPECT_EQ(content_of(folder.file("answer")),
            "{\"line\":1,\"columns\":[\"GId\",\"CurrentQty\"],\"rows\":[[\"G1\",11],[\"G2\",32]]}\n");
}

TEST(HostDemo, The_line_to_try_next_works_for_a_path_that_a_shell_would_take_apart) {
  const Folder folder;
  const Ended ended = demo("sqlite:" + folder.file("the boss's books.db"));
  const std::string next = last_line(ended.out);
  EXPECT_EQ(std::system((next.substr(next.find(": ") + 2) + " > /dev/null").c_str()), 0) << next;
}

TEST(HostDemo, A_database_in_use_is_refused_and_stays_as_it_is) {
  const Folder folder;
  const std::string books = "sqlite:" + folder.file("books.db");
  brunvik({"run", "--db", books, "--create"}, "{\"do\":\"sql\",\"text\":\"insert into goods(id) values('mine')\"}\n");
  const Ended ended = demo(books);
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.out, "");
  EXPECT_EQ(ended.error,
            "brunvik: -2147467259: '" + folder.file("books.db") + "' is in use already, and stays as it is\n");
  EXPECT_EQ(brunvik({"run", "--db", books}, "{\"do\":\"sql\",\"text\":\"select id from goods\"}\n").out,
            "{\"line\":1,\"columns\":[\"id\"],\"rows\":[[\"mine\"]]}\n");
}

TEST(HostDemo, Both_dialects_show_the_same_and_a_trace_shows_the_statements) {
  const auto shown = [](const std::string& dialect) {
    return brunvik({"demo", "--db", "sqlite::memory:", "--dialect", dialect, "--now", "2024-03-05 10:00:00"}).out;
  };
  EXPECT_EQ(shown("access"), shown("sqlserver"));
  EXPECT_NE(brunvik({"demo", "--db", "sqlite::memory:", "--trace"}).out.find("\n   session: select max(ID)  from"),
            std::string::npos);
}

}  // namespace
}  // namespace brunvik::host
