// Lines of one stream carried out one by one, each answered on another before the next is read.
#pragma once

#include <iosfwd>
#include <stdexcept>

namespace brunvik::host {

class Interpreter;
class Progress;

// The lines couldn't be read to their end, or an answer couldn't be written.
class BrokenStream : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws an UnreadableLine, or a BrokenStream.
void run(Interpreter& interpreter, std::istream& lines, std::ostream& answers, Progress& progress);

}  // namespace brunvik::host
