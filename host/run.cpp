#include "host/run.h"

#include <istream>
#include <ostream>
#include <string>

#include "host/interpreter.h"
#include "host/progress.h"

namespace brunvik::host {

void run(Interpreter& interpreter, std::istream& lines, std::ostream& answers, Progress& progress) {
  for (std::string line; std::getline(lines, line);) {
    const std::string answer = interpreter.answer(line);
    progress.make_room();
    // Another program may wait for this answer before it says anything more.
    answers << answer << '\n' << std::flush;
    if (!answers) throw BrokenStream("the answers can't be written");
    progress.advance(interpreter.calls());
  }
  if (lines.bad()) throw BrokenStream("the lines can't be read");
}

}  // namespace brunvik::host
