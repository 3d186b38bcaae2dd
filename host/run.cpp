#include "host/run.h"

#include <cstddef>
#include <istream>
#include <ostream>
#include <string>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "host/interpreter.h"
#include "host/progress.h"

namespace brunvik::host {

namespace {

// From this size on a block of memory goes back to the system when it is done with.
constexpr std::size_t large_block = 1 << 20;

// Left to itself the GNU C library takes the largest block that came for an ordinary one, and keeps its room: remarks
// of 20 MB left a run with 120 MB.
void give_back_large_blocks() {
#ifdef __GLIBC__
  mallopt(M_MMAP_THRESHOLD, large_block);
#endif
}

}  // namespace

void run(Interpreter& interpreter, std::istream& lines, std::ostream& answers, Progress& progress) {
  give_back_large_blocks();
  for (std::string line; std::getline(lines, line);) {
    const std::string answer = interpreter.answer(line);
    progress.make_room();
    // Another program may wait for this answer before it says anything more.
    answers << answer << '\n' << std::flush;
    if (!answers) throw BrokenStream("the answers can't be written");
    progress.advance(interpreter.calls());
    if (line.capacity() > large_block) std::string().swap(line);
  }
  if (lines.bad()) throw BrokenStream("the lines can't be read");
}

}  // namespace brunvik::host
