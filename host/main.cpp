// The brunvik command: a host without screens.
#include <fmt/format.h>
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>

#include "brunvik/ado/clock.h"
#include "brunvik/ado/errors.h"
#include "host/database.h"
#include "host/demo.h"
#include "host/describe.h"
#include "host/interpreter.h"
#include "host/laid_tables.h"
#include "host/progress.h"
#include "host/run.h"
#include "host/usage.h"
#include "schema/ddl.h"

namespace {

using namespace brunvik;

enum Status { done = 0, no_database = 1, bad_usage = 2, line_refused = 3 };

struct Options {
  // The word by which the command was called.
  std::string command;
  std::string database;
  bool create = false;
  std::string dialect = "sqlserver";
  host::Settings settings;
  std::string now;
  std::vector<std::string> files;
  std::string class_name;
  bool procedures = false;
  bool json = false;
  std::string engine = "sqlite";
  // Whether what a database lacks is laid.
  bool apply = false;
  std::string story{host::default_story};
  // Whether the stories are named, and none is played.
  bool list = false;
};

// Empty for the time of a clock, else what is wrong with it.
std::string no_time(const std::string& text) {
  try {
    ado::parse_date(text);
    return {};
  } catch (const ado::RuntimeError&) {
    return "it takes a time like \"2024-03-05 10:00:00\"";
  }
}

std::vector<std::string> names_of_engines() {
  std::vector<std::string> names;
  for (const schema::NamedEngine& engine : schema::engines()) names.emplace_back(engine.name);
  return names;
}

// Empty for the name of an engine, else what is wrong with it.
std::string no_engine(const std::string& name) {
  const std::vector<std::string> names = names_of_engines();
  if (std::ranges::find(names, name) != names.end()) return {};
  return "there is no engine '" + name + "'; " + host::instead(name, names);
}

void add_session_options(CLI::App& command, Options& options, const std::string& otherwise) {
  command
      .add_option(
          "--db", options.database,
          "The database, sqlite:PATH, sqlite::memory: or odbc:CONNECTION STRING; " + otherwise + " unless given")
      ->type_name("URL");
  command.add_option("--dialect", options.dialect, "The dialect of the statements; sqlserver unless given")
      ->type_name("NAME")
      ->check(CLI::IsMember(std::vector<std::string>{"sqlserver", "access"}));
  command
      .add_option("--now", options.now,
                  "Fixes the clock, as in \"2024-03-05 10:00:00\"; the system's clock unless given")
      ->type_name("TIME")
      ->check(CLI::Validator(no_time, ""));
  command.add_flag("--trace", options.settings.trace, "Shows the statements that each verb sends; off unless given");
}

void fix_clock(const std::string& now) {
  if (now.empty()) return;
  const Date date = ado::parse_date(now);
  ado::set_clock([date] { return date; });
}

int run_lines(const Options& options, host::Interpreter& interpreter) {
  host::Progress progress;
  if (options.files.empty()) host::run(interpreter, std::cin, std::cout, progress);
  for (const std::string& file : options.files) {
    std::ifstream lines(file, std::ios::binary);
    if (!lines) {
      std::cerr << "brunvik: '" << file << "' can't be read\n";
      return bad_usage;
    }
    host::run(interpreter, lines, std::cout, progress);
  }
  return interpreter.refused() == 0 ? done : line_refused;
}

void end_transaction(host::Interpreter& interpreter) {
  if (interpreter.roll_back_open_transaction()) {
    std::cerr << "brunvik: the lines ended within a transaction, which was rolled back\n";
  }
}

int run_command(const Options& options) {
  if (options.database.empty() && isatty(STDERR_FILENO) == 1) {
    std::cerr << "brunvik: no --db is given; the books are in memory, and gone when the run ends\n";
  }
  host::Interpreter interpreter(
      host::open_database(options.database.empty() ? std::string(host::in_memory) : options.database, options.create)
          .connection,
      options.settings);
  try {
    const int status = run_lines(options, interpreter);
    end_transaction(interpreter);
    return status;
  } catch (...) {
    end_transaction(interpreter);
    throw;
  }
}

int demo_command(const Options& options) {
  const std::vector<host::Story> stories = host::stories();
  if (options.list) {
    std::cout << host::list_of(stories);
    return done;
  }
  const auto story = std::ranges::find(stories, options.story, &host::Story::name);
  if (story == stories.end()) {
    std::vector<std::string> names;
    names.reserve(stories.size());
    for (const host::Story& other : stories) names.push_back(other.name);
    const std::string_view near = host::nearest(options.story, names);
    std::cerr << "brunvik: there is no story '" << options.story << "'; "
              << (near.empty() ? "" : "did you mean " + std::string(near) + "? ") << "brunvik demo --list names all\n";
    return bad_usage;
  }
  host::demo(*story, {options.database, options.settings, options.command}, std::cout);
  return done;
}

int describe_command(const Options& options) {
  if (options.procedures) {
    std::cout << (options.json ? host::describe_procedures_json() : host::describe_procedures());
    return done;
  }
  if (options.class_name.empty()) {
    std::cout << (options.json ? host::describe_classes_json() : host::describe_classes());
    return done;
  }
  try {
    std::cout << (options.json ? host::describe_class_json(options.class_name)
                               : host::describe_class(options.class_name));
    return done;
  } catch (const ado::RuntimeError& failure) {
    std::cerr << "brunvik: " << failure.description() << ", and the classes that brunvik describe lists\n";
    return bad_usage;
  }
}

int schema_command(const Options& options) {
  std::vector<std::string> statements;
  if (options.database.empty()) {
    const auto engine = std::ranges::find(schema::engines(), options.engine, &schema::NamedEngine::name);
    statements = schema::statements(engine->engine);
  } else {
    const auto database = host::open_database(options.database, false);
    statements = options.apply ? host::add_what_is_lacking(database) : host::lacking_statements(database);
  }
  for (const std::string& statement : statements) std::cout << statement << ";\n";
  return done;
}

// What goes wrong before the first line is done, in the order in which it is found out.
int carried_out(int (*command)(const Options&), const Options& options) {
  fix_clock(options.now);
  try {
    return command(options);
  } catch (const host::UnknownAddress& failure) {
    std::cerr << "brunvik: " << failure.what() << '\n';
    return bad_usage;
  } catch (const host::UnreadableLine& failure) {
    std::cerr << "brunvik: " << failure.what() << '\n';
    return bad_usage;
  } catch (const ado::RuntimeError& failure) {
    std::cerr << "brunvik: " << failure.number() << ": " << failure.description() << '\n';
    return no_database;
  } catch (const std::exception& failure) {
    std::cerr << "brunvik: " << failure.what() << '\n';
    return no_database;
  }
}

int parsed_and_carried_out(int count, char** words) {
  Options options;
  options.command = words[0];
  CLI::App app("Stock, accounts and costs: the books of a trading company, kept in a database.", "brunvik");
  app.set_version_flag("--version", "brunvik " BRUNVIK_VERSION);
  app.require_subcommand(1);

  CLI::App& demo = *app.add_subcommand("demo", "Plays a story in a fresh database, and shows what each verb changes");
  demo.add_option("NAME", options.story, "The story; counter-sale unless given");
  demo.add_flag("--list", options.list, "Names the stories, with a line for each");
  add_session_options(demo, options, "a fresh file");

  CLI::App& run = *app.add_subcommand("run", "Carries out JSON Lines, one answer a line");
  add_session_options(run, options, "in memory");
  run.add_flag("--create", options.create,
               "Lays the tables when the database is empty; a database in memory always has them");
  run.add_option("--operator", options.settings.operator_id, "Who is logged in; nobody unless given")->type_name("ID");
  run.add_option("FILE", options.files, "The lines; standard input where none is named")->check(CLI::ExistingFile);

  CLI::App& describe = *app.add_subcommand(
      "describe", "Lists the public classes, the members of one or of a row record, or the module procedures");
  CLI::Option& name =
      *describe.add_option("NAME", options.class_name, "A class or a row record; all classes unless given");
  describe.add_flag("--procedures", options.procedures, "The module procedures")->excludes(&name);
  describe.add_flag("--json", options.json, "As one JSON value; a line each unless given");

  CLI::App& schema = *app.add_subcommand("schema", "Prints the statements that lay the tables");
  CLI::Option* engine = schema
                            .add_option("--engine", options.engine,
                                        fmt::format("The engine that runs them, {}; sqlite unless given",
                                                    fmt::join(names_of_engines(), ", ")))
                            ->type_name("NAME")
                            ->check(CLI::Validator(no_engine, ""));
  CLI::Option* database = schema.add_option("--db", options.database, "Prints only what this database lacks")
                              ->type_name("URL")
                              ->excludes(engine);
  schema.add_flag("--apply", options.apply, "Lays what the database lacks, and takes nothing away")->needs(database);

  // The subcommands would take it over if they came after it.
  app.footer(host::usage_footer);

  try {
    app.parse(count, words);
  } catch (const CLI::ParseError& failure) {
    if (failure.get_exit_code() == 0) return app.exit(failure);
    std::cerr << "brunvik: " << host::bad_usage(app, failure.what()) << "\nbrunvik --help tells more\n";
    return bad_usage;
  }
  if (options.dialect == "access") options.settings.dialect = "[Microsoft Access]";
  if (describe.parsed()) return describe_command(options);
  if (schema.parsed()) return carried_out(schema_command, options);
  if (demo.parsed()) return carried_out(demo_command, options);
  return carried_out(run_command, options);
}

}  // namespace

int main(int count, char** words) {
  std::ios::sync_with_stdio(false);
  try {
    return parsed_and_carried_out(count, words);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "brunvik: %s\n", failure.what());
    return no_database;
  }
}
