// A user at work on books that others work on, too: a process of its own, which writes down what it was told.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "brunvik/ado/connection.h"

namespace brunvik::test {

// What the connection said to a statement.
struct Told {
  std::int64_t milliseconds;  // of a clock that all processes share
  Long outcome;               // 0, or the number of the error
  std::string statement;

  bool is_acknowledged() const { return outcome == 0; }
  // Nobody knows whether it is in the books.
  bool is_of_unknown_fate() const;
  bool changes_the_books() const;
};

// Lays goods and a warehouse for each of so many clients, goods that all move, and a receipt on which all pay.
void lay_for_clients(ado::Connection& books, int clients);

// Posts other receipts, purchase receipts, sales issues and payments in turn, from the proposed number to the audit. A
// document that is stopped by an error is left as it is, and the next is begun. Each client has a day of its own, so
// that no two are proposed the same number; and goods with a price of its own, so that no two reckon the same average.
class Client {
 public:
  struct Work {
    std::function<ado::ConnectionReference()> open;
    // Asked before each document, with the number of those that are done.
    std::function<bool(int done)> goes_on;
  };

  // The number counts from 0. The process has to have no other threads.
  Client(int number, const Work& work, std::filesystem::path notes);
  // Ends the process.
  ~Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  // Waits for the end, and says whether the client came to it in good order.
  bool has_ended_well();

  // Up to now, in the order of the statements.
  std::vector<Told> told() const;

 private:
  std::filesystem::path notes_;
  pid_t process_;
};

// The milliseconds of the clock on which clients note what they were told.
std::int64_t milliseconds_of_clients();

}  // namespace brunvik::test
