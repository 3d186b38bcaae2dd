// The page on the protocol says what the command does: each of its blocks is run, and compared word by word.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "host/json.h"
#include "tests/host_process.h"

namespace brunvik::host {
namespace {

struct Block {
  // Where the block begins on the page.
  std::size_t line = 0;
  std::vector<std::string> arguments;
  std::string said;
  std::string answered;
  std::string told;
  int status = 0;
};

// The words of a command, of which those in double quotes are one.
std::vector<std::string> words_of(const std::string& command) {
  std::vector<std::string> words{""};
  bool quoted = false;
  for (const char c : command) {
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ' ' && !quoted) {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  return words;
}

// A line of a block, by the sign that it begins with.
void take(Block& block, const std::string& line) {
  const std::string text = line.size() > 2 ? line.substr(2) : "";
  if (line.starts_with("$ brunvik ")) {
    block.arguments = words_of(text);
    block.arguments.erase(block.arguments.begin());
  } else if (line.starts_with("> ")) {
    block.said += text + '\n';
  } else if (line.starts_with("< ")) {
    block.answered += text + '\n';
  } else if (line.starts_with("! ")) {
    block.told += text + '\n';
  } else if (line.starts_with("exit ")) {
    block.status = std::stoi(line.substr(5));
  } else {
    ADD_FAILURE() << "line " << block.line << ": '" << line << "' is no line of a block";
  }
}

std::vector<Block> blocks_of_the_page() {
  std::vector<Block> blocks;
  std::istringstream page(content_of(BRUNVIK_PROTOCOL));
  bool inside = false;
  std::size_t number = 0;
  for (std::string line; std::getline(page, line);) {
    ++number;
    if (line.starts_with("```")) {
      inside = !inside;
      if (inside) blocks.push_back({number, {}, {}, {}, {}, 0});
    } else if (inside) {
      take(blocks.back(), line);
    }
  }
  return blocks;
}

TEST(HostProtocol, Every_block_of_the_page_runs_as_it_says) {
  const std::vector<Block> blocks = blocks_of_the_page();
  EXPECT_GE(blocks.size(), 10U);
  for (const Block& block : blocks) {
    ASSERT_FALSE(block.arguments.empty()) << "line " << block.line;
    const Ended ended = brunvik(block.arguments, block.said);
    EXPECT_EQ(ended.out, block.answered) << "line " << block.line;
    EXPECT_EQ(ended.error, block.told) << "line " << block.line;
    EXPECT_EQ(ended.status, block.status) << "line " << block.line;
  }
}

TEST(HostProtocol, Every_word_of_do_has_an_example_on_the_page) {
  std::string said;
  for (const Block& block : blocks_of_the_page()) said += block.said;
  const Json refusal = Json::parse(brunvik({"run"}, "{\"do\":\"\"}\n").out);
  const std::string description = refusal.at("error").at("description").get<std::string>();
  constexpr std::string_view before = "there is ";
  const auto start = description.find(before);
  ASSERT_NE(start, std::string::npos) << description;
  std::istringstream words(description.substr(start + before.size()));
  std::size_t count = 0;
  for (std::string word; std::getline(words >> std::ws, word, ',');) {
    EXPECT_NE(said.find("{\"do\":\"" + word + "\""), std::string::npos) << word;
    ++count;
  }
  EXPECT_GE(count, 13U);
}

}  // namespace
}  // namespace brunvik::host
