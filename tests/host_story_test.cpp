// The stories of the demo: how they are written, found and played.
#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "drivers/sqlite/connection.h"
#include "host/database.h"
#include "host/demo.h"
#include "tests/host_process.h"

namespace brunvik::host {
namespace {

std::string played(const std::string& text) {
  Interpreter interpreter(open_fresh_database(std::string(in_memory)).connection, {});
  std::ostringstream out;
  play(read_story("mine", "我的故事\n" + text), interpreter, out);
  return out.str();
}

std::string refusal(const std::function<void()>& work) {
  try {
    work();
  } catch (const UnreadableStory& failure) {
    return failure.what();
  }
  return "none";
}

const std::string goods_table =
    "@table 商品: 编号 | 名称 >单价\n"
    "select id,Gname,\n"
    "  Price from goods order by id\n\n";

// A verb that changes nothing, so that what a story's own statements changed could show.
const std::string some_verb =
    "{\"do\":\"new\",\"as\":\"调整单\",\"class\":\"clsTZBill\"}\n"
    "{\"do\":\"call\",\"on\":\"调整单\",\"verb\":\"GetNewId\",\"args\":[\"\"]}\n";

TEST(HostStory, Every_story_plays_to_its_end_in_both_dialects_and_shows_the_same) {
  for (const Story& story : stories()) {
    const auto shown = [&](const std::string& dialect) {
      return brunvik(
          {"demo", story.name, "--db", "sqlite::memory:", "--dialect", dialect, "--now", "2024-03-05 10:00:00"});
    };
    const Ended ended = shown("sqlserver");
    EXPECT_EQ(ended.status, 0) << story.name << ": " << ended.error;
    EXPECT_EQ(ended.error, "") << story.name;
    EXPECT_TRUE(ended.out.starts_with(story.title + "\n")) << story.name;
    EXPECT_EQ(shown("access").out, ended.out) << story.name;
  }
}

TEST(HostStory, The_list_names_each_story_with_what_it_tells_the_default_first) {
  const Ended ended = brunvik({"demo", "--list"});
  EXPECT_EQ(ended.status, 0) << ended.error;
  std::istringstream lines(ended.out);
  for (const Story& story : stories()) {
    std::string line;
    std::getline(lines, line);
    EXPECT_TRUE(line.starts_with(story.name + " ")) << line;
    EXPECT_TRUE(line.ends_with(" " + story.title)) << line;
  }
  EXPECT_EQ(stories().front().name, "counter-sale");
  EXPECT_EQ(lines.peek(), std::istringstream::traits_type::eof());
}

TEST(HostStory, The_default_story_can_be_named) {
  const std::vector<std::string> usage{"demo", "--db", "sqlite::memory:", "--now", "2024-03-05 10:00:00"};
  std::vector<std::string> named = usage;
  named.emplace_back("counter-sale");
  EXPECT_EQ(brunvik(named).out, brunvik(usage).out);
}

TEST(HostStory, A_story_that_isn_t_there_is_bad_usage_and_the_nearest_one_is_named) {
  const Ended near = brunvik({"demo", "counter-sail"});
  EXPECT_EQ(near.status, 2);
  EXPECT_EQ(near.out, "");
  EXPECT_EQ(near.error,
            "brunvik: there is no story 'counter-sail'; did you mean counter-sale? brunvik demo --list names all\n");
  const Ended far = brunvik({"demo", "xyz"});
  EXPECT_EQ(far.status, 2);
  EXPECT_EQ(far.error, "brunvik: there is no story 'xyz'; brunvik demo --list names all\n");
}

TEST(HostStory, A_verb_shows_the_rows_that_it_added_and_changed_and_no_others) {
  const std::string shown = brunvik({"demo", "--db", "sqlite::memory:", "--now", "2024-03-05 10:00:00"}).out;
  const auto second = shown.find("== 进货入库 JHR24030500002  Save: 0\n");
  const auto end = shown.find("== 进货入库 JHR24030500002  Audit: 0\n");
  ASSERT_NE(second, std::string::npos);
  EXPECT_EQ(shown.substr(second, end - second),
            "== 进货入库 JHR24030500002  Save: 0\n"
            "\n"
            "单据\n"
            "单号            单据      往来单位        状态    应结  已付  结清  成本\n"
            "--------------  --------  --------------  ------  ----  ----  ----  ----\n"
            "JHR24030500002  进货入库  东方办公设备厂  未审核  3300     0  否       0\n"
            "\n");
  EXPECT_EQ(shown.substr(end, shown.find("= 销货") - end),
            "== 进货入库 JHR24030500002  Audit: 0\n"
            "\n"
            "库存\n"
            "仓库    商品        单位  入库  出库  现存\n"
            "------  ----------  ----  ----  ----  ----\n"
            "主仓库  激光打印机  台      15     0    15\n"
            "\n"
            "平均成本\n"
            "商品        单位  平均成本\n"
            "----------  ----  --------\n"
            "激光打印机  台         620\n"
            "\n"
            "单据\n"
            "单号            单据      往来单位        状态    应结  已付  结清  成本\n"
            "--------------  --------  --------------  ------  ----  ----  ----  ----\n"
            "JHR24030500002  进货入库  东方办公设备厂  已审核  3300     0  否    3100\n"
            "\n");
}

TEST(HostStory, A_row_that_a_verb_deleted_is_shown_as_gone) {
  const std::string shown = played(
      "@table 单据: 单号 | 摘要\n"
      "select Id,Summary from StockBill\n\n" +
      some_verb +
      "{\"do\":\"put\",\"on\":\"调整单\",\"values\":{\"ID\":\"$调整单\",\"Summary\":\"盘点\"}}\n"
      "{\"do\":\"call\",\"on\":\"调整单\",\"verb\":\"Save\"}\n"
      "{\"do\":\"call\",\"on\":\"调整单\",\"verb\":\"Delete\"}\n");
  const std::string gone = shown.substr(shown.find("  Delete: 0\n"));
  EXPECT_NE(gone.find("  已删除\n"), std::string::npos) << gone;
  EXPECT_EQ(gone.find("盘点"), std::string::npos) << gone;
}

TEST(HostStory, What_the_host_writes_itself_is_not_shown_as_a_verb_s_doing) {
  const std::string shown = played(
      goods_table + "{\"do\":\"sql\",\"text\":\"insert into goods(id,Gname) values('G1','螺丝')\"}\n" + some_verb);
  EXPECT_EQ(shown.find("螺丝"), std::string::npos) << shown;
}

TEST(HostStory, A_sentence_for_those_who_watch_stands_between_the_verbs_and_a_remark_doesn_t) {
  EXPECT_EQ(played("= 开张\n# 只给编写者看\n"), "我的故事\n\n= 开张\n");
}

TEST(HostStory, What_a_story_says_wrongly_is_told_with_its_place) {
  const auto reading = [](const std::string& text) {
    return refusal([&] { read_story("mine", "我的故事\n" + text); });
  };
  EXPECT_EQ(reading("buy goods\n"), "mine.story:2: a line begins with {, =, #, @table or @include");
  EXPECT_EQ(reading("\n@include nothing\n"), "mine.story:3: there is no nothing.part");
  EXPECT_EQ(reading("@table 商品 编号\n"), "mine.story:2: a table is @table TITLE: HEADINGS");
  EXPECT_EQ(reading("@table 商品: 编号 名称\n"),
            "mine.story:2: a | stands behind the headings that tell one row from another");
  EXPECT_EQ(refusal([] { read_story("mine", ""); }), "mine: the first line says what the story tells");

  const auto playing = [](const std::string& text) { return refusal([&] { played(text); }); };
  EXPECT_EQ(playing("{\"do\":\"sql\",\"text\":\"$单据\"}\n"), "mine.story:2: nothing has proposed the number $单据");
  EXPECT_TRUE(playing("\n{\"do\":\"new\",\"as\":\"a\",\"class\":\"clsNone\"}\n").starts_with("mine.story:3: "));
  EXPECT_EQ(playing("@table 商品: 编号 |\nselect id,Gname from goods\n\n" + some_verb),
            "mine.story:6: the table 商品 has another count of headings than of columns");
}

TEST(HostStory, A_verb_whose_result_isn_t_0_ends_the_story) {
  const std::string said = refusal([] {
    played(
        "{\"do\":\"new\",\"as\":\"调整单\",\"class\":\"clsTZBill\"}\n"
        "{\"do\":\"call\",\"on\":\"调整单\",\"verb\":\"Save\"}\n");
  });
  EXPECT_TRUE(said.starts_with("mine.story:3: 调整单 Save failed: ")) << said;
}

}  // namespace
}  // namespace brunvik::host
