// What is wrong with the words of a command line, said so that the next try is right.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace brunvik::host {

// What stands below the help of the command: what holds where nothing is given.
inline constexpr const char* usage_footer =
    "Without --db, run works in memory and keeps nothing, and demo lays a fresh file.\n"
    "Without --dialect the statements are in that of sqlserver; without --now it is what\n"
    "the system's clock says. A password that a connection string lacks is taken from the\n"
    "environment variable BRUNVIK_PASSWORD. brunvik run --help, and its like, tell the rest.";

// The name that a word was most likely meant to be: the one that takes the fewest typing mistakes, without regard to
// case. Empty where none is near.
std::string_view nearest(std::string_view word, const std::vector<std::string>& names);

// What to say instead of a word that there isn't: the nearest name, or all of them.
std::string instead(std::string_view word, const std::vector<std::string>& names);

// Why the parsed words are no right ones. A subcommand or an option that there isn't is named, with the nearest right
// one or with all; for anything else it is the reason given.
std::string bad_usage(const CLI::App& command, const std::string& reason);

}  // namespace brunvik::host
