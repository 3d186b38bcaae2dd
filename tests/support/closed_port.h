// A port of loopback on which nobody listens: it is held as long as the object lives, so that nobody else can.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

namespace brunvik::test {

class ClosedPort {
 public:
  ClosedPort() {
    address_.sin_family = AF_INET;
    address_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address_;
    auto* const address = reinterpret_cast<sockaddr*>(&address_);
    if (bind(socket_, address, size) != 0 || getsockname(socket_, address, &size) != 0) {
      throw std::runtime_error("no port for the test");
    }
  }
  ~ClosedPort() { close(socket_); }
  ClosedPort(const ClosedPort&) = delete;
  ClosedPort& operator=(const ClosedPort&) = delete;

  std::string number() const { return std::to_string(ntohs(address_.sin_port)); }

 private:
  int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address_{};
};

}  // namespace brunvik::test
