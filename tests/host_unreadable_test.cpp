// Lines that can't be read, and lines that mean harm.
#include "tests/host_conversation.h"

namespace brunvik::host {
namespace {

class HostUnreadable : public HostTest {
 protected:
  // Why a line can't be read; empty where it can.
  std::string reason(const std::string& line) {
    try {
      interpreter.answer(line);
      return {};
    } catch (const UnreadableLine& failure) {
      return failure.what();
    }
  }
};

TEST_F(HostUnreadable, The_line_and_the_reason_are_told) {
  EXPECT_EQ(reason(R"({"do":"new","as":"b","class":"clsPayBill"})"), "");
  EXPECT_EQ(reason("[1]"), "line 2: it is no JSON object");
  EXPECT_TRUE(reason(R"({"do":"get")").starts_with("line 3: it is no JSON: column 12:"));
  EXPECT_TRUE(reason("").starts_with("line 4: it is no JSON:"));
  EXPECT_TRUE(reason(R"({"do":"get"} x)").starts_with("line 5: it is no JSON:"));
}

TEST_F(HostUnreadable, Bytes_that_are_no_text_make_a_line_unreadable) {
  EXPECT_NE(reason("{\"do\":\"get\",\"on\":\"\xFF\"}").find("UTF-8"), std::string::npos);
  EXPECT_NE(reason("{\"do\":\"get\",\"on\":\"\xC3\"}").find("UTF-8"), std::string::npos);
  EXPECT_FALSE(reason(std::string("{\"do\":\"get\"\0}", 13)).empty());
  EXPECT_FALSE(reason(R"({"do":"get","on":"\ud800"})").empty());
}

TEST_F(HostUnreadable, A_number_beyond_every_range_makes_a_line_unreadable) {
  EXPECT_NE(reason(R"({"do":"get","on":1e400})").find("1e400"), std::string::npos);
}

TEST_F(HostUnreadable, A_line_that_is_nested_deeply_is_unreadable) {
  const auto nested = [](std::size_t depth) {
    return R"({"do":"proc","name":"EscapeLike","args":)" + std::string(depth, '[') + std::string(depth, ']') + "}";
  };
  EXPECT_EQ(reason(nested(50)), "");
  EXPECT_EQ(reason(nested(100)), "line 2: it is nested too deeply");
  EXPECT_EQ(reason(nested(1'000'000)), "line 3: it is nested too deeply");
  EXPECT_EQ(reason(std::string(1'000'000, '[')), "line 4: it is nested too deeply");
}

TEST_F(HostUnreadable, A_line_of_a_megabyte_is_carried_out) {
  const std::string text(1'000'000, 'x');
  EXPECT_EQ(answer(R"({"do":"proc","name":"EscapeLike","args":[")" + text + "\"]}").at("result"), text);
}

TEST_F(HostUnreadable, A_large_whole_number_is_a_value_that_is_out_of_range) {
  said(R"({"do":"new","as":"b","class":"clsPayBill"})");
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Status":9223372036854775807}})"), 6);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Status":-9223372036854775808}})"), 6);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Status":99999999999999999999999999}})"), 6);
  EXPECT_EQ(refused(R"({"do":"put","on":"b","values":{"Amount":99999999999999999999999999}})"), 6);
}

TEST_F(HostUnreadable, A_zero_byte_in_a_value_is_kept_out_of_statements) {
  said(R"({"do":"new","as":"b","class":"clsPayBill"})");
  said(R"({"do":"put","on":"b","values":{"ID":"FKD\u0000'"}})");
  EXPECT_EQ(said(R"({"do":"get","on":"b","names":["ID"]})"), R"({"values":{"ID":"FKD\u0000'"}})");
  EXPECT_NO_THROW(said(R"({"do":"call","on":"b","verb":"Save"})"));
}

}  // namespace
}  // namespace brunvik::host
