// The public members of every class and of every row record, as hosts know them.
#pragma once

#include <string>
#include <vector>

namespace brunvik::test {

// A line names a kind and a type, then the members in their order. Arguments: & by reference, ? optional, = default.
struct Expected {
  const char* class_name;
  std::string members;
};

// In the order of the classes.
const std::vector<Expected>& expected_classes();
const std::vector<Expected>& expected_records();

}  // namespace brunvik::test
