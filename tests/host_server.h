// Books on a MariaDB server as the command meets them.
#pragma once

#include <csignal>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "host/json.h"
#include "tests/host_process.h"
#include "tests/support/mariadb.h"

namespace brunvik::host {

// A line of the host's own statement.
inline std::string sql(const std::string& statement) { return Json{{"do", "sql"}, {"text", statement}}.dump() + '\n'; }

// What a shell's command writes.
inline std::string written_by(const std::string& command) {
  std::string text;
  FILE* const stream = popen(command.c_str(), "r");
  for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream)) text += static_cast<char>(c);
  pclose(stream);
  return text;
}

// What a user without all rights comes in by, over TCP; empty where the run of the tests has no server.
inline std::string by_tcp() {
  const char* const address = std::getenv("BRUNVIK_TEST_MARIADB_TCP");
  return address ? address : "";
}

// A server of the test's own, which it may stop and end.
class OwnServer {
 public:
  explicit OwnServer(const std::string& settings = {}) : settings_(settings) { start(); }
  ~OwnServer() {
    go_on();
    written_by(script("remove"));
  }
  OwnServer(const OwnServer&) = delete;
  OwnServer& operator=(const OwnServer&) = delete;

  void start() {
    address_ = written_by(script("start") + " --fast " + settings_ + " 2>/dev/null");
    address_ = address_.substr(0, address_.find('\n'));
  }

  // The command's address of its database books.
  const std::string& address() const { return address_; }

  void end_at_once() const { kill(process(), SIGKILL); }
  void fall_silent() const { kill(process(), SIGSTOP); }
  void go_on() const { kill(process(), SIGCONT); }

 private:
  std::string script(const std::string& verb) const {
    return std::string(std::getenv("BRUNVIK_SCRIPTS")) + "/mariadb " + verb + " " + folder_.file("server");
  }

  pid_t process() const { return std::stoi(content_of(folder_.file("server/pid"))); }

  Folder folder_;
  std::string settings_;
  std::string address_;
};

}  // namespace brunvik::host
