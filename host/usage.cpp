#include "host/usage.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <numeric>

namespace brunvik::host {

namespace {

char small(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// How many letters have to be put in, left out, replaced or swapped with the next one.
std::size_t mistakes(std::string_view word, std::string_view name) {
  std::vector<std::size_t> before_last(name.size() + 1);
  std::vector<std::size_t> last(name.size() + 1);
  std::vector<std::size_t> row(name.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= word.size(); ++i) {
    before_last.swap(last);
    last.swap(row);
    row[0] = i;
    for (std::size_t j = 1; j <= name.size(); ++j) {
      const bool same = small(word[i - 1]) == small(name[j - 1]);
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0U : 1U)});
      const bool swapped =
          i > 1 && j > 1 && small(word[i - 1]) == small(name[j - 2]) && small(word[i - 2]) == small(name[j - 1]);
      if (swapped) row[j] = std::min(row[j], before_last[j - 2] + 1);
    }
  }
  return row.back();
}

std::vector<std::string> subcommands_of(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::App* subcommand : command.get_subcommands([](const CLI::App*) { return true; })) {
    names.push_back(subcommand->get_name());
  }
  return names;
}

std::vector<std::string> options_of(const CLI::App& command) {
  std::vector<std::string> names;
  for (const CLI::Option* option : command.get_options()) {
    for (const std::string& name : option->get_lnames()) names.push_back("--" + name);
  }
  return names;
}

}  // namespace

std::string_view nearest(std::string_view word, const std::vector<std::string>& names) {
  std::string_view near;
  // As many mistakes as a word may have that is still known again.
  std::size_t fewest = 2 + word.size() / 4;
  for (const std::string& name : names) {
    if (name.size() > word.size() + fewest || word.size() > name.size() + fewest) continue;
    if (const std::size_t count = mistakes(word, name); count < fewest && count < name.size()) {
      fewest = count;
      near = name;
    }
  }
  return near;
}

std::string instead(std::string_view word, const std::vector<std::string>& names) {
  const std::string_view near = nearest(word, names);
  return near.empty() ? fmt::format("there is {}", fmt::join(names, ", ")) : fmt::format("did you mean {}?", near);
}

std::string bad_usage(const CLI::App& command, const std::string& reason) {
  const auto given = command.get_subcommands();
  const std::vector<std::string> unknown = command.remaining(true);
  if (unknown.empty()) {
    return given.empty() ? "a subcommand is missing; " + instead({}, subcommands_of(command)) : reason;
  }
  const std::string word = unknown.front().substr(0, unknown.front().find('='));
  const CLI::App& chosen = given.empty() ? command : *given.front();
  const std::string called = given.empty() ? "brunvik" : "brunvik " + chosen.get_name();
  if (!word.starts_with('-')) {
    return given.empty() ? fmt::format("there is no subcommand '{}'; {}", word, instead(word, subcommands_of(command)))
                         : fmt::format("'{}' is one word too many for {}", word, called);
  }
  const std::vector<std::string> options = options_of(chosen);
  if (std::find(options.begin(), options.end(), word) != options.end()) {
    return fmt::format("{} stands behind {}", word, called);
  }
  return fmt::format("{} has no option '{}'; {}", called, word, instead(word, options));
}

}  // namespace brunvik::host
