// Books with three bills of every kind, on which every verb finds something to do.
#pragma once

#include <string>
#include <vector>

namespace brunvik::test {

// A document class and the prefix of its numbers.
struct Numbered {
  std::string class_name;
  std::string prefix;

  // The second bill of the kind is the one with rows: two of goods, or two of each row set of a voucher.
  std::string bill() const { return prefix + "24030500002"; }
};

// The class of this name.
Numbered numbered(const std::string& class_name);

std::vector<std::string> fault_books();

}  // namespace brunvik::test
