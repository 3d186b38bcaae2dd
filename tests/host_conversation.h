// A conversation with the command's interpreter about a database in memory, line by line.
#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "brunvik/ado/clock.h"
#include "host/database.h"
#include "host/interpreter.h"

namespace brunvik::host {

class HostTest : public testing::Test {
 protected:
  HostTest() {
    ado::set_clock([] { return ado::parse_date("2024-03-05 10:00:00"); });
  }
  ~HostTest() override { ado::set_clock({}); }

  // The answer without the number of its line, which each conversation counts for itself.
  std::string said(std::string_view line) {
    Json answer = Json::parse(interpreter.answer(line));
    answer.erase("line");
    return answer.dump();
  }

  Json answer(std::string_view line) { return Json::parse(interpreter.answer(line)); }

  // The number of the error that a line is refused with; 0 where it isn't.
  Long refused(std::string_view line) {
    const Json answer = this->answer(line);
    return answer.contains("error") ? answer.at("error").at("number").get<Long>() : 0;
  }

  static Settings tracing() {
    Settings settings;
    settings.operator_id = "u1";
    settings.trace = true;
    return settings;
  }

  ado::ConnectionReference database = open_database("sqlite::memory:", true).connection;
  Interpreter interpreter{database, Settings{}};
};

class TracedHostTest : public HostTest {
 protected:
  TracedHostTest() {
    interpreter.answer(R"({"do":"new","as":"b","class":"clsOthersInBill"})");
    interpreter.answer(R"({"do":"put","on":"b","values":{"ID":"QTR24030500001"}})");
  }

  Json answer(std::string_view line) { return Json::parse(interpreter.answer(line)); }

  Interpreter interpreter{database, tracing()};
};

}  // namespace brunvik::host
