// Any bytes stand in one order, so that an index finds each key again: also those of a text in another encoding.
#include <algorithm>
#include <random>
#include <set>

#include "drivers/sqlite/collation.h"
#include "tests/sqlite_books.h"

namespace brunvik::sqlite {
namespace {

int sign(int number) { return (number > 0) - (number < 0); }

// Two bytes for each character, as the Chinese encoding before UTF-8 has them: both from 0x81 or 0x40 up.
std::string chinese_name(std::mt19937& random, std::size_t characters) {
  std::string name;
  for (std::size_t count = 0; count < characters; ++count) {
    name += static_cast<char>(0xB0 + random() % 0x48);
    name += static_cast<char>(0xA1 + random() % 0x5E);
  }
  return name;
}

// Pieces that begin, go on and break off where a character would.
std::string random_bytes(std::mt19937& random) {
  static const std::string_view pieces[] = {"a",    "A",    "b",    " ",    "é",    "É",    "中",   "仿",   "𠀀",
                                            "ſ",    "s",    "K",    "µ",    "\xE4", "\xB8", "\xAD", "\xC5", "\xBF",
                                            "\x80", "\xC3", "\xFF", "\xF0", "\xC2", "\xB5", "\xED", "\xA0", "\xEF"};
  std::string text;
  for (auto count = random() % 6; count != 0; --count) text += pieces[random() % std::size(pieces)];
  return text;
}

TEST(SqliteCollation, Any_bytes_stand_in_one_order) {
  std::mt19937 random(5);
  std::vector<std::string> texts;
  for (int count = 0; count < 250; ++count) texts.push_back(random_bytes(random));
  for (int count = 0; count < 50; ++count) texts.push_back(chinese_name(random, 1 + random() % 3));
  std::size_t faults = 0;
  for (const std::string& left : texts) {
    EXPECT_EQ(compare_texts(left, left), 0);
    for (const std::string& middle : texts) {
      const int first = sign(compare_texts(left, middle));
      if (first != -sign(compare_texts(middle, left))) ++faults;
      for (const std::string& right : texts) {
        const int second = sign(compare_texts(middle, right));
        // Neither of two steps leads down, so both together lead up as soon as one of them does.
        if (first <= 0 && second <= 0 && sign(compare_texts(left, right)) != std::min(first, second)) ++faults;
      }
    }
  }
  EXPECT_EQ(faults, 0U);
}

TEST(SqliteCollation, Bytes_that_break_off_a_character_stand_before_it) {
  EXPECT_LT(compare_texts("\xE4\xB8", "\xE4\xB8\xAD"), 0);
  EXPECT_LT(compare_texts("\xE4\xB8\x41", "\xE4\xB8\xAD"), 0);
  EXPECT_GT(compare_texts("\xC5", "\xC5\xBF"), 0);  // the character is a long s, and stands among the letters
  EXPECT_EQ(compare_texts("\xE4  ", "\xE4"), 0);
  EXPECT_EQ(compare_texts("A\xE4", "a\xE4"), 0);
  EXPECT_NE(compare_texts("\xE4", "\xC4"), 0);
}

class SqliteForeignKeys : public SqliteBooks {
 protected:
  std::size_t missed(const std::set<std::string>& keys) {
    std::size_t count = 0;
    for (const std::string& key : keys) {
      if (run("select Id from Warehouse where Id='" + key + "'").record_count() != 1) ++count;
    }
    return count;
  }

  void keep(const std::set<std::string>& keys) {
    std::vector<std::string> order(keys.begin(), keys.end());
    std::shuffle(order.begin(), order.end(), std::mt19937(6));
    run("begin");
    for (const std::string& key : order) run("insert into Warehouse(Id,WName) values('" + key + "','x')");
    run("commit");
  }
};

TEST_F(SqliteForeignKeys, Five_thousand_chinese_names_in_another_encoding_are_found_again) {
  std::mt19937 random(7);
  std::set<std::string> keys;
  while (keys.size() < 5'000) keys.insert(chinese_name(random, 2 + random() % 2));
  keep(keys);
  EXPECT_EQ(missed(keys), 0U);
  EXPECT_EQ(text("pragma integrity_check"), "ok");
}

TEST_F(SqliteForeignKeys, A_search_by_the_beginning_finds_what_begins_so_in_every_script) {
  keep({"中A", "中", "丮A", "仿A", "仿", "伀", "主", "\xE4\xBB", "\xE4\xBB\xC1", "\xFF"});
  const auto found = [this](const std::string& pattern) {
    return count("select count(*) from Warehouse where Id like '" + pattern + "%'");
  };
  EXPECT_EQ(found("中"), 2);
  EXPECT_EQ(found("仿"), 2);
  EXPECT_EQ(found("主"), 1);
  EXPECT_EQ(found("仿A"), 1);
}

}  // namespace
}  // namespace brunvik::sqlite
