// The documents' behaviour as data: each file below cases/ is a story told in the lines of `brunvik run`, with what has
// to come out. docs/cases.md describes the lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <stdexcept>

#include "drivers/sqlite/connection.h"
#include "host/interpreter.h"
#include "schema/ddl.h"
#include "tests/support/apartment.h"
#include "tests/support/folder.h"
#include "tests/support/mariadb.h"

namespace {

using namespace brunvik;
using nlohmann::json;
namespace files = std::filesystem;

const files::path case_folder = BRUNVIK_CASES;

// Laying the tables takes longer than most cases do. So they are laid once for all cases of a process: in a file, of
// which each case gets a copy, and in a memory and on a server, of which a case gets the use until what it did is
// rolled back.
ado::ConnectionReference lay_tables(ado::ConnectionReference database) {
  for (const std::string& statement : schema::statements(schema::Engine::sqlite)) database->Execute(statement);
  return database;
}

ado::ConnectionReference use_of(const ado::ConnectionReference& database) {
  database->BeginTrans();
  return {database.get(), [](ado::Connection* used) { used->RollbackTrans(); }};
}

ado::ConnectionReference memory(bool to_itself) {
  if (to_itself) return lay_tables(sqlite::open(":memory:"));
  static const ado::ConnectionReference shared = lay_tables(sqlite::open(":memory:"));
  return use_of(shared);
}

ado::ConnectionReference mariadb(bool to_itself) {
  if (to_itself) {
    auto books = std::make_shared<test::MariaDbBooks>();
    auto database = books->open();
    return {database.get(), [books, database](ado::Connection*) { database->Close(); }};
  }
  static const test::MariaDbBooks books;
  static const ado::ConnectionReference shared = books.open();
  return use_of(shared);
}

ado::ConnectionReference copy_of_a_file(const Folder& folder) {
  static const Folder laid;
  static const std::string original = [] {
    std::string path = laid.file("books.db");
    lay_tables(sqlite::open(path, {.synchronous = sqlite::Synchronous::normal, .create = true}));
    return path;
  }();
  files::copy_file(original, folder.file("books.db"));
  return sqlite::open(folder.file("books.db"), {.synchronous = sqlite::Synchronous::normal});
}

struct Engine {
  std::string name;
  // A database with the books' tables and nothing in them, on files, where it needs any, in a folder that goes with the
  // case. A case that opens a transaction of its own or drops a table has one to itself.
  std::function<ado::ConnectionReference(const Folder& folder, bool to_itself)> open;
};

// The engines that the cases are run on.
const std::vector<Engine>& engines() {
  static const std::vector<Engine> list = [] {
    std::vector<Engine> engines{
        {"sqlite_memory", [](const Folder&, bool to_itself) { return memory(to_itself); }},
        {"sqlite_file", [](const Folder& folder, bool) { return copy_of_a_file(folder); }},
    };
    if (test::has_mariadb())
      engines.push_back({"mariadb", [](const Folder&, bool to_itself) { return mariadb(to_itself); }});
    return engines;
  }();
  return list;
}

struct Dialect {
  std::string name;
  std::string session_name;
};

const std::array<Dialect, 2> dialects{{{"sqlserver", "[Microsoft SQL Server]"}, {"access", "[Microsoft Access]"}}};

struct Step {
  std::size_t line = 0;
  std::string sent;
  std::string expected = {};                            // empty: anything but a refusal
  std::map<std::string, std::string> expected_on = {};  // by the engine's name, where it answers otherwise
};

struct Case {
  std::string dialect = "both";
  std::vector<Step> steps = {};
};

std::string trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(" \r");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \r") - first + 1);
}

// Throws where a line of the file is none of a case.
Case read_case(const files::path& path) {
  Case read;
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path.string() + " can't be read");
  std::string line;
  for (std::size_t number = 1; std::getline(file, line); ++number) {
    const std::string content = line.empty() ? "" : trimmed(line.substr(1));
    const char kind = line.empty() ? '#' : line.front();
    if (kind == '>') {
      read.steps.push_back({number, content});
    } else if (kind == '<' && !read.steps.empty() && std::isalpha(static_cast<unsigned char>(line[1]))) {
      const std::size_t behind_name = line.find(' ');
      read.steps.back().expected_on[line.substr(1, behind_name - 1)] += trimmed(line.substr(behind_name));
    } else if (kind == '<' && !read.steps.empty()) {
      read.steps.back().expected += content;
    } else if (kind == '@' && content.starts_with("dialect ")) {
      read.dialect = trimmed(content.substr(8));
      if (read.dialect != "both" && std::none_of(dialects.begin(), dialects.end(), [&](const Dialect& dialect) {
            return dialect.name == read.dialect;
          })) {
        throw std::runtime_error(path.string() + ":" + std::to_string(number) + ": there is no dialect " +
                                 read.dialect);
      }
    } else if (kind == '@' && content.starts_with("include ")) {
      const Case setup = read_case(case_folder / "setup" / trimmed(content.substr(8)));
      read.steps.insert(read.steps.end(), setup.steps.begin(), setup.steps.end());
    } else if (kind != '#') {
      throw std::runtime_error(path.string() + ":" + std::to_string(number) + ": '" + line + "' is no line of a case");
    }
  }
  return read;
}

bool needs_a_database_to_itself(const Case& told) {
  return std::any_of(told.steps.begin(), told.steps.end(), [](const Step& step) {
    return step.sent.find("\"transaction\"") != std::string::npos || step.sent.find("drop table") != std::string::npos;
  });
}

bool same_text(const std::string& expected, const std::string& actual) {
  static const std::string anything = "…";
  if (!expected.ends_with(anything)) return expected == actual;
  return actual.starts_with(expected.substr(0, expected.size() - anything.size()));
}

// Where the answer differs first from what is expected, and how; nothing where it doesn't.
std::optional<std::string> difference(const json& expected, const json& actual, const std::string& place = "") {
  const auto differs = [&](const std::string& what) {
    return what + "\n  expected: " + expected.dump() + "\n  actual:   " + actual.dump();
  };
  if (expected.is_object() && actual.is_object()) {
    for (const auto& [name, value] : expected.items()) {
      std::string inner = place;
      inner.append("/").append(name);
      if (!actual.contains(name)) return inner + " is missing\n  expected: " + value.dump();
      if (auto found = difference(value, actual[name], inner)) return found;
    }
    return std::nullopt;
  }
  if (expected.is_array() && actual.is_array()) {
    for (std::size_t at = 0; at < std::min(expected.size(), actual.size()); ++at) {
      if (auto found = difference(expected[at], actual[at], place + "/" + std::to_string(at))) return found;
    }
    if (expected.size() == actual.size()) return std::nullopt;
    return differs(place + " has " + std::to_string(actual.size()) + " entries");
  }
  if (expected.is_string() && actual.is_string() && same_text(expected, actual)) return std::nullopt;
  return expected == actual ? std::nullopt : std::optional(differs(place));
}

std::optional<std::string> difference(const Step& step, const json& answer, const std::string& engine) {
  const auto own = step.expected_on.find(engine);
  const std::string& told = own == step.expected_on.end() ? step.expected : own->second;
  if (told.empty()) {
    return answer.contains("error") ? std::optional<std::string>("is refused") : std::nullopt;
  }
  const json expected = json::parse(told);
  if (auto found = difference(expected, answer)) return found;
  if (answer.contains("error") && !expected.contains("error")) return "is refused";
  if (!expected.contains("notices") && answer.contains("notices") && !answer["notices"].empty()) {
    return "shows a notice that isn't expected";
  }
  return std::nullopt;
}

struct Telling {
  std::string name;
  files::path path;
  const Dialect* dialect;
  const Engine* engine;

  friend void PrintTo(const Telling& telling, std::ostream* out) { *out << telling.path.filename().string(); }
};

class Cases : public ::testing::TestWithParam<Telling> {};

TEST_P(Cases, come_out_as_told) {
  const auto& [name, path, dialect, engine] = GetParam();
  const test::FixedClock clock("2024-03-05 10:00:00");
  // Empty again behind the case, so that nothing holds its database any longer.
  const test::Session session;
  const Folder folder;
  const Case told = read_case(path);
  const ado::ConnectionReference database = engine->open(folder, needs_a_database_to_itself(told));
  host::Interpreter interpreter(database, {.dialect = dialect->session_name, .operator_id = "u1", .trace = true});
  for (const Step& step : told.steps) {
    const json answer = json::parse(interpreter.answer(step.sent));
    if (const auto found = difference(step, answer, engine->name)) {
      ADD_FAILURE_AT(path.c_str(), static_cast<int>(step.line))
          << *found << "\n  sent:     " << step.sent << "\n  answer:   " << answer.dump();
    }
  }
}

// Every case in each of its dialects on each engine.
std::vector<Telling> tellings() {
  std::vector<Telling> list;
  for (const auto& entry : files::recursive_directory_iterator(case_folder)) {
    if (entry.path().extension() != ".case") continue;
    const std::string asked = read_case(entry.path()).dialect;
    for (const Dialect& dialect : dialects) {
      if (asked != "both" && asked != dialect.name) continue;
      for (const Engine& engine : engines()) {
        std::string name = entry.path().parent_path().filename().string() + "_" + entry.path().stem().string();
        name += "_in_" + dialect.name + "_on_" + engine.name;
        std::replace_if(
            name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
        list.push_back({name, entry.path(), &dialect, &engine});
      }
    }
  }
  std::sort(list.begin(), list.end(), [](const Telling& a, const Telling& b) { return a.name < b.name; });
  return list;
}

INSTANTIATE_TEST_SUITE_P(All, Cases, ::testing::ValuesIn(tellings()),
                         [](const auto& telling) { return telling.param.name; });

}  // namespace
