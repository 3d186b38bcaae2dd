// A connection to a database on a server, through unixODBC.
//
//   std::shared_ptr<odbc::Connection> books = odbc::open("DSN=books", {.password = password});
//   books->Execute("select * from goods where id='G1'");
//
// The driver asks which engine answers. On MariaDB a statement in the words of either dialect is written in the
// engine's words; what stands between apostrophes is a value and nothing else. SQL Server gets the text as it stands.
// Any other engine is refused.
//
// The address may name several servers, joined by "||", the nodes of one cluster: the first that answers is worked on.
// A lost connection fails the statement that met it with provider_failed, and nobody knows whether the server carried
// it out; the driver never sends it again. The next statement opens a connection to the next server that answers. A
// statement that the engine chose for the end of a deadlock has done nothing, and is sent again up to five times,
// but not in a transaction, since the whole of it is gone with the statement.
//
// A connection belongs to one thread at a time.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"

namespace brunvik::odbc {

struct Options {
  // For a connection string that has none.
  std::string password{};

  // How long a statement waits for a row that another connection holds, until it fails with timed_out. Whole seconds,
  // at least one.
  std::chrono::seconds busy_timeout{5};

  // How long a server may take to answer, at the opening and for each statement, until the connection counts as lost.
  std::chrono::seconds answer_timeout{25};

  // How long the servers of the address are tried in turn for a connection in the place of a lost one.
  std::chrono::seconds reopen_timeout{10};

  // How many shapes of statements are kept; at least one is. On MariaDB they are prepared, and among the
  // statements that the server allows all connections together (max_prepared_stmt_count).
  std::size_t cached_statements = 128;

  // Names of tables. Of these a database must have one, or be empty; else it is that of another program and is refused
  // with provider_failed. Without names any database is taken.
  std::vector<std::string> known_tables{};
};

class Engine;

class Connection final : public ado::Connection {
 public:
  explicit Connection(std::unique_ptr<Engine> engine);
  ~Connection() override;

  // Beside the errors of every connection: data_overflow where a number or a text has no place in its column.
  ado::Recordset Execute(std::string_view CommandText) override;

  // Also 1 between the loss of a connection and the next statement.
  Long State() const noexcept override { return engine_ ? 1 : 0; }

  // Closing a closed connection does nothing.
  void Close() noexcept;

  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;

  // The engine as it names itself: "MariaDB", "Microsoft SQL Server".
  std::string_view engine_name() const;

  // How many shapes of statements are kept now.
  std::size_t cached_statements() const noexcept;

  // Whether the database has tables, of whatever program.
  bool has_tables();

 private:
  Engine& opened(std::string_view statement) const;

  std::unique_ptr<Engine> engine_;
};

// Opens a database by ODBC's connection string, or by several. Throws a RuntimeError of provider_failed, with the
// engine's own text, where none of the servers answers, where the user or the database is refused, where the engine is
// none of those that the driver knows, where its settings would make other books of the same statements (the text names
// the setting), and where the database is that of another program. No text holds a password.
std::shared_ptr<Connection> open(const std::string& address, const Options& options = {});

}  // namespace brunvik::odbc
