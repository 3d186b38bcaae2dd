// Lines of any size: read in time that grows with their length alone, and never told back whole.
#include <chrono>
#include <stdexcept>

#include "host/json.h"
#include "tests/host_conversation.h"

namespace brunvik::host {
namespace {

std::string reason(const std::string& text) {
  try {
    parse_object(text);
    return {};
  } catch (const std::runtime_error& failure) {
    return failure.what();
  }
}

TEST(HostJson, Members_stay_in_their_order) {
  EXPECT_EQ(one_line(parse_object(R"({"z":1,"a":[{"y":null,"b":-2.5}, "x", {}, []],"m":true})")),
            R"({"z":1,"a":[{"y":null,"b":-2.5},"x",{},[]],"m":true})");
}

TEST(HostJson, A_member_that_comes_twice_has_its_last_value_at_its_first_place) {
  EXPECT_EQ(one_line(parse_object(R"({"b":1,"a":2,"b":{"c":3,"c":[4]},"d":5,"b":6})")), R"({"b":6,"a":2,"d":5})");
  EXPECT_EQ(one_line(parse_object(R"({"b":{"c":3,"d":1,"c":[4]}})")), R"({"b":{"c":[4],"d":1}})");
}

TEST(HostJson, An_object_of_300000_members_is_read_in_a_moment) {
  std::string text = R"({"do":"proc","name":"EscapeLike","args":["a"])";
  for (int count = 0; count < 300'000; ++count)
    text += ",\"member" + std::to_string(count) + "\":" + std::to_string(count);
  text += '}';
  const auto start = std::chrono::steady_clock::now();
  const Json parsed = parse_object(text);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
  EXPECT_EQ(parsed.size(), 300'003U);
  EXPECT_EQ(parsed.back(), 299'999);
}

TEST(HostJson, A_long_text_that_is_no_JSON_is_told_by_its_beginning) {
  const std::string cut = reason(R"({"do":")" + std::string(50'000'000, 'x'));
  EXPECT_TRUE(cut.starts_with("it is no JSON: column ")) << cut.substr(0, 300);
  EXPECT_TRUE(cut.ends_with("xxx...")) << cut.substr(0, 300);
  EXPECT_LT(cut.size(), 250U);
  EXPECT_LT(reason("{\"n\":" + std::string(1'000'000, '9') + "e400}").size(), 250U);
}

TEST(HostJson, A_reason_is_cut_between_two_characters) {
  for (const char* start : {"{\"", "{\"x", "{\"xy"}) {
    std::string text = start;
    for (int count = 0; count < 1'000; ++count) text += "仓";
    const std::string cut = reason(text);
    ASSERT_TRUE(cut.ends_with("仓...")) << cut;
  }
}

TEST(HostJson, Words_of_the_text_are_not_taken_for_words_of_the_reason) {
  EXPECT_NE(reason(R"({"a":"] parse error: lost)").find("\"] parse error: lost"), std::string::npos);
}

}  // namespace
}  // namespace brunvik::host
