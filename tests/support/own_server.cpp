#include "tests/support/own_server.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <thread>

#include "brunvik/ado/errors.h"

namespace brunvik::test {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
constexpr auto patience = 30s;

// What the threads of a process do, a letter each as the system tells it; empty when the process is gone.
std::string states_of_threads(pid_t process) {
  std::string states;
  std::error_code gone;
  std::filesystem::directory_iterator thread("/proc/" + std::to_string(process) + "/task", gone);
  for (; thread != std::filesystem::directory_iterator(); thread.increment(gone)) {
    std::string line;
    std::ifstream stat(thread->path() / "stat");
    std::getline(stat, line);
    // The state stands behind the name, which is in parentheses and may hold some itself.
    const auto name = line.rfind(") ");
    if (name != std::string::npos) states += line.at(name + 2);
  }
  return states;
}

// A signal is on its way for a while: until it has arrived, a thread on another processor goes on answering.
template <class Condition>
void wait_for(Condition&& holds) {
  const auto end = Clock::now() + patience;
  while (!holds()) {
    if (Clock::now() > end) throw std::runtime_error("the server takes no signal");
    std::this_thread::sleep_for(1ms);
  }
}

}  // namespace

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
  std::ifstream(folder_.file("server/pid")) >> process_;
  if (address_.empty() || process_ <= 0) throw std::runtime_error("no server for the test");
}

std::string OwnServer::socket() const {
  const std::string_view keyword = "SOCKET=";
  const auto first = address_.find(keyword) + keyword.size();
  return address_.substr(first, address_.find(';', first) - first);
}

std::shared_ptr<odbc::Connection> OwnServer::open_when_there_is_room() const {
  for (const auto end = Clock::now() + patience;; std::this_thread::sleep_for(10ms)) {
    try {
      return odbc::open(connection_string());
    } catch (const ado::RuntimeError&) {
      if (Clock::now() > end) throw;
    }
  }
}

void OwnServer::end_at_once() const {
  kill(process_, SIGKILL);
  wait_for([this] {
    const std::string states = states_of_threads(process_);
    return states.empty() || states == "Z";
  });
}

void OwnServer::fall_silent() const {
  kill(process_, SIGSTOP);
  wait_for([this] { return states_of_threads(process_).find_first_not_of('T') == std::string::npos; });
}

void OwnServer::go_on() const { kill(process_, SIGCONT); }

std::string OwnServer::script(const std::string& verb) const {
  return std::string(std::getenv("BRUNVIK_SCRIPTS")) + "/mariadb " + verb + " " + folder_.file("server");
}

}  // namespace brunvik::test
