// A connection to a SQLite database: a file, or the memory of the process.
//
//   std::shared_ptr<sqlite::Connection> books = sqlite::open("books.db", {.create = true});
//   books->Execute("select * from goods where id='G1'");
//
// A statement comes as plain text in the words of either dialect. What stands between apostrophes, and every number,
// is a value and nothing else: it is cut out of the text and bound, so that no value can change what a statement does,
// and the prepared statement of each shape is kept. Money columns (declared MONEY) hold exact amounts of four places,
// REAL columns single-precision numbers; text compares without regard to case and to trailing blanks.
//
// A connection belongs to one thread at a time. Several connections, of one process or of many, may share a file.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "brunvik/ado/connection.h"

namespace brunvik::sqlite {

enum class Synchronous {
  full,    // what was acknowledged is kept, also when the power goes
  normal,  // the last moments can be lost with the power, never with the process; the file stays whole
};

struct Options {
  Synchronous synchronous = Synchronous::full;

  // Make the file where there is none. Without it a missing file is an error.
  bool create = false;

  // How long a statement waits for a database that another connection holds, until it fails with timed_out.
  std::chrono::milliseconds busy_timeout{5'000};

  // How many shapes of statements are kept prepared; at least one is.
  std::size_t cached_statements = 512;

  // Names of tables. Of these a database must have one, or be empty; else it is that of another program, is refused
  // with provider_failed, and stays as it is to the byte. Without names any database is taken, and
  // put into write-ahead mode.
  std::vector<std::string> known_tables{};
};

class Engine;

class Connection final : public ado::Connection {
 public:
  explicit Connection(std::unique_ptr<Engine> engine);
  ~Connection() override;

  // Beside the errors of every connection: data_overflow where a number has no place in its column, a whole number of
  // more than its width, a single out of range, or an amount that can't be kept exactly (from ±549,755,813,888 on);
  // and where a sum or a difference of money has none.
  ado::Recordset Execute(std::string_view CommandText) override;

  // The begin takes the lock of the writer at once and waits for it as long as a statement does, so that of two hosts
  // that read before they write neither fails in the middle. Begin, commit and rollback as texts of Execute work on
  // the same transaction; a lost one ends with the text `rollback`, too.
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;

  Long State() const noexcept override { return engine_ ? 1 : 0; }

  // Closing a closed connection does nothing.
  void Close() noexcept;

  // How many shapes of statements are kept prepared now.
  std::size_t cached_statements() const noexcept;

  // How many bytes are held between two statements: those of the statements that are kept prepared, which are dropped
  // when they take more than 16 MiB, and the room for the next statement's values.
  std::size_t held_bytes() const noexcept;

 private:
  // Error 3704 when the connection is closed.
  Engine& open_engine(std::string_view statement = {}) const;

  std::unique_ptr<Engine> engine_;
};

// Opens the database at a path, or ":memory:" for one that lives as long as the connection. Throws a RuntimeError: of
// provider_failed where there is no file, it is no database or that of another program, of timed_out where another
// process holds it for itself.
std::shared_ptr<Connection> open(const std::string& path, const Options& options = {});

}  // namespace brunvik::sqlite
