// The books as they have to be by what clients were told, against those that they worked on.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"
#include "tests/support/client.h"

namespace brunvik::test {

// The rows of each table, each as its values joined by "|", in an order that no engine decides.
using Rows = std::map<std::string, std::vector<std::string>, std::less<>>;
Rows rows_of(ado::Connection& books);

// The first row that one has and the other has not, with its table; empty where they are equal.
std::string difference(const Rows& first, const Rows& second);

// Books in memory as they were before the clients came, in which all that was acknowledged has run.
class ToldBooks {
 public:
  ToldBooks(int clients, const std::vector<std::vector<Told>>& told);

  // What the books lack or have too much, whichever statements of unknown fate ran and whichever did not; empty where
  // some choice of them gives these rows exactly.
  std::string difference_from(const Rows& rows);

  std::size_t acknowledged() const { return acknowledged_; }
  std::size_t of_unknown_fate() const { return unknown_.size(); }

 private:
  bool run_of_unknown_fate(std::size_t choice);

  ado::ConnectionReference books_;
  std::size_t acknowledged_ = 0;
  std::vector<std::string> unknown_;
};

}  // namespace brunvik::test
