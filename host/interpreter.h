// One line of JSON in, one line of JSON out: what another program says to the library, and what it answers.
//
// The library's session belongs to a thread, and so does an interpreter: the last one made on a thread holds it.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/clock.h"
#include "brunvik/ado/connection.h"
#include "brunvik/ado/value.h"
#include "brunvik/foundation/public_object.h"
#include "host/json.h"
#include "host/trace.h"

namespace brunvik::host {

struct Settings {
  std::string dialect = "[Microsoft SQL Server]";
  std::string operator_id;
  // Whether the answers to calls hold the statements that they sent.
  bool trace = false;
};

// A line that is no JSON object.
class UnreadableLine : public std::runtime_error {
 public:
  UnreadableLine(std::size_t line, const std::string& reason)
      : std::runtime_error("line " + std::to_string(line) + ": " + reason), line_(line) {}

  std::size_t line() const noexcept { return line_; }

 private:
  std::size_t line_;
};

class Interpreter {
 public:
  // Starts the session.
  Interpreter(ado::ConnectionReference database, const Settings& settings);
  ~Interpreter();
  Interpreter(const Interpreter&) = delete;
  Interpreter& operator=(const Interpreter&) = delete;

  // Counts the lines. What the host or the database refuses is an answer too; throws an UnreadableLine alone.
  std::string answer(std::string_view line);

  // Whether the lines left a transaction open, which is taken back.
  bool roll_back_open_transaction();

  // How many verbs and procedures were called.
  std::size_t calls() const noexcept { return calls_; }

  // How many lines were answered by an error.
  std::size_t refused() const noexcept { return refused_; }

 private:
  using Command = void (Interpreter::*)(const Json& line, Json& answer);
  // Error 438, with the words that there are, for any other.
  static Command command_named(std::string_view name);

  void make_object(const Json& line, Json& answer);
  void put(const Json& line, Json& answer);
  void get(const Json& line, Json& answer);
  void add(const Json& line, Json& answer);
  void edit(const Json& line, Json& answer);
  void remove(const Json& line, Json& answer);
  void clear(const Json& line, Json& answer);
  void show_rows(const Json& line, Json& answer);
  void call(const Json& line, Json& answer);
  void call_procedure(const Json& line, Json& answer);
  void run_statement(const Json& line, Json& answer);
  void start_session(const Json& line, Json& answer);
  void set_connection(const Json& line, Json& answer);
  void rehearse_failure(const Json& line, Json& answer);
  void run_transaction(const Json& line, Json& answer);

  static constexpr std::string_view session_class = "InitBrunvikVariable";

  // A road to the database as the objects on it meet it.
  struct Way {
    std::shared_ptr<TracedConnection> connection;
    bool set = true;

    Value reference() const;
  };

  Way& way_of(const PublicObject& object);
  void connect(PublicObject& object);
  void start(std::shared_ptr<PublicObject> session);
  PublicObject& object_of(const Json& line);
  RowCollection& rows_of(const Json& line);
  void add_what_happened(Json& answer);

  ado::ConnectionReference database_;
  bool tracing_;
  std::shared_ptr<Trace> trace_;
  Way bills_;
  Way sessions_;
  // The values that the session was started with last.
  std::shared_ptr<PublicObject> session_;
  std::map<std::string, std::shared_ptr<PublicObject>, std::less<>> objects_;
  std::vector<ado::Notice> notices_;
  std::size_t lines_ = 0;
  std::size_t calls_ = 0;
  std::size_t refused_ = 0;
};

}  // namespace brunvik::host
