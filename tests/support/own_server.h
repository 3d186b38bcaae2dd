// Servers as a test needs them that reaches one as a user does, or stops and ends one.
#pragma once

#include <sys/types.h>

#include <string>

#include "tests/support/folder.h"

namespace brunvik::test {

// What a shell's command writes.
std::string written_by(const std::string& command);

// What a user without all rights comes in by, over TCP; empty where the run of the tests has no server.
std::string by_tcp();

// A server of the test's own, which it may stop and end.
class OwnServer {
 public:
  // Settings beside those that the scripts give, NAME=VALUE with blanks between them.
  explicit OwnServer(const std::string& settings = {});
  ~OwnServer();
  OwnServer(const OwnServer&) = delete;
  OwnServer& operator=(const OwnServer&) = delete;

  void start();

  // The command's address of its database books, and what ODBC reaches that by.
  const std::string& address() const { return address_; }
  std::string connection_string() const { return address_.substr(address_.find(':') + 1); }

  // The path of the socket that it listens on.
  std::string socket() const;

  void end_at_once() const;
  void fall_silent() const;
  void go_on() const;

 private:
  std::string script(const std::string& verb) const;
  pid_t process() const;

  Folder folder_;
  std::string settings_;
  std::string address_;
};

}  // namespace brunvik::test
