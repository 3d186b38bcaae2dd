// Servers as a test needs them that reaches one as a user does, or stops and ends one.
#pragma once

#include <sys/types.h>

#include <memory>
#include <string>

#include "drivers/odbc/connection.h"
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

  // Waits while the server has all the connections that it takes: one that was closed counts until the server has seen
  // to it.
  std::shared_ptr<odbc::Connection> open_when_there_is_room() const;

  // The path of the socket that it listens on.
  std::string socket() const;

  // Both return when the server answers nothing any more.
  void end_at_once() const;
  void fall_silent() const;

  void go_on() const;

 private:
  std::string script(const std::string& verb) const;

  Folder folder_;
  std::string settings_;
  std::string address_;
  pid_t process_ = 0;
};

}  // namespace brunvik::test
