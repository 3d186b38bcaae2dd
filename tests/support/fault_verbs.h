// Every verb of every class, with what it does statement by statement on the fault books.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tests/support/fault_step.h"

namespace brunvik::test {

struct Verb {
  std::string class_name;
  std::string verb;
  std::vector<Value> arguments;
  Steps steps;
  // The number that the object has in the end; the bill that it has read else.
  std::string number = {};
  std::vector<std::string> before = {};
  // What tells this run from another of the same verb.
  std::string remark = {};
};

// For the name of a test and for its messages.
std::string name_of(const Verb& verb);
inline void PrintTo(const Verb& verb, std::ostream* stream) { *stream << name_of(verb); }

const std::vector<Verb>& fault_verbs();

}  // namespace brunvik::test
