// A company's first day: goods come in and go out, part of the money at the counter, and the books are shown after
// each verb.
#pragma once

#include <iosfwd>
#include <string>

#include "host/interpreter.h"

namespace brunvik::host {

struct DemoOptions {
  // An empty address is a fresh file.
  std::string address;
  Settings settings;
  // The word by which the command was called, for the line to try next.
  std::string command = "brunvik";
};

// Throws a RuntimeError where the database can't be used or isn't empty, and where a verb fails.
void demo(const DemoOptions& options, std::ostream& out);

}  // namespace brunvik::host
