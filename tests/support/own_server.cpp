#include "tests/support/own_server.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>

namespace brunvik::test {

std::string written_by(const std::string& command) {
  std::string text;
  FILE* const stream = popen(command.c_str(), "r");
  for (int c = std::fgetc(stream); c != EOF; c = std::fgetc(stream)) text += static_cast<char>(c);
  pclose(stream);
  return text;
}

std::string by_tcp() {
  const char* const address = std::getenv("BRUNVIK_TEST_MARIADB_TCP");
  return address ? address : "";
}

OwnServer::OwnServer(const std::string& settings) : settings_(settings) { start(); }

OwnServer::~OwnServer() {
  go_on();
  written_by(script("remove"));
}

void OwnServer::start() {
  address_ = written_by(script("start") + " --fast " + settings_ + " 2>/dev/null");
  address_ = address_.substr(0, address_.find('\n'));
}

std::string OwnServer::socket() const {
  const std::string_view keyword = "SOCKET=";
  const auto first = address_.find(keyword) + keyword.size();
  return address_.substr(first, address_.find(';', first) - first);
}

void OwnServer::end_at_once() const { kill(process(), SIGKILL); }
void OwnServer::fall_silent() const { kill(process(), SIGSTOP); }
void OwnServer::go_on() const { kill(process(), SIGCONT); }

std::string OwnServer::script(const std::string& verb) const {
  return std::string(std::getenv("BRUNVIK_SCRIPTS")) + "/mariadb " + verb + " " + folder_.file("server");
}

pid_t OwnServer::process() const {
  pid_t process = 0;
  std::ifstream(folder_.file("server/pid")) >> process;
  return process;
}

}  // namespace brunvik::test
