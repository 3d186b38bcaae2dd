// Books on which every verb of every document finds something to do.
#pragma once

#include <string>
#include <vector>

namespace brunvik::test {

// What all documents stand on: a warehouse, goods with their units, balances, a bill from before there was a cost; and
// the bills of every document that is rehearsed.
std::vector<std::string> fault_books();

// The text in quotes, as a statement takes it.
std::string quoted(const std::string& text);

}  // namespace brunvik::test
