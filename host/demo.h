// The demo: a story played in a fresh database, and what each verb changed in the books.
#pragma once

#include <iosfwd>
#include <string>

#include "host/interpreter.h"
#include "host/story.h"

namespace brunvik::host {

struct DemoOptions {
  // An empty address is a fresh file.
  std::string address;
  Settings settings;
  // The word by which the command was called, for the line to try next.
  std::string command = "brunvik";
};

// Throws a RuntimeError where the database can't be used or isn't empty, and an UnreadableStory, which says the line,
// where a line of the story is refused or a verb fails.
void demo(const Story& story, const DemoOptions& options, std::ostream& out);

// Plays a story in the books of an interpreter.
void play(const Story& story, Interpreter& interpreter, std::ostream& out);

// The stories, one a line: the name and what it tells.
std::string list_of(const std::vector<Story>& stories);

}  // namespace brunvik::host
